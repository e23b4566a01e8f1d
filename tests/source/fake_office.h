#pragma once
// Fake Office application objects reached by member name: a property bag whose members may be
// collections (Count, Item by number or by name) or computed on each read.

#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "basic/dispatch.h"
#include "basic/strings.h"

namespace quillet::testing {

class FakeObject : public basic::Dispatch {
public:
    explicit FakeObject(basic::Str typeName = u"Object") : typeName_(std::move(typeName)) {}

    basic::Str TypeName() const override { return typeName_; }
    basic::Variant Get(const basic::Str& member, const basic::Args& args = {}) override {
        basic::Str key = basic::UCase(member);
        if (key == u"COUNT" && isCollection_) return static_cast<long long>(items_.size());
        if (key == u"ITEM" && isCollection_) return item(args);
        if (auto computed = computed_.find(key); computed != computed_.end()) return computed->second();
        auto found = properties_.find(key);
        if (found == properties_.end()) throw basic::VbError::standard(438);
        return found->second;
    }
    void Put(const basic::Str& member, const basic::Variant& value, const basic::Args& = {}) override {
        properties_[basic::UCase(member)] = value;
    }
    basic::Variant Call(const basic::Str& member, const basic::Args& args = {}) override { return Get(member, args); }

    // A member computed on each read.
    void compute(const basic::Str& member, std::function<basic::Variant()> read) {
        computed_[basic::UCase(member)] = std::move(read);
    }
    // Makes this a collection of the items, found by number or by their Name.
    void holds(std::vector<std::shared_ptr<FakeObject>> items) {
        isCollection_ = true;
        items_ = std::move(items);
    }

private:
    basic::Variant item(const basic::Args& args) {
        if (args.empty()) throw basic::VbError::standard(450);
        if (auto* text = std::get_if<basic::Str>(&args[0])) {
            for (auto& entry : items_)
                if (basic::StrComp(basic::CStr(entry->Get(u"Name")), *text, basic::Compare::Text) == 0)
                    return basic::DispatchPtr(entry);
            throw basic::VbError::standard(9);
        }
        long long index = basic::CLng(args[0]);
        if (index < 1 || index > static_cast<long long>(items_.size())) throw basic::VbError::standard(9);
        return basic::DispatchPtr(items_[index - 1]);
    }

    basic::Str typeName_;
    std::map<basic::Str, basic::Variant> properties_;
    std::map<basic::Str, std::function<basic::Variant()>> computed_;
    std::vector<std::shared_ptr<FakeObject>> items_;
    bool isCollection_ = false;
};

inline std::shared_ptr<FakeObject> named(const basic::Str& typeName, const basic::Str& name) {
    auto object = std::make_shared<FakeObject>(typeName);
    object->Put(u"Name", name);
    return object;
}

inline std::shared_ptr<FakeObject> collectionOf(std::vector<std::shared_ptr<FakeObject>> items) {
    auto collection = std::make_shared<FakeObject>(u"Collection");
    collection->holds(std::move(items));
    return collection;
}

// Excel with an active workbook holding the names.
inline std::shared_ptr<FakeObject> fakeExcel(const basic::Str& fullName, const basic::Str& name,
                                             const std::vector<basic::Str>& names) {
    auto workbook = named(u"Workbook", name);
    workbook->Put(u"FullName", fullName);
    std::vector<std::shared_ptr<FakeObject>> items;
    for (const auto& n : names) items.push_back(named(u"Name", n));
    workbook->Put(u"Names", basic::DispatchPtr(collectionOf(items)));
    auto excel = std::make_shared<FakeObject>(u"Application");
    excel->Put(u"ActiveWorkbook", basic::DispatchPtr(workbook));
    return excel;
}

}  // namespace quillet::testing
