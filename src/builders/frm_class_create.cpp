// The Class Builder's Create: both names checked, then the class made in the project.

#include "core/err_handler.h"
#include "core/command_env.h"
#include "builders/frm_class.h"
#include "source/code_env.h"
#include "source/name_checks.h"

namespace quillet::builders {

// 0 lets the name through; Cancel (2) closes the dialog; No, or a missing name, sends the focus
// to the box that holds it. `otherName`, when given, counts as taken (the class and its
// collection class need two names).
bool frmClass::nameAccepted(const Str& name, const Str& control, const Str& otherName) {
    source::NameCheckEnv env{*ctx_.VBInstance, ctx_.Platform(), ctx_.Keywords};
    source::NameLookups lookups;
    if (!otherName.empty())
        lookups.push_back([otherName](const Str& key) { return basic::StrComp(key, otherName, basic::Compare::Text) == 0; });
    long answer = source::CheckNewNameIsOK(env, name, false, true, lookups);
    if (answer == 0) return true;
    if (answer == 2) {
        Unload();
        return false;
    }
    Controls(u"TabMain").ListIndex(0);
    FocusedControl = control;
    return false;
}

bool frmClass::cmdCreate_Click() {
    Str name = ClassName();
    if (!nameAccepted(name, u"txtClassName", {})) return false;
    bool collection = Controls(u"chkMakeColClass").Value() == dialogs::vbChecked;
    Str collectionName = basic::Trim(Controls(u"txtColClassName").Text());
    if (collection && !nameAccepted(collectionName, u"txtColClassName", name)) return false;
    auto& c = *class_;
    c.Name = name;
    c.Description = Controls(u"txtDescription").Text();
    c.MakeCollectionClass = collection;
    c.CollectionClassName = collection ? collectionName : Str();
    c.Create(ctx_.VBInstance->ActiveVBProject());
    return true;
}

void OpenClassBuilder(core::Context& ctx, const std::vector<Str>&) {
    core::guarded(ctx, u"frmClass.Open", [&] {
        core::ProjectRefresh(ctx);
        auto& form = ctx.Forms->Adopt(std::make_unique<frmClass>(ctx));
        form.Init();
        form.Show(ctx.ShowMode);
    });
}

}  // namespace quillet::builders
