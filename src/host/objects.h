#pragma once
// The editor's object model as the system uses it: every object and member that the logic
// calls, under the editor's own names and with its conventions. Lines and columns are 1-based,
// text is UTF-16 with "\r\n" between lines, a member that fails raises VbError with the editor's
// number and text, and a member a host lacks raises 438.
//
// Objects are shared: a host hands out shared pointers, and an object stays valid as long as
// somebody holds it, as a COM reference does. "None" (Nothing) is an empty pointer.

#include <functional>
#include <memory>
#include <string>

#include "basic/dispatch.h"
#include "basic/vb_error.h"

namespace quillet::host {

using basic::Str;
using basic::VbError;
using basic::DispatchPtr;
using basic::Variant;

class VBE;
class VBProjects;
class VBProject;
class VBComponents;
class VBComponent;
class CodeModule;
class CodePane;
class CodePanes;
class Window;
class Windows;
class References;
class Reference;
class CommandBars;
class CommandBar;
class CommandBarControls;
class CommandBarControl;
class Events;
class CommandBarEvents;

using VBEPtr = std::shared_ptr<VBE>;
using VBProjectsPtr = std::shared_ptr<VBProjects>;
using VBProjectPtr = std::shared_ptr<VBProject>;
using VBComponentsPtr = std::shared_ptr<VBComponents>;
using VBComponentPtr = std::shared_ptr<VBComponent>;
using CodeModulePtr = std::shared_ptr<CodeModule>;
using CodePanePtr = std::shared_ptr<CodePane>;
using CodePanesPtr = std::shared_ptr<CodePanes>;
using WindowPtr = std::shared_ptr<Window>;
using WindowsPtr = std::shared_ptr<Windows>;
using ReferencesPtr = std::shared_ptr<References>;
using ReferencePtr = std::shared_ptr<Reference>;
using CommandBarsPtr = std::shared_ptr<CommandBars>;
using CommandBarPtr = std::shared_ptr<CommandBar>;
using CommandBarControlsPtr = std::shared_ptr<CommandBarControls>;
using CommandBarControlPtr = std::shared_ptr<CommandBarControl>;
using EventsPtr = std::shared_ptr<Events>;
using CommandBarEventsPtr = std::shared_ptr<CommandBarEvents>;

// vbext_ProcKind
enum ProcKind : long { vbext_pk_Proc = 0, vbext_pk_Let = 1, vbext_pk_Set = 2, vbext_pk_Get = 3 };

// vbext_ComponentType
enum ComponentType : long {
    vbext_ct_StdModule = 1,
    vbext_ct_ClassModule = 2,
    vbext_ct_MSForm = 3,
    vbext_ct_ResFile = 4,
    vbext_ct_VBForm = 5,
    vbext_ct_VBMDIForm = 6,
    vbext_ct_PropPage = 7,
    vbext_ct_UserControl = 8,
    vbext_ct_DocObject = 9,
    vbext_ct_RelatedDocument = 10,
    vbext_ct_ActiveXDesigner = 11,
    vbext_ct_Document = 100,
};

// vbext_WindowType values the system tells apart.
enum WindowType : long {
    vbext_wt_CodeWindow = 0,
    vbext_wt_Designer = 1,
    vbext_wt_Browser = 2,
    vbext_wt_Watch = 3,
    vbext_wt_Locals = 4,
    vbext_wt_Immediate = 5,
    vbext_wt_ProjectWindow = 6,
    vbext_wt_PropertyWindow = 7,
    vbext_wt_Find = 8,
    vbext_wt_FindReplace = 9,
    vbext_wt_Toolbox = 10,
    vbext_wt_LinkedWindowFrame = 11,
    vbext_wt_MainWindow = 12,
    vbext_wt_ToolWindow = 15,
};

// vbext_ProjectProtection
enum ProjectProtection : long { vbext_pp_none = 0, vbext_pp_locked = 1 };

// msoControlType values used.
enum ControlType : long { msoControlButton = 1, msoControlDropdown = 3, msoControlPopup = 10 };
// msoButtonStyle values used.
enum ButtonStyle : long { msoButtonAutomatic = 0, msoButtonIcon = 1, msoButtonCaption = 2, msoButtonIconAndCaption = 3 };
// msoBarPosition
enum BarPosition : long { msoBarLeft = 0, msoBarTop = 1, msoBarRight = 2, msoBarBottom = 3, msoBarFloating = 4, msoBarPopup = 5 };

// A window handle as a number; 0 is none.
using WindowHandle = long long;

class VBE {
public:
    virtual ~VBE() = default;
    virtual VBProjectPtr ActiveVBProject() = 0;
    virtual VBProjectsPtr VBProjects() = 0;
    virtual CodePanePtr ActiveCodePane() = 0;
    virtual CodePanesPtr CodePanes() = 0;
    virtual WindowPtr ActiveWindow() = 0;
    virtual VBComponentPtr SelectedVBComponent() = 0;
    virtual WindowsPtr Windows() = 0;
    virtual WindowPtr MainWindow() = 0;
    virtual CommandBarsPtr CommandBars() = 0;
    virtual EventsPtr Events() = 0;
    virtual Str Version() = 0;
};

class VBProjects {
public:
    virtual ~VBProjects() = default;
    virtual long Count() = 0;
    // 1 to Count; otherwise 9.
    virtual VBProjectPtr Item(long index) = 0;
};

class VBProject {
public:
    virtual ~VBProject() = default;
    virtual Str Name() = 0;
    virtual void Name(const Str& name) = 0;
    // Empty, or raises, for a project never saved.
    virtual Str FileName() = 0;
    virtual long Protection() = 0;
    virtual VBComponentsPtr VBComponents() = 0;
    virtual ReferencesPtr References() = 0;
};

class References {
public:
    virtual ~References() = default;
    virtual long Count() = 0;
    virtual ReferencePtr Item(long index) = 0;
};

class Reference {
public:
    virtual ~Reference() = default;
    virtual Str Name() = 0;
    virtual Str FullPath() = 0;
    virtual Str GUID() = 0;
    virtual long Major() = 0;
    virtual long Minor() = 0;
    virtual Str Description() = 0;
    virtual bool BuiltIn() = 0;
    virtual bool IsBroken() = 0;
};

class VBComponents {
public:
    virtual ~VBComponents() = default;
    virtual long Count() = 0;
    // By number (1 to Count) or by name, ignoring case; unknown: 9.
    virtual VBComponentPtr Item(long index) = 0;
    virtual VBComponentPtr Item(const Str& name) = 0;
    virtual VBComponentPtr Add(long componentType) = 0;
    virtual void Remove(const VBComponentPtr& component) = 0;
    virtual VBComponentPtr Import(const Str& path) = 0;
};

class VBComponent {
public:
    virtual ~VBComponent() = default;
    virtual Str Name() = 0;
    virtual void Name(const Str& name) = 0;
    virtual long Type() = 0;
    // None when the component has no code.
    virtual CodeModulePtr CodeModule() = 0;
    // None when it has no designer.
    virtual DispatchPtr Designer() = 0;
    virtual WindowPtr DesignerWindow() = 0;
    virtual DispatchPtr Properties() = 0;
    virtual void Export(const Str& path) = 0;
    virtual void Activate() = 0;
};

class CodeModule {
public:
    virtual ~CodeModule() = default;
    virtual Str Name() = 0;
    virtual VBComponentPtr Parent() = 0;
    // The module's pane; made (and made active) when it has none.
    virtual CodePanePtr CodePane() = 0;

