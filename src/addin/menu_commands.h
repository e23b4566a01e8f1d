#pragma once
// AddMenuCommand: one control of the add-in's bars, with its caption, face, style, tag and
// tool tip.

#include "addin/core_names.h"
#include "core/context.h"

namespace quillet::addin {

// AddMenuCommand(cbar, id, type, blnBeginGroup, faceId, parent, tooltip, blnWithCaption,
// copyFaceId): a new control on `cbar`, or in `parent` (a pop-up) when given. Its caption is
// the string resource `id`; `faceId` a face of the add-in, `copyFaceId` the id of an editor's
// control whose face is copied; `tooltip` a text, or digits naming a string resource.
// The Tag is the caption on the bar and the parent's Tag, " " and the caption under a pop-up,
// so no two controls share one. A control that cannot be added raises; a later step that
// fails is reported and the others still run.
host::CommandBarControlPtr AddMenuCommand(Context& ctx, const host::CommandBarPtr& cbar, long id,
                                          long type = host::msoControlButton, bool blnBeginGroup = false,
                                          long faceId = 0, const host::CommandBarControlPtr& parent = nullptr,
                                          const Str& tooltip = {}, bool blnWithCaption = false, long copyFaceId = 0);

}  // namespace quillet::addin
