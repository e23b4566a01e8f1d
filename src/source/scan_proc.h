#pragma once
// The procedure scan: the procedure at the caret of the active pane, with its variables,
// constants and labels, and the line numbers the builders place code by.

#include "source/scan_state.h"

namespace quillet::source {

class clsScanProc {
public:
    explicit clsScanProc(ScanEnv env) : env_(std::move(env)) {}

    // Scans the procedure at the caret; with fArgToVar its arguments join ProcVars.
    void init(bool fArgToVar = false);

    basic::Collection<clsVariablePtr> ProcVars;
    basic::Collection<clsConstantPtr> ProcConsts;
    basic::Collection<clsLabelPtr> ProcLabels;

    long ProcStartLine() const { return ProcStartLine_; }
    long ProcRealStartLine() const { return ProcRealStartLine_; }
    long ProcEndLine() const { return ProcEndLine_; }
    long ProcRealEndLine() const { return ProcRealEndLine_; }
    long ProcType() const { return ProcType_; }
    const Str& ProcTypeStr() const { return ProcTypeStr_; }
    const Str& ProcName() const { return ProcName_; }
    long ProcExitLine() const { return ProcExitLine_; }
    // Decimal texts, as the builders take them.
    Str ProcDeclAreaLineCount() const;
    Str ProcDeclAreaStartLine() const;
    Str ProcDeclAreaEndLine() const;
    Str ProcDefLineCount() const;

private:
    void walkStatements(const std::vector<Str>& statements);
    void ArgsToVarsAdd();

    ScanEnv env_;
    long ProcStartLine_ = 0, ProcRealStartLine_ = 0, ProcEndLine_ = 0, ProcRealEndLine_ = 0;
    long ProcType_ = 0;
    Str ProcTypeStr_, ProcName_;
    long ProcExitLine_ = 0;
    long declAreaStart_ = 0, declAreaEnd_ = 0, declAreaCount_ = 0, defLineCount_ = 0;
};

}  // namespace quillet::source
