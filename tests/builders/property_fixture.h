#pragma once
// The builders' project with what the property builders need: the Property Builder's options
// off, the module prefix "m" and the type prefixes of Long, String, Boolean and Collection.

#include "../generators/collection_template.h"
#include "builder_fixture.h"
#include "source/prefixes.h"

namespace quillet::testing {

class PropertyFixture : public BuilderFixture {
public:
    // Every script of a sub-folder of tests/builders/scripts, in name order.
    static std::vector<std::string> scriptsIn(const std::string& folder);

protected:
    // The collection class template and what importing it needs.
    void collectionClassReady() { testing::collectionClassReady(*vbe, *platform, settings(), dir); }

    PropertyFixture() {
        settings().IniItemValue[settings::iiAddPropertyConstant] = false;
        settings().IniItemValue[settings::iiAddModuleConstantProperty] = false;
        set(settings::iiAddErrorHandlingProperty, u"");
        set(settings::iiPrefixModule, u"m");
        ctx->Prefixes = source::PrefixesCollectionsCreate(source::PrefixSettings{},
                                                          {{u"Long", u"lng", u"", u"", u""},
                                                           {u"String", u"str", u"", u"", u""},
                                                           {u"Boolean", u"bln", u"", u"", u""},
                                                           {u"Collection", u"col", u"", u"", u""}});
    }
};

}  // namespace quillet::testing
