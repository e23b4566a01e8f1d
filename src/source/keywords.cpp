#include "source/keywords.h"

namespace quillet::source {

std::vector<std::u16string> keywordList() {
    return {u"As",       u"Binary",   u"ByRef",   u"ByVal",    u"Date",       u"Else",     u"Empty",
            u"Error",    u"False",    u"For",     u"Friend",   u"Get",        u"Input",    u"Is",
            u"Len",      u"Let",      u"Lock",    u"Me",       u"Mid",        u"New",      u"Next",
            u"Nothing",  u"Null",     u"On",      u"Option",   u"Optional",   u"ParamArray", u"Print",
            u"Private",  u"Property", u"Public",  u"Resume",   u"Seek",       u"Set",      u"Static",
            u"Step",     u"String",   u"Then",    u"Time",     u"To",         u"True",     u"WithEvents",
            u"Declare",  u"Enum",     u"Type",    u"Byte",     u"Long",       u"Collection", u"Boolean",
            u"Double",   u"Single",   u"Integer", u"Object",   u"Variant",    u"Dim",      u"Const",
            u"Function", u"Sub",      u"With",    u"Select",   u"If",         u"ElseIf",   u"End",
            u"Exit",     u"While",    u"GoTo",    u"Each",     u"Loop",       u"And",      u"Or",
            u"Case",     u"Erase",    u"Redim",   u"Until",    u"Wend",       u"Debug",    u"Rem"};
}

}  // namespace quillet::source
