#pragma once
// A late-bound object, reached by member name as Basic reaches an Object: the host
// application objects (Excel, Word, Access), tool window documents, designers, pictures.

#include <memory>
#include <vector>

#include "basic/variant.h"

namespace quillet::basic {

using Args = std::vector<Variant>;

class Dispatch {
public:
    virtual ~Dispatch() = default;
    // Basic's TypeName of the object ("Application", "Workbook" ...).
    virtual Str TypeName() const = 0;
    // obj.member(args...) read as a property or called as a method; a member the object
    // lacks raises 438.
    virtual Variant Get(const Str& member, const Args& args = {}) = 0;
    virtual void Put(const Str& member, const Variant& value, const Args& args = {}) = 0;
    virtual Variant Call(const Str& member, const Args& args = {}) = 0;
};

}  // namespace quillet::basic
