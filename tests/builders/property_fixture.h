#pragma once
// The builders' project with what the property builders need: the Property Builder's options
// off, the module prefix "m" and the type prefixes of Long, String, Boolean and Collection.

#include "../generators/collection_template.h"
#include "builder_fixture.h"

namespace quillet::testing {

class PropertyFixture : public BuilderFixture {
protected:
    // The collection class template and what importing it needs.
    void collectionClassReady() { testing::collectionClassReady(*vbe, *platform, settings(), dir); }

    PropertyFixture() { applySetup(propertyScriptSetup()); }
};

}  // namespace quillet::testing
