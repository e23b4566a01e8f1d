#include "addin/command_table.h"

#include <algorithm>
#include <iterator>

#include "host/objects.h"
#include "platform/platform.h"

namespace quillet::addin {

namespace {

using A = CommandAction;

struct StringResource {
    long id;
    const char16_t* text;
};

// The captions, by id. A caption may hold "&" for its access key; "&Debug.Print... " keeps its
// trailing blank.
constexpr StringResource kStrings[] = {
    {101, u"Add P&rocedure..."},
    {102, u"&Add Constant..."},
    {103, u"&Add Variable..."},
    {104, u"Add Cl&ass..."},
    {105, u"&Add Property..."},
    {106, u"Insert &Line Of Code..."},
    {109, u"&Settings..."},
    {110, u"Hel&p"},
    {111, u"&Contents..."},
    {115, u"&Website"},
    {116, u"&About..."},
    {117, u"&Check for New Version..."},
    {119, u"&Technical Support..."},
    {120, u"&Downloads..."},
    {121, u"&VB Directory..."},
    {122, u"&Quillet"},
    {123, u"&Variable"},
    {124, u"&Constant"},
    {125, u"&Property"},
    {127, u"&String..."},
    {128, u"B&yte..."},
    {129, u"&Boolean..."},
    {130, u"&Integer..."},
    {131, u"&Long..."},
    {132, u"Sin&gle..."},
    {133, u"&Double..."},
    {134, u"&Currency..."},
    {135, u"Da&te..."},
    {136, u"&Variant..."},
    {137, u"&Object..."},
    {138, u"Collectio&n..."},
    {139, u"&With..."},
    {140, u"&If"},
    {141, u"&Select"},
    {142, u"&For/While"},
    {143, u"W&hile"},
    {144, u"D&o"},
    {145, u"New &User-Defined Data Type..."},
    {146, u"Add Item to User-Defined Data Ty&pe..."},
    {147, u"New &Enum..."},
    {148, u"Add Constant to En&um..."},
    {149, u"&Error"},
    {150, u"On &Error GoTo..."},
    {151, u"On Error Resume &Next"},
    {152, u"On Error GoTo &0"},
    {153, u"&GoTo..."},
    {154, u"&Then"},
    {155, u"Then &Else"},
    {156, u"Then Else&If..."},
    {157, u"Then ElseIf El&se..."},
    {158, u"Ca&se..."},
    {159, u"Case &Else..."},
    {160, u"&From Enum..."},
    {161, u"Loop &While"},
    {162, u"Loop &Until"},
    {163, u"&Each Next"},
    {164, u"&Next"},
    {166, u"E&xit Procedure"},
    {167, u"&Add Error Handling"},
    {168, u"&Resume..."},
    {169, u"Case &UCase..."},
    {170, u"&Filename..."},
    {171, u"F&older..."},
    {172, u"Object In&ventory"},
    {177, u"&Add"},
    {178, u"&Remove"},
    {179, u"Insert &Objectname..."},
    {181, u"Insert Fragme&nt..."},
    {182, u"Insert Varia&ble..."},
    {183, u"Add C&ontrol..."},
    {184, u"I&mport File..."},
    {185, u"Export File..."},
    {186, u"&Tools"},
    {188, u"&Line Numbers"},
    {189, u"&Comment Lines"},
    {190, u"&Debug.Print... "},
    {193, u"Explicit Arg&ument..."},
    {194, u"View &Shortcuts and Search\u2026"},
    {195, u"View Code &Explorer\u2026"},
    {196, u"&Tip of the Day"},
    {197, u"&Quillet..."},
    {198, u"&Variable Builder..."},
    {199, u"&Line of Code Builder..."},
    {200, u"&Fragment Builder..."},
    {317, u"Resume Ne&xt"},
    {318, u"Re&sume"},
    {319, u"En&d If"},
    {320, u"E&xit For"},
    {401, u"&Procedure Builder..."},
};

// One row under construction: button(103, popup::Bar).face().opens(u"mnuhAddVariable", u"frmVar").
class Row {
public:
    Row(long id, long type, long parent) {
        row_.id = id;
        row_.type = type;
        row_.parentId = parent;
    }
    Row& group() {
        row_.beginGroup = true;
        return *this;
    }
    // Every face of the table carries the number of its caption.
    Row& face() {
        row_.faceId = row_.id;
        return *this;
    }
    Row& only(CommandCondition condition) {
        row_.condition = condition;
        return *this;
    }
    Row& does(const Str& handler, CommandAction action, const Str& name = {}, const Str& argument = {}) {
        row_.handler = handler;
        row_.action = action;
        row_.name = name;
        row_.argument = argument;
        return *this;
    }
    Row& quick(const Str& handler, const Str& command, const Str& type = {}) {
        return does(handler, A::Quick, command, type);
    }
    Row& opens(const Str& handler, const Str& routine, const Str& argument = {}) {
        return does(handler, A::Routine, routine, argument);
    }
    Row& web(const Str& handler, const Str& page) {
        row_.tooltip = page;
        return does(handler, A::WebPage);
    }
    operator CommandRow() const { return row_; }

private:
    CommandRow row_;
};

Row button(long id, long parent) { return Row(id, host::msoControlButton, parent); }
Row popupRow(long id, long parent) { return Row(id, host::msoControlPopup, parent); }
Row dropDown(long id, long parent) { return Row(id, host::msoControlDropdown, parent); }

struct TypeEntry {
    long id;
    const char16_t* type;
};
// The types of the Variable, Constant and Property pop-ups; the constants stop at Date.
constexpr TypeEntry kTypes[] = {
    {127, u"String"},  {128, u"Byte"},     {129, u"Boolean"}, {130, u"Integer"},
    {131, u"Long"},    {132, u"Single"},   {133, u"Double"},  {134, u"Currency"},
    {135, u"Date"},    {136, u"Variant"},  {137, u"Object"},  {138, u"Collection"},
};
constexpr size_t kConstantTypes = 9;

using Rows = std::vector<CommandRow>;

void addTypes(Rows& t, long parent, const Str& handlerPrefix, const Str& command, size_t count) {
    for (size_t i = 0; i < count; ++i)
        t.push_back(button(kTypes[i].id, parent).quick(handlerPrefix + kTypes[i].type, command, kTypes[i].type));
}

void addBar(Rows& t) {
    using namespace popup;
    t.push_back(button(103, Bar).face().opens(u"mnuhAddVariable", u"frmVar"));
    t.push_back(button(102, Bar).face().opens(u"mnuhAddConstant", u"frmConst"));
    t.push_back(button(105, Bar).face().opens(u"mnuhAddProperty", u"frmProperty"));
    t.push_back(button(182, Bar).face().quick(u"mnuhInsertVariable", u"Insert Variable"));
    t.push_back(button(101, Bar).group().face().opens(u"mnuhAddProcedure", u"frmProcedure"));
    t.push_back(button(104, Bar).face().opens(u"mnuhAddClass", u"frmClass"));
    t.push_back(button(106, Bar).group().face().opens(u"mnuhCodeLines", u"frmCodeLineTLI"));
    t.push_back(button(181, Bar).face().opens(u"mnuhFragmentAdd", u"frmFragments"));
    t.push_back(button(194, Bar).group().face().does(u"mnuhShortcutsAndSearch", A::ToggleShortcuts));
    t.push_back(button(195, Bar).face().does(u"mnuhCodeExplorer", A::ToggleCodeExplorer));
    t.push_back(popupRow(Quillet, Bar).group().does(u"mnuhQuillet", A::MenuState));
    t.push_back(popupRow(Help, Bar).group());
}

void addHelp(Rows& t) {
    using namespace popup;
    t.push_back(button(111, Help).face().does(u"mnuhHelpContents", A::HelpContents));
    t.push_back(popupRow(TipOfTheDay, Help));
    t.push_back(button(197, TipOfTheDay).opens(u"mnuhTipOfTheDayQuilletStartup", u"frmTip", u"Quillet_Startup"));
    t.push_back(button(198, TipOfTheDay).opens(u"mnuhTipOfTheDayVarBuilder", u"frmTip", u"VarBuilder"));
    t.push_back(button(199, TipOfTheDay).opens(u"mnuhTipOfTheDayCodelineBuilder", u"frmTip", u"CodeLineBuilder"));
    t.push_back(button(200, TipOfTheDay).opens(u"mnuhTipOfTheDayFragmentBuilder", u"frmTip", u"FragmentBuilder"));
    t.push_back(button(401, TipOfTheDay).opens(u"mnuhTipOfTheDayProcBuilder", u"frmTip", u"ProcBuilder"));
    t.push_back(button(109, Help).opens(u"mnuhSetting", u"frmSettings"));
    t.push_back(popupRow(Website, Help).group());
    t.push_back(button(116, Help).opens(u"mnuhAbout", u"frmAbout"));
    t.push_back(button(117, Website).web(u"mnuhWebSiteNewVersion", u"/download.htm"));
    t.push_back(button(119, Website).web(u"mnuhWebSiteSupport", u"/support.htm"));
    t.push_back(button(120, Website).web(u"mnuhWebSiteDownloads", u"/download.htm"));
    t.push_back(button(121, Website).web(u"mnuhWebSiteVBDir", u"/visual-basic-source-code/index.htm"));
}

void addQuillet(Rows& t) {
    using namespace popup;
    t.push_back(popupRow(Variable, Quillet));
    t.push_back(popupRow(Constant, Quillet));
    t.push_back(popupRow(Property, Quillet));
    t.push_back(button(182, Quillet).group().face().quick(u"mnuhQLTInsertVariable", u"Insert Variable"));
    t.push_back(button(179, Quillet)
                    .quick(u"mnuhInsertObjectname", u"Insert Objectname")
                    .only(CommandCondition::ObjectnameHost));
    t.push_back(button(193, Quillet).quick(u"mnuhQLTExplicitArgument", u"Explicit Argument"));
    t.push_back(button(139, Quillet).quick(u"mnuhWith", u"With"));
    t.push_back(button(106, Quillet).group().face().opens(u"mnuhQLTCodeLines", u"frmCodeLineTLI"));
    t.push_back(button(101, Quillet).face().opens(u"mnuhQLTAddProcedure", u"frmProcedure"));
    t.push_back(button(104, Quillet).face().opens(u"mnuhQLTAddClass", u"frmClass"));
    t.push_back(button(183, Quillet)
                    .face()
                    .opens(u"mnuhQLTAddControl", u"ControlsAddFormOpen")
                    .only(CommandCondition::TestingMode));
    t.push_back(popupRow(If, Quillet).group());
    t.push_back(popupRow(Select, Quillet));
    t.push_back(popupRow(ForWhile, Quillet));
    t.push_back(button(153, Quillet).quick(u"mnuhGoTo", u"GoTo"));
    t.push_back(popupRow(Error, Quillet));
    t.push_back(button(166, Quillet).quick(u"mnuhExit", u"Exit"));
    t.push_back(button(181, Quillet).group().face().opens(u"mnuhQLTAddFragment", u"frmFragments"));
    t.push_back(button(184, Quillet).opens(u"mnuhQLTImportFile", u"ImportFile"));
    t.push_back(button(185, Quillet).opens(u"mnuhQLTExportFile", u"ExportFile"));
    t.push_back(popupRow(Tools, Quillet).group());
}

void addDeclarations(Rows& t) {
    using namespace popup;
    addTypes(t, Variable, u"mnuhDim", u"Dim", std::size(kTypes));
    t.push_back(button(145, Variable).quick(u"mnuhType", u"Type"));
    t.push_back(button(146, Variable).quick(u"mnuhTypeItem", u"Type", u"Item"));
    t.push_back(button(103, Variable).group().face().opens(u"mnuhDimAdd", u"frmVar"));
    addTypes(t, Constant, u"mnuhConst", u"Const", kConstantTypes);
    t.push_back(button(170, Constant).quick(u"mnuhFilename", u"Filename"));
    t.push_back(button(171, Constant).quick(u"mnuhFolder", u"Folder"));
    t.push_back(button(147, Constant).quick(u"mnuhEnum", u"Enum"));
    t.push_back(button(148, Constant).quick(u"mnuhEnumItem", u"Enum", u"Item"));
    t.push_back(button(102, Constant).group().face().opens(u"mnuhConstAdd", u"frmConst"));
    t.push_back(button(172, Constant)
                    .group()
                    .opens(u"mnuhObjectInventory", u"AccessObjectInventory")
                    .only(CommandCondition::AccessHost));
    addTypes(t, Property, u"mnuhProp", u"Property", std::size(kTypes));
    t.push_back(button(105, Property).group().face().opens(u"mnuhPropAdd", u"frmProperty"));
}

void addError(Rows& t) {
    using namespace popup;
    t.push_back(button(150, Error).quick(u"mnuhErrorGotoLabel", u"On Error GoTo"));
    t.push_back(button(151, Error).quick(u"mnuhErrorResumeNext", u"On Error Resume Next"));
    t.push_back(button(152, Error).quick(u"mnuhErrorGoto0", u"On Error GoTo 0"));
    t.push_back(button(168, Error).quick(u"mnuhErrorResume", u"Resume "));
    t.push_back(button(317, Error).quick(u"mnuhErrorResumeNext2", u"Resume Next"));
    t.push_back(button(318, Error).quick(u"mnuhErrorResume2", u"Resume"));
    t.push_back(dropDown(167, Error).group().does(u"mnuhErrorHandling", A::ErrorHandling, u"ErrorHandling"));
    t.push_back(popupRow(LineNumbers, Error).group());
    t.push_back(button(177, LineNumbers).opens(u"mnuhLineNumbersAdd", u"LineNumbers", u"0"));
    t.push_back(button(178, LineNumbers).opens(u"mnuhLineNumbersRemove", u"LineNumbers", u"1"));
    t.push_back(popupRow(CommentLines, Error).group());
    t.push_back(button(177, CommentLines).quick(u"mnuhCommentLinesAdd", u"Comment Lines Add"));
    t.push_back(button(178, CommentLines).quick(u"mnuhCommentLinesRemove", u"Comment Lines Remove"));
    t.push_back(button(190, Error).group().quick(u"mnuhDebugPrint", u"Debug.Print "));
}

void addBlocks(Rows& t) {
    using namespace popup;
    t.push_back(button(154, If).quick(u"mnuhIfThen", u"If Then"));
    t.push_back(button(319, If).quick(u"mnuhIfEndIf", u"End If"));
    t.push_back(button(155, If).quick(u"mnuhIfThenElse", u"If Then Else"));
    t.push_back(button(156, If).quick(u"mnuhIfThenElseIf", u"If Then Else If"));
    t.push_back(button(157, If).quick(u"mnuhIfThenElseIfElse", u"If Then ElseIf Else"));
    t.push_back(button(158, Select).quick(u"mnuhSelectCase", u"Select Case"));
    t.push_back(button(159, Select).quick(u"mnuhSelectCaseElse", u"Select Case Else"));
    t.push_back(button(169, Select).quick(u"mnuhSelectCaseUcase", u"Select Case UCase"));
    t.push_back(button(160, Select).quick(u"mnuhSelectFromCustomEnum", u"Select From Enum"));
    t.push_back(button(163, ForWhile).quick(u"mnuhForEachNext", u"ForEachNext"));
    t.push_back(button(164, ForWhile).quick(u"mnuhForNext", u"ForNext"));
    t.push_back(button(320, ForWhile).quick(u"mnuhExitFor", u"Exit For"));
    t.push_back(button(143, ForWhile).quick(u"mnuhWhile", u"While"));
    t.push_back(popupRow(Do, ForWhile));
    t.push_back(button(161, Do).quick(u"mnuhDoLoopWhile", u"IfDoLoopWhile"));
    t.push_back(button(162, Do).quick(u"mnuhDoLoopUntil", u"IfDoLoopUntil"));
    t.push_back(button(194, Tools).face().does(u"mnuhDirectAccess", A::ToggleShortcuts));
    t.push_back(button(195, Tools).face().does(u"mnuhQLTCodeExplorer", A::ToggleCodeExplorer));
}

Rows buildTable() {
    Rows t;
    addBar(t);
    addHelp(t);
    addQuillet(t);
    addDeclarations(t);
    addError(t);
    addBlocks(t);
    return t;
}

}  // namespace

const std::vector<CommandRow>& CommandTable() {
    static const Rows table = buildTable();
    return table;
}

const CommandRow* commandRowOfHandler(const Str& handler) {
    if (handler.empty()) return nullptr;
    for (const auto& row : CommandTable())
        if (row.handler == handler) return &row;
    return nullptr;
}

Str LoadResString(long id) {
    auto it = std::find_if(std::begin(kStrings), std::end(kStrings), [id](const auto& s) { return s.id == id; });
    if (it == std::end(kStrings)) throw platform::resourceNotFound(id);
    return it->text;
}

}  // namespace quillet::addin
