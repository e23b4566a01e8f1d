#pragma once
// Realistic Basic modules at volume, for the scanners' stress test and the scan benchmark: every
// declaration form, continued lines, comments, strings holding quotes, apostrophes and colons,
// properties, enums, types, Declare statements, labels and line numbers. Deterministic: the same
// seed gives the same modules. Written for this project; no code of other projects is copied.

#include <random>
#include <string>
#include <vector>

namespace quillet::testing {

struct GeneratedModule {
    std::string name;
    bool isClass = false;
    std::vector<std::string> lines;
    // What the project scan must find of it.
    std::vector<std::string> publicVariables, publicConstants, publicEnums, publicProcedures;
};

class BasicGenerator {
public:
    explicit BasicGenerator(unsigned seed) : random_(seed) {}

    // A module of roughly `targetLines` lines.
    GeneratedModule module(int index, int targetLines = 100) {
        GeneratedModule m;
        m.isClass = pick(5) == 0;
        m.name = (m.isClass ? "clsItem" : "basModule") + std::to_string(index);
        prefix_ = "m" + std::to_string(index) + "_";
        declarations(m);
        int procedure = 0;
        while (static_cast<int>(m.lines.size()) < targetLines) procedureOf(m, procedure++);
        return m;
    }

private:
    int pick(int n) { return std::uniform_int_distribution<int>(0, n - 1)(random_); }
    std::string name(const std::string& stem) { return stem + prefix_ + std::to_string(++counter_); }
    const char* type() {
        static const char* types[] = {"Long", "String", "Integer", "Double", "Boolean", "Date", "Variant",
                                      "Currency", "Byte", "Object", "Collection", "Single"};
        return types[pick(12)];
    }
    std::string stringLiteral() {
        static const char* texts[] = {"\"It's a \"\"quoted\"\" text\"", "\"Time: 10:30\"", "\"C:\\Data\\file.txt\"",
                                      "\"a, b, c\"", "\"Rem: not a comment\"", "\"\"", "\"Don't: stop\""};
        return texts[pick(7)];
    }

    void declarations(GeneratedModule& m) {
        m.lines.push_back("Option Explicit");
        if (pick(2)) m.lines.push_back("Option Compare Text");
        m.lines.push_back("' " + m.name + ": generated for the scanners' tests");
        m.lines.push_back("'   it's got an apostrophe: and a colon");
        for (int i = 0, n = 3 + pick(6); i < n; ++i) declaration(m);
        m.lines.push_back("");
    }

    void declaration(GeneratedModule& m) {
        switch (pick(10)) {
            case 0: {  // public variables, several on a line
                std::string a = name("g"), b = name("g");
                m.lines.push_back("Public " + a + " As " + type() + ", " + b + "(1 To 10) As Long");
                if (!m.isClass) m.publicVariables.insert(m.publicVariables.end(), {a, b});
                break;
            }
            case 1: {
                std::string a = name("s");
                m.lines.push_back("Private " + a + "$, n" + a + "%, " + name("o") + " As New Collection");
                break;
            }
            case 2: {
                std::string c = name("c");
                m.lines.push_back("Public Const " + c + " As String = " + stringLiteral() + " ' note: ok");
                if (!m.isClass) m.publicConstants.push_back(c);
                break;
            }
            case 3: {  // continued constant list
                std::string a = name("k"), b = name("k");
                m.lines.push_back("Private Const " + a + " As Long = 1, _");
                m.lines.push_back("    " + b + " As Long = &H10");
                break;
            }
            case 4: {
                std::string e = name("e");
                m.lines.push_back(std::string(pick(2) ? "Public " : "") + "Enum " + e);
                for (int i = 0, n = 1 + pick(5); i < n; ++i)
                    m.lines.push_back("    " + e + "Item" + std::to_string(i) + (pick(2) ? " = " + std::to_string(i * 2) : ""));
                m.lines.push_back("End Enum");
                m.publicEnums.push_back(e);
                break;
            }
            case 5:
                if (m.isClass) break;
                m.lines.push_back("Public Type " + name("T"));
                m.lines.push_back("    Left As Long");
                m.lines.push_back("    Caption As String * 20");
                m.lines.push_back("    Values() As Double");
                m.lines.push_back("End Type");
                break;
            case 6:
                m.lines.push_back(std::string(m.isClass ? "Private" : "Public") + " Declare PtrSafe Function " +
                                  name("Api") + " Lib \"kernel32\" Alias \"GetTickCount\" _");
                m.lines.push_back("    (ByVal hWnd As LongPtr, ByRef lpData As Any) As Long");
                break;
            case 7: m.lines.push_back("Dim " + name("d") + ", " + name("d") + " As Long, " + name("d") + "$"); break;
            case 8: m.lines.push_back("Global " + name("gl") + " As " + type() + " ' global: old style"); break;
            default: m.lines.push_back("Private WithEvents " + name("app") + " As Application"); break;
        }
    }

