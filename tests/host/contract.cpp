#include "host/contract.h"

namespace quillet::host::contract {

CodeModulePtr HostContract::moduleOf(const VBEPtr& vbe, const Str& name) {
    return vbe->ActiveVBProject()->VBComponents()->Item(name)->CodeModule();
}

std::vector<Str> workedExampleLines() {
    return {
        u"Option Explicit",                              // 1
        u"Private m As Long",                            // 2
        u"",                                             // 3
        u"' Foo does things",                            // 4
        u"Public Sub Foo()",                             // 5
        u"    m = 1",                                    // 6
        u"End Sub",                                      // 7
        u"",                                             // 8
        u"'--- Bar",                                     // 9
        u"Public Property Get Bar() As Long",            // 10
        u"    Bar = m",                                  // 11
        u"End Property",                                 // 12
        u"",                                             // 13
        u"Public Property Let Bar(ByVal v As Long)",     // 14
        u"    m = v",                                    // 15
        u"End Property",                                 // 16
        u"",                                             // 17
        u"' trailing comment",                           // 18
        u"",                                             // 19
    };
}

Str joined(const std::vector<Str>& lines) {
    Str text;
    for (size_t i = 0; i < lines.size(); ++i) {
        if (i) text += u"\r\n";
        text += lines[i];
    }
    return text;
}

long errorOf(const std::function<void()>& call) {
    try {
        call();
    } catch (const basic::VbError& e) {
        return e.Number();
    }
    return 0;
}

}  // namespace quillet::host::contract
