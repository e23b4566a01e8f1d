#pragma once
// The quick commands that need nothing but the text at the caret: single statements, With,
// If and loop blocks.

#include "addin/core_names.h"
#include "core/context.h"

namespace quillet::addin {

// CodeInsert(text, blnInLine, blnBlank): one statement at the caret. A blank line takes it at
// the caret's column; with blnInLine some commands put it into the line; otherwise it goes on
// a new line below.
void CodeInsert(Context& ctx, const Str& text, bool blnInLine = true, bool blnBlank = true);
// WithCodeInsert(var): With var / body / End With at the caret's indent.
void WithCodeInsert(Context& ctx, const Str& var);
// IfCodeInsert(command): "If Then", "End If", "If Then Else", "If Then Else If", "If Then ElseIf Else".
void IfCodeInsert(Context& ctx, const Str& command);
// LoopCodeInsert(command): "IfDoLoopWhile", "IfDoLoopUntil", "ForEachNext", "ForNext", "While".
void LoopCodeInsert(Context& ctx, const Str& command);

// The texts of the blocks (the add-in's string resources 301 to 316).
namespace text {
inline constexpr char16_t IfThen[] = u"If Then";          // 301
inline constexpr char16_t Else[] = u"Else";               // 302
inline constexpr char16_t ElseIfThen[] = u"ElseIf Then";  // 303
inline constexpr char16_t EndIf[] = u"End If";            // 304
inline constexpr char16_t DoWhile[] = u"Do While";        // 309
inline constexpr char16_t DoUntil[] = u"Do Until";        // 310
inline constexpr char16_t Loop[] = u"Loop";               // 311
inline constexpr char16_t ForEachIn[] = u"For Each In";   // 312
inline constexpr char16_t ForTo[] = u"For To";            // 313
inline constexpr char16_t Next[] = u"Next";               // 314
inline constexpr char16_t While[] = u"While";             // 315
inline constexpr char16_t Wend[] = u"Wend";               // 316
}  // namespace text

}  // namespace quillet::addin
