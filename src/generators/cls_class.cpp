// The class model's text and its module.

#include "generators/cls_class.h"

#include "core/caret.h"
#include "core/err_handler.h"
#include "fragments/placeholders.h"
#include "fragments/set_cursor.h"
#include "host/project_mode.h"
#include "settings/ini_vars.h"
#include "source/literals.h"

namespace quillet::generators {

namespace {

constexpr char16_t kCrLf[] = u"\r\n";

}  // namespace

colProperties& clsClass::Properties() {
    if (!Properties_) Properties_ = std::make_unique<colProperties>();
    return *Properties_;
}

colProcedures& clsClass::Methods() {
    if (!Methods_) Methods_ = std::make_unique<colProcedures>();
    return *Methods_;
}

void clsClass::GenerateCode(Str& text) {
    text.clear();
    core::guarded(*ctx_, u"clsClass.GenerateCode", [&] {
        // Nothing in this build asks for a New in Class_Initialize, so the list stays empty.
        std::vector<clsPropertyPtr> initialized;
        Str desc = Description.empty() ? Str() : kCrLf + source::WrapText(Description);
        Str r = fragments::ExpandHeader(*ctx_, fragments::kModuleHeader, Name, desc);
        if (ModuleNameConstant) {
            Str constant = settings::IniText(*ctx_->IniSettings, settings::iiModuleNameConstant);
            r += u"Private " + Str(u"Const") + u" " + constant + u" As String = \"" + Name + u"\"" + kCrLf;
        }
        for (const auto& property : Properties().Items) r += property->Declaration() + kCrLf;
        text = r;
        for (const auto& property : Properties().Items) {
            property->ModuleName = Name;
            Str code;
            property->PropertyProceduresCodeCreate(property->GetPart, property->SetPart, code);
            text += code;
        }
        for (const auto& method : Methods().Items) {
            method->ModuleName = Name;
            text += method->GenerateCode() + kCrLf;
        }
        if (!initialized.empty()) {
            Str initialize;
            ClassInitializeCode(initialized, initialize);
            text += initialize + kCrLf;
        }
    });
}

void clsClass::ClassInitializeCode(const std::vector<clsPropertyPtr>& list, Str& text) {
    Str indent = core::TabSpaces(*ctx_);
    // The declaration ends its line, so that each Set stands on a line of its own.
    text = Str(kCrLf) + u"Private Sub Class_Initialize()" + kCrLf;
    for (const auto& property : list) text += indent + u"Set " + property->Name + u" = New " + property->datatype + kCrLf;
    text += Str(kCrLf) + kCrLf + u"End Sub" + kCrLf;
}

void clsClass::Create(const host::VBProjectPtr& objVBProject) {
    core::guarded(*ctx_, u"clsClass.Create", [&] {
        if (!objVBProject) return;
        if (host::ProjectMode(*objVBProject) != host::vbext_vm_Design) return;
        Str text;
        GenerateCode(text);
        text = basic::Replace(text, u"<cursor>", u"", 1, -1, basic::Compare::Text);
        auto components = objVBProject->VBComponents();
        auto comp = components->Add(host::vbext_ct_ClassModule);
        try {
            comp->Name(Name);
        } catch (...) {
            // A name the editor refuses leaves no empty class behind.
            core::ignoringErrors([&] { components->Remove(comp); });
            throw;
        }
        comp->CodeModule()->AddFromString(text);
        if (MakeCollectionClass) {
            bool ok = false;
            CollectionClassModuleAdd(ok);
        }
        fragments::SetCursor(*ctx_, 1, false);
    });
}

}  // namespace quillet::generators
