#pragma once
// Letters and digits as IsCharAlphaA and IsCharAlphaNumericA see them under the Windows-1252
// code page: a character that has no byte in the code page reaches them as "?" and is neither.

namespace quillet::source {

bool IsCharAlphaA(char16_t c);
bool IsCharAlphaNumericA(char16_t c);

}  // namespace quillet::source
