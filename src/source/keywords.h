#pragma once
// The Basic keywords a new name may not take.

#include <string>
#include <vector>

namespace quillet::source {

// The 77 keywords, in their fixed order.
std::vector<std::u16string> keywordList();

}  // namespace quillet::source
