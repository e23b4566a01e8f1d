#pragma once
// The fixed table of the add-in's commands, in the order the bar is built: caption (a string
// resource), kind, group, face, the pop-up that holds it, the click sink's name and what a click
// does. The string resources live here too, one table id -> caption.

#include <vector>

#include "basic/strings.h"

namespace quillet::addin {

using basic::Str;

// What a click on a command does.
enum class CommandAction {
    None,                // no handler: a click does nothing
    Quick,               // QuilletHandle(name, argument)
    ErrorHandling,       // QuilletHandle(name, the drop-down's Text)
    Routine,             // the routine `name` of a later layer (a builder by its form name), with argument
    ToggleShortcuts,     // shows or hides the Shortcuts and Search window
    ToggleCodeExplorer,  // shows or hides the Code Explorer window
    WebPage,             // the web site with the page kept in the control's TooltipText
    HelpContents,        // the help file, when it is there
    MenuState,           // MenuStateSet, before the pop-up opens
};

// When a row is made.
enum class CommandCondition {
    Always,
    ObjectnameHost,  // ExcelApp or WordApp set, or AccessApp that is "Microsoft Access"
    AccessHost,      // AccessApp that is "Microsoft Access"
    TestingMode,
};

// Pop-ups that hold other rows, by the id of their caption; 0 is the bar itself.
namespace popup {
constexpr long Bar = 0;
constexpr long Help = 110;
constexpr long Website = 115;
constexpr long Quillet = 122;
constexpr long Variable = 123;
constexpr long Constant = 124;
constexpr long Property = 125;
constexpr long If = 140;
constexpr long Select = 141;
constexpr long ForWhile = 142;
constexpr long Do = 144;
constexpr long Error = 149;
constexpr long Tools = 186;
constexpr long LineNumbers = 188;
constexpr long CommentLines = 189;
constexpr long TipOfTheDay = 196;
}  // namespace popup

struct CommandRow {
    long id = 0;                // string resource of the caption
    long type = 1;              // host::msoControlButton, msoControlPopup or msoControlDropdown
    bool beginGroup = false;
    long faceId = 0;            // 0: none
    long parentId = popup::Bar; // the pop-up that holds it
    Str handler;                // the click sink (mnuh...); empty: not wired
    CommandAction action = CommandAction::None;
    Str name;                   // Quick: the command word; Routine: the routine's name
    Str argument;               // Quick: the type; Routine: its argument
    Str tooltip;                // the page of a web command
    CommandCondition condition = CommandCondition::Always;
};

// All rows, in the order of creation.
const std::vector<CommandRow>& CommandTable();
// The row whose sink has that name (the first, for names used twice); none when unknown.
const CommandRow* commandRowOfHandler(const Str& handler);

// The string resource `id` (LoadResString); an unknown id raises 326.
Str LoadResString(long id);

}  // namespace quillet::addin
