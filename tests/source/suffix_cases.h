#pragma once
// The type-suffix characters and the return types they give.

#include <utility>
#include <vector>

#include "basic/strings.h"

namespace quillet::testing {

inline const std::vector<std::pair<basic::Str, basic::Str>>& typeSuffixCases() {
    static const std::vector<std::pair<basic::Str, basic::Str>> cases = {
        {u"$", u"String"}, {u"%", u"Integer"}, {u"&", u"Long"}, {u"!", u"Single"}, {u"#", u"Double"}, {u"@", u"Currency"}};
    return cases;
}

}  // namespace quillet::testing
