#pragma once
// Writing a file so that a reader sees the old bytes or the new ones, never a half-written file:
// the bytes go to a temporary file in the same folder, which is flushed, then renamed over the
// target.

#include <filesystem>
#include <string_view>

namespace quillet::hosts::files {

// Throws ProjectError when the file cannot be written; the target is then left as it was and no
// temporary file stays behind.
void writeFileAtomically(const std::filesystem::path& target, std::string_view bytes);

}  // namespace quillet::hosts::files
