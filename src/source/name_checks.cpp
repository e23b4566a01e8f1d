#include "source/name_checks.h"

#include "source/char_class.h"

namespace quillet::source {

using basic::Compare;
using basic::StrComp;
using basic::VbError;

namespace {

bool inLookups(const Str& key, const NameLookups& collections) {
    for (const auto& lookup : collections) {
        try {
            if (lookup && lookup(key)) return true;
        } catch (const VbError&) {
            // A look-up that fails counts as not found.
        }
    }
    return false;
}

template <class Check>
long askOnFailure(NameCheckEnv& env, Check check) {
    try {
        check();
        return 0;
    } catch (const VbError& error) {
        long number = error.Number();
        if (number != kNameInvalid && number != kNameUsed && number != kNameIsKeyword && number != kNameEmpty)
            return 0;  // the editor failed to answer: the check cannot say no
        if (number == kNameEmpty) {
            env.platform.MsgBox(kNameMissingText, platform::mb::vbExclamation, Str{});
            return kNameEmpty;
        }
        Str prompt = error.Description() + u" " + kCompileErrorText + u"\r\n" + kUseAnywayText;
        int answer = env.platform.MsgBox(prompt, platform::mb::vbYesNoCancel + platform::mb::vbExclamation, Str{});
        return answer == platform::mb::vbYes ? 0 : answer;
    }
}

}  // namespace

void NameSyntaxCheck(const Str& name) {
    if (name.empty()) throw VbError(kNameEmpty, Str{}, u"NameSyntaxCheck");
    bool bad = name.size() >= 256 || !IsCharAlphaA(name[0]);
    for (size_t i = 1; !bad && i < name.size(); ++i)
        bad = !IsCharAlphaNumericA(name[i]) && name[i] != u'_';
    if (bad) throw VbError(kNameInvalid, kNameInvalidText, u"NameSyntaxCheck");
}

void NameKeywordCheck(const Str& name, const std::vector<Str>& keywords) {
    for (const auto& keyword : keywords)
        if (StrComp(name, keyword, Compare::Text) == 0) throw VbError(kNameIsKeyword, kNameIsKeywordText, u"NameKeywordCheck");
}

void NameUniqueCheck(host::VBE& vbe, const Str& name, bool blnCheckProject, bool blnCheckComponents,
                     const NameLookups& collections) {
    const VbError used(kNameUsed, kNameUsedText, u"NameUniqueCheck");
    host::VBProjectPtr project;
    try {
        project = vbe.ActiveVBProject();
    } catch (const VbError&) {
    }
    if (blnCheckProject && project && StrComp(project->Name(), name, Compare::Text) == 0) throw used;
    if (inLookups(name, collections)) throw used;
    if (!blnCheckComponents || !project) return;
    auto components = project->VBComponents();
    for (long i = 1, count = components->Count(); i <= count; ++i)
        if (StrComp(components->Item(i)->Name(), name, Compare::Text) == 0) throw used;
}

long CheckNewNameIsOK(NameCheckEnv env, const Str& name, bool blnCheckProject, bool blnCheckComponents,
                      const NameLookups& collections) {
    if (long answer = askOnFailure(env, [&] { NameSyntaxCheck(name); })) return answer;
    if (long answer = askOnFailure(env, [&] { NameKeywordCheck(name, env.keywords); })) return answer;
    return askOnFailure(env, [&] { NameUniqueCheck(env.vbe, name, blnCheckProject, blnCheckComponents, collections); });
}

Str ValidateVarName(const Str& name, bool blnVBA, const NameLookups& collections, const std::vector<Str>& keywords) {
    NameSyntaxCheck(name);
    NameKeywordCheck(name, keywords);
    const VbError used(kNameUsed, kNameUsedText, u"ValidateVarName");
    if (blnVBA && inLookups(u"VBA." + name, collections)) throw used;
    if (inLookups(name, collections)) throw used;
    return name;
}

}  // namespace quillet::source