    virtual long CountOfLines() = 0;
    virtual long CountOfDeclarationLines() = 0;
    virtual Str Lines(long startLine, long count) = 0;
    virtual void InsertLines(long line, const Str& text) = 0;
    virtual void ReplaceLine(long line, const Str& text) = 0;
    virtual void DeleteLines(long startLine, long count = 1) = 0;
    virtual void AddFromString(const Str& text) = 0;

    // Name of the procedure holding the line, "" in the declarations; its kind comes back in `kind`.
    virtual Str ProcOfLine(long line, long& kind) = 0;
    // An unknown name, or a known one of another kind: 35.
    virtual long ProcBodyLine(const Str& name, long kind) = 0;
    virtual long ProcStartLine(const Str& name, long kind) = 0;
    virtual long ProcCountLines(const Str& name, long kind) = 0;

    // Searches from (startLine, startCol) to (endLine, endCol), both inclusive, -1 meaning the
    // end; all four 0 search the whole module. A hit sets the four to its start and its
    // exclusive end and returns true; a miss leaves them as they were.
    virtual bool Find(const Str& target, long& startLine, long& startCol, long& endLine, long& endCol,
                      bool wholeWord = false, bool matchCase = false, bool patternSearch = false) = 0;
};

class CodePane {
public:
    virtual ~CodePane() = default;
    virtual CodeModulePtr CodeModule() = 0;
    virtual WindowPtr Window() = 0;
    virtual void GetSelection(long& startLine, long& startCol, long& endLine, long& endCol) = 0;
    // The end column is exclusive; setting it makes the pane active.
    virtual void SetSelection(long startLine, long startCol, long endLine, long endCol) = 0;
    virtual long TopLine() = 0;
    virtual void TopLine(long line) = 0;
    virtual long CountOfVisibleLines() = 0;
    virtual void Show() = 0;
};

class CodePanes {
public:
    virtual ~CodePanes() = default;
    virtual long Count() = 0;
    virtual CodePanePtr Item(long index) = 0;
};

class Window {
public:
    virtual ~Window() = default;
    virtual long Type() = 0;
    virtual Str Caption() = 0;
    virtual bool Visible() = 0;
    virtual void Visible(bool visible) = 0;
    virtual WindowHandle hWnd() = 0;
    virtual void SetFocus() = 0;
    virtual void Close() = 0;
};

class Windows {
public:
    virtual ~Windows() = default;
    virtual long Count() = 0;
    virtual WindowPtr Item(long index) = 0;
    // Makes a dockable tool window holding an object of `progId`; the object comes back in docObj.
    virtual WindowPtr CreateToolWindow(const DispatchPtr& addInInst, const Str& progId, const Str& caption,
                                       const Str& guidPosition, DispatchPtr& docObj) = 0;
};

class CommandBars {
public:
    virtual ~CommandBars() = default;
    virtual long Count() = 0;
    virtual CommandBarPtr Item(long index) = 0;
    // An unknown name raises 5.
    virtual CommandBarPtr Item(const Str& name) = 0;
    virtual CommandBarPtr Add(const Str& name, long position, bool menuBar, bool temporary) = 0;
    // The first control with that id anywhere on the bars, or none.
    virtual CommandBarControlPtr FindControl(long type, long id) = 0;
};

class CommandBar {
public:
    virtual ~CommandBar() = default;
    virtual Str Name() = 0;
    virtual long Position() = 0;
    virtual void Position(long position) = 0;
    virtual long RowIndex() = 0;
    virtual void RowIndex(long row) = 0;
    virtual long Left() = 0;
    virtual void Left(long left) = 0;
    virtual long Top() = 0;
    virtual void Top(long top) = 0;
    virtual bool Visible() = 0;
    virtual void Visible(bool visible) = 0;
    virtual bool Enabled() = 0;
    virtual void Enabled(bool enabled) = 0;
    virtual void Delete() = 0;
    virtual CommandBarControlsPtr Controls() = 0;
};

class CommandBarControls {
public:
    virtual ~CommandBarControls() = default;
    virtual long Count() = 0;
    virtual CommandBarControlPtr Item(long index) = 0;
    // By caption; unknown: 5.
    virtual CommandBarControlPtr Item(const Str& caption) = 0;
    virtual CommandBarControlPtr Add(long type, long id = 1, bool temporary = true) = 0;
};

class CommandBarControl {
public:
    virtual ~CommandBarControl() = default;
    virtual long Type() = 0;
    virtual long Id() = 0;
    virtual long Index() = 0;
    // Controls of a pop-up; 438 for another kind.
    virtual CommandBarControlsPtr Controls() = 0;
    virtual Str Caption() = 0;
    virtual void Caption(const Str& caption) = 0;
    virtual Str Tag() = 0;
    virtual void Tag(const Str& tag) = 0;
    virtual Str TooltipText() = 0;
    virtual void TooltipText(const Str& text) = 0;
    virtual long Style() = 0;
    virtual void Style(long style) = 0;
    virtual bool BeginGroup() = 0;
    virtual void BeginGroup(bool group) = 0;
    virtual bool Visible() = 0;
    virtual void Visible(bool visible) = 0;
    virtual bool Enabled() = 0;
    virtual void Enabled(bool enabled) = 0;
    // Faces: absent on old Offices (438); the clipboard route serves there.
    virtual DispatchPtr Picture() = 0;
    virtual void Picture(const DispatchPtr& picture) = 0;
    virtual DispatchPtr Mask() = 0;
    virtual void Mask(const DispatchPtr& mask) = 0;
    virtual void CopyFace() = 0;
    virtual void PasteFace() = 0;
    // Drop-down lists.
    virtual Str Text() = 0;
    virtual void Text(const Str& text) = 0;
    virtual void AddItem(const Str& text, long index = 0) = 0;
    virtual long ListCount() = 0;
    virtual Str List(long index) = 0;
    virtual long ListIndex() = 0;
    virtual void ListIndex(long index) = 0;
    virtual long Width() = 0;
    virtual void Width(long width) = 0;
    virtual long DropDownWidth() = 0;
    virtual void DropDownWidth(long width) = 0;
    virtual void Execute() = 0;
    virtual void Delete() = 0;
};

// The sink of a control's clicks: Click(control, handled, cancelDefault).
class CommandBarEvents {
public:
    using ClickHandler = std::function<void(const CommandBarControlPtr& control, bool& handled, bool& cancelDefault)>;
    virtual ~CommandBarEvents() = default;
    // Connects the handler; it fires until Disconnect or until the sink is released.
    virtual void Connect(ClickHandler handler) = 0;
    virtual void Disconnect() = 0;
};

class Events {
public:
    virtual ~Events() = default;
    virtual CommandBarEventsPtr CommandBarEvents(const CommandBarControlPtr& control) = 0;
};

}  // namespace quillet::host
