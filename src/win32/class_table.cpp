#include "win32/class_table.h"

namespace quillet::win32 {

namespace {

constexpr bool kIs64Bit = sizeof(void*) == 8;
constexpr wchar_t kDescription[] =
    L"Quillet writes Basic code for you: procedures, properties, classes, declarations and code fragments.";
constexpr wchar_t kConnectorDescription[] = L"Add-In Project Template";

std::vector<AddinEntry> connectEntries() {
    if (kIs64Bit) {
        return {{L"Software\\Microsoft\\VBA\\VBE\\6.0\\Addins64\\Quillet.Connect", L"Quillet", kDescription, 3, false,
                 false}};
    }
    return {
        {L"Software\\Microsoft\\VBA\\VBE\\6.0\\Addins\\Quillet.Connect", L"Quillet", kDescription, 3, false, false},
        {L"Software\\Microsoft\\Visual Basic\\6.0\\Addins\\Quillet.Connect", L"Quillet", kDescription, 3, true, false},
    };
}

}  // namespace

const std::vector<ComClassInfo>& comClasses() {
    static const std::vector<ComClassInfo> classes = {
        {&kClsidConnect, L"Quillet.Connect", connectEntries()},
        {&kClsidExcelConnect,
         L"Quillet.ExcelConnect",
         {{L"Software\\Microsoft\\Office\\Excel\\Addins\\Quillet.ExcelConnect", L"Quillet2Excel", kConnectorDescription,
           3, false, true}}},
        {&kClsidWordConnect,
         L"Quillet.WordConnect",
         {{L"Software\\Microsoft\\Office\\Word\\Addins\\Quillet.WordConnect", L"Quillet2Word", kConnectorDescription, 3,
           false, true}}},
        {&kClsidAccessConnect,
         L"Quillet.AccessConnect",
         {{L"Software\\Microsoft\\Office\\Access\\Addins\\Quillet.AccessConnect", L"Quillet2Access",
           kConnectorDescription, 3, false, true}}},
    };
    return classes;
}

}  // namespace quillet::win32
