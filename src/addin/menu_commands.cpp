#include "addin/menu_commands.h"

#include "addin/command_table.h"
#include "addin/core_names.h"
#include "core/err_handler.h"
#include "basic/strings.h"
#include "basic/variant.h"

namespace quillet::addin {

namespace {

constexpr char16_t kWhere[] = u"basCommandBar.AddMenuCommand";

// The face through Picture and Mask where the Office has them; through the clipboard and
// PasteFace (no mask) where it does not.
void faceSet(Context& ctx, host::CommandBarControl& control, long faceId) {
    auto& platform = ctx.Platform();
    bool named = ignoringErrors([&] { (void)basic::TypeName(basic::Variant(control.Picture())); });
    bool pictureSet = named && ignoringErrors([&] {
        control.Picture(platform.FacePicture(faceId, false));
        control.Mask(platform.FacePicture(faceId, true));
    });
    if (pictureSet) return;
    ignoringErrors([&] {
        platform.ClipboardClear();
        platform.ClipboardSetFace(faceId);
        control.PasteFace();
    });
}

void faceCopy(Context& ctx, host::CommandBarControl& control, long copyFaceId) {
    ctx.Platform().ClipboardClear();
    auto original = ctx.VBInstance->CommandBars()->FindControl(0, copyFaceId);
    if (!original) throw basic::VbError::standard(basic::err::ObjectNotSet);
    original->CopyFace();
    control.PasteFace();
}

Str tooltipText(const Str& tooltip) {
    return basic::IsNumeric(tooltip) ? LoadResString(static_cast<long>(basic::CLng(tooltip))) : tooltip;
}

}  // namespace

host::CommandBarControlPtr AddMenuCommand(Context& ctx, const host::CommandBarPtr& cbar, long id, long type,
                                          bool blnBeginGroup, long faceId, const host::CommandBarControlPtr& parent,
                                          const Str& tooltip, bool blnWithCaption, long copyFaceId) {
    ctx.Platform().DoEvents();
    Str caption = LoadResString(id);
    auto target = parent ? parent->Controls() : cbar->Controls();
    host::CommandBarControlPtr control = target->Add(type);
    if (!control) throw basic::VbError::standard(basic::err::ObjectNotSet);

    if (faceId != 0) faceSet(ctx, *control, faceId);
    if (copyFaceId != 0) guarded(ctx, kWhere, [&] { faceCopy(ctx, *control, copyFaceId); });
    guarded(ctx, kWhere, [&] { control->BeginGroup(blnBeginGroup); });
    guarded(ctx, kWhere, [&] { control->Caption(caption); });

    bool hasFace = faceId != 0 || copyFaceId != 0;
    if (hasFace && (parent || blnWithCaption))
        guarded(ctx, kWhere, [&] { control->Style(host::msoButtonIconAndCaption); });
    else if (faceId != 0)
        guarded(ctx, kWhere, [&] { control->Style(host::msoButtonIcon); });

    guarded(ctx, kWhere, [&] { control->Tag(parent ? parent->Tag() + u" " + caption : caption); });
    if (!tooltip.empty()) guarded(ctx, kWhere, [&] { control->TooltipText(tooltipText(tooltip)); });
    return control;
}

}  // namespace quillet::addin
