#pragma once
// The model of a whole new class module: a description, properties, methods and, made from the
// collection class template, an optional collection class round it. GenerateCode writes the
// class's text; Create adds the module (and the collection class) to the project.

#include "generators/cls_procedure.h"
#include "generators/cls_property.h"

namespace quillet::generators {

class clsClass {
public:
    explicit clsClass(core::Context& ctx) : ctx_(&ctx) {}

    Str Name;
    Str Description;
    bool MakeCollectionClass = false;
    Str CollectionClassName;
    bool ModuleNameConstant = false;

    // Created at first use.
    colProperties& Properties();
    colProcedures& Methods();

    // Adds the class module, in design mode only, with the text of GenerateCode (markers taken
    // out), then the collection class when asked for. Failures are reported; the class module
    // stands even when the collection class cannot be made.
    void Create(const host::VBProjectPtr& objVBProject);
    // The module header, the module name constant, every property's declaration, then the
    // properties' procedures and the methods.
    void GenerateCode(Str& text);
    // The collection class from the template file through a temporary file and Import, so that
    // the template's attributes come along. False when it could not be made (a missing or empty
    // template is no error).
    void CollectionClassModuleAdd(bool& ok);
    // Class_Initialize with a New for each property of the list.
    void ClassInitializeCode(const std::vector<clsPropertyPtr>& list, Str& text);

private:
    Str collectionClassText(const Str& path);
    void importedRename(const host::VBComponentsPtr& components, const host::VBComponentPtr& comp);

    core::Context* ctx_;
    std::unique_ptr<colProperties> Properties_;
    std::unique_ptr<colProcedures> Methods_;
};

}  // namespace quillet::generators
