// The collection class: the template file with the class's names filled in, written to the
// temporary folder and imported, so that its attributes (the default member, the enumerator)
// come along as only an import can set them.

#include "core/caret.h"
#include "core/err_handler.h"
#include "fragments/placeholders.h"
#include "generators/cls_class.h"
#include "settings/cls_file.h"
#include "settings/code_folders.h"

namespace quillet::generators {

namespace {

using basic::Compare;

// The part of the path behind its last "\".
Str fileNameOf(const Str& path) { return basic::Mid(path, basic::InStrRev(path, u"\\") + 1); }

}  // namespace

Str clsClass::collectionClassText(const Str& path) {
    settings::clsFile file(*ctx_->IniSettings, path);
    file.Silent(true);
    Str t = file.Contents();
    if (t.empty()) return t;
    t = basic::Replace(t, u"{MODULENAME}", CollectionClassName, 1, -1, Compare::Text);
    t = basic::Replace(t, u"{BASECLASSNAME}", Name, 1, -1, Compare::Text);
    Str indent = core::TabSpaces(*ctx_);
    if (indent != u"    ") t = basic::Replace(t, u"    ", indent, 1, -1, Compare::Binary);
    if (basic::InStr(1, t, u"{MODULEHEADER}", Compare::Text) > 0) {
        Str header = fragments::ExpandHeader(*ctx_, fragments::kModuleHeader, CollectionClassName,
                                             u"Collection Class for " + Name);
        t = basic::Replace(t, u"{MODULEHEADER}", header, 1, -1, Compare::Text);
    }
    return t;
}

// The editor imports under a changed name when the template's name is taken; the rename to the
// collection class's name then fails, and the imported copy goes again.
void clsClass::importedRename(const host::VBComponentsPtr& components, const host::VBComponentPtr& comp) {
    try {
        comp->Name(CollectionClassName);
    } catch (...) {
        core::ignoringErrors([&] { components->Remove(comp); });
        throw;
    }
}

void clsClass::CollectionClassModuleAdd(bool& ok) {
    ok = false;
    core::guarded(*ctx_, u"clsClass.CollectionClassModuleAdd", [&] {
        auto& settings = *ctx_->IniSettings;
        Str path = settings::CollectionClassTemplate(settings);
        if (path.empty()) return;
        Str t = collectionClassText(path);
        if (t.empty()) return;
        settings::clsFile temporary(settings, settings::AddBackslash(ctx_->Platform().TempFolder()) + fileNameOf(path));
        temporary.Silent(true);
        temporary.Contents(t);
        if (temporary.Error()) throw basic::VbError::standard(temporary.Error());
        auto components = ctx_->VBInstance->ActiveVBProject()->VBComponents();
        try {
            auto comp = components->Import(temporary.FullName());
            importedRename(components, comp);
        } catch (...) {
            temporary.Delete();
            throw;
        }
        temporary.Delete();
        ok = true;
    });
}

}  // namespace quillet::generators