    std::string arguments() {
        static const char* forms[] = {"", "ByVal amount As Double", "ByRef text As String, Optional ByVal n As Long = 5",
                                      "Optional note As String = \"a, b: c\"", "ParamArray values() As Variant",
                                      "ByVal a As Long, ByVal b%, c() As String"};
        return forms[pick(6)];
    }

    void procedureOf(GeneratedModule& m, int index) {
        std::string p = "Proc" + prefix_ + std::to_string(index);
        int kind = pick(6);
        bool isPublic = pick(3) != 0;
        std::string access = isPublic ? "Public " : "Private ";
        std::string keyword;
        m.lines.push_back("' " + p + ": what it does, isn't it?");
        if (kind == 0) {
            keyword = "Property";
            m.lines.push_back(access + "Property Get " + p + "() As Long");
        } else if (kind == 1) {
            keyword = "Function";
            m.lines.push_back(access + "Function " + p + "(" + arguments() + ") _");
            m.lines.push_back("    As " + std::string(type()));
        } else {
            keyword = "Sub";
            m.lines.push_back(access + "Sub " + p + "(" + arguments() + ")");
        }
        if (isPublic && !m.isClass) m.publicProcedures.push_back(p);
        body(m, keyword);
        m.lines.push_back("End " + keyword);
        if (kind == 0) {
            m.lines.push_back("");
            m.lines.push_back(access + "Property Let " + p + "(ByVal vNew As Long)");
            m.lines.push_back("    m" + p + " = vNew");
            m.lines.push_back("End Property");
        }
        m.lines.push_back("");
    }

    void body(GeneratedModule& m, const std::string& keyword) {
        m.lines.push_back("    Dim i As Long, s As String, arr(0 To 3) As Variant");
        m.lines.push_back("    Static calls As Long");
        m.lines.push_back("    Const cstrProcedure As String = " + stringLiteral());
        m.lines.push_back("    On Error GoTo HandleError");
        m.lines.push_back("");
        for (int i = 0, n = 2 + pick(5); i < n; ++i) {
            switch (pick(8)) {
                case 0: m.lines.push_back("    s = \"Total: \" & i: i = i + 1 ' two statements: one line"); break;
                case 1: m.lines.push_back("    If i > 3 Then Exit " + keyword); break;
                case 2:
                    m.lines.push_back("    Select Case i");
                    m.lines.push_back("        Case 1: s = \"one\"");
                    m.lines.push_back("        Case Else");
                    m.lines.push_back("    End Select");
                    break;
                case 3:
                    m.lines.push_back("    MsgBox \"Can't go on: \" & _");
                    m.lines.push_back("        s, vbCritical, \"Title's here\"");
                    break;
                case 4:
                    m.lines.push_back("10  Dim n As Long");
                    m.lines.push_back("20  n = n + 1: GoSub Again");
                    break;
                case 5: m.lines.push_back("    Debug.Print \"'not a comment'\" ' but this is: yes"); break;
                case 6:
                    m.lines.push_back("    For i = 1 To 10");
                    m.lines.push_back("        If i = 5 Then");
                    m.lines.push_back("            Exit " + keyword);
                    m.lines.push_back("        End If");
                    m.lines.push_back("    Next i");
                    break;
                default: m.lines.push_back("    Rem an old comment: with a colon"); break;
            }
        }
        m.lines.push_back("ExitHandler:");
        m.lines.push_back("    Exit " + keyword);
        m.lines.push_back("Again:");
        m.lines.push_back("    Return");
        m.lines.push_back("HandleError:");
        m.lines.push_back("    Resume ExitHandler");
    }

    std::mt19937 random_;
    std::string prefix_;
    int counter_ = 0;
};

}  // namespace quillet::testing
