#include "source/scan_proc.h"

#include <algorithm>
#include <string>

#include "source/proc_areas.h"
#include "source/scan_module.h"
#include "source/statements.h"

namespace quillet::source {

using basic::Compare;
using basic::InStr;
using basic::Like;
using basic::Mid;
using basic::Trim;

namespace {

Str decimal(long n) {
    std::string digits = std::to_string(n);
    return Str(digits.begin(), digits.end());
}

void flush(Str& acc, std::vector<Str>& statements) {
    for (Str& statement : LineDisjunction(acc))
        if (!statement.empty()) statements.push_back(std::move(statement));
    acc.clear();
}

// The text of the statement behind the keyword at its first place, ignoring case.
Str behind(const Str& S, const Str& keyword) { return Trim(Mid(S, InStr(S, keyword, Compare::Text) + basic::Len(keyword) + 1)); }

}  // namespace

Str clsScanProc::ProcDeclAreaLineCount() const { return decimal(declAreaCount_); }
Str clsScanProc::ProcDeclAreaStartLine() const { return decimal(declAreaStart_); }
Str clsScanProc::ProcDeclAreaEndLine() const { return decimal(declAreaEnd_); }
Str clsScanProc::ProcDefLineCount() const { return decimal(defLineCount_); }

void clsScanProc::init(bool fArgToVar) {
    reportedStep(env_.report, u"clsScanProc.Init", [&] {
        if (!scanAllowed(env_.vbe)) return;
        auto pane = env_.vbe.ActiveCodePane();
        if (!pane) return;
        long line = 0, startCol = 0, endLine = 0, endCol = 0;
        pane->GetSelection(line, startCol, endLine, endCol);
        auto module = pane->CodeModule();
        ProcName_ = module->ProcOfLine(line, ProcType_);
        if (ProcName_.empty()) return;
        auto selected = env_.vbe.SelectedVBComponent();
        if (!selected || module->Name() != selected->CodeModule()->Name()) pane->Show();

        ProcStartLine_ = module->ProcStartLine(ProcName_, ProcType_);
        ProcRealStartLine_ = module->ProcBodyLine(ProcName_, ProcType_);
        ProcEndLine_ = ProcStartLine_ + module->ProcCountLines(ProcName_, ProcType_) - 1;
        ModuleText text(*module);

        long n = ProcEndLine_;
        while (!Like(text.line(n), u"*End *") && n > ProcStartLine_) --n;
        ProcRealEndLine_ = n;

        std::vector<Str> statements;
        Str acc;
        for (long k = ProcRealStartLine_; k <= ProcEndLine_; ++k) {
            Str L = Trim(text.line(k));
            if (L.empty()) {
                if (!acc.empty()) flush(acc, statements);
                continue;
            }
            if (!acc.empty()) acc += u' ';
            if (L.back() == u'_') {
                acc += Trim(L.substr(0, L.size() - 1));
                continue;
            }
            acc += L;
            if (!acc.empty()) flush(acc, statements);
        }
        if (!statements.empty()) {
            ProcTypeStr_ = ProcedureTypeGet(ProcName_, statements.front());
            walkStatements(statements);
        }
        if (fArgToVar) ArgsToVarsAdd();

        Str code;
        ProcExitLine_ = ProcExitLineGet(ProcRealStartLine_, ProcRealEndLine_, ProcTypeStr_, code, true, module.get(), &text);
        ProcDeclAreaGet(declAreaStart_, declAreaEnd_, ProcRealStartLine_, defLineCount_, true, code, module.get(), &text);
        declAreaCount_ = std::max(declAreaEnd_ - declAreaStart_ + 1, 0L);
    });
}

void clsScanProc::walkStatements(const std::vector<Str>& statements) {
    clsLabelPtr label;
    Str T;
    for (Str S : statements) {
        bool constant = false;
        S = basic::Replace(S, u"WithEvents ", u"", 1, -1, Compare::Text);
        size_t k = Like(S, u"#*") ? 1 : 0;
        auto words = basic::Split(S, u" ");
        if (words.size() <= k) continue;
        Str W = basic::UCase(words[k]);
        bool isLabel = false;
        if (W == u"DIM") {
            T = behind(S, u"Dim");
        } else if (W == u"STATIC") {
            T = behind(S, u"Static");
        } else if (W == u"CONST") {
            constant = true;
            T = behind(S, u"Const");
        } else if (W == u"RETURN") {
            if (label) label->HasReturn = true;
        } else {
            T.clear();
            isLabel = Like(words[k], u"[!']*:");
        }
        for (const Str& item : SplitArguments(T)) {
            reportedStep(env_.report, u"clsScanProc.Init", [&] {
                if (constant) {
                    auto record = std::make_shared<clsConstant>();
                    record->init(Trim(item), env_.report);
                    addFirstWins(ProcConsts, record, record->Name);
                } else {
                    auto record = std::make_shared<clsVariable>();
                    record->init(Trim(item), env_.report);
                    addFirstWins(ProcVars, record, record->Name);
                }
            });
        }
        if (isLabel) {
            if (label) addFirstWins(ProcLabels, label, label->Name);
            label = std::make_shared<clsLabel>();
            label->Name = words[k].substr(0, words[k].size() - 1);
        }
    }
    if (label) addFirstWins(ProcLabels, label, label->Name);
}

void clsScanProc::ArgsToVarsAdd() {
    Str name;
    long kind = 0;
    auto arguments = CurrentProcArguments(env_, name, kind);
    if (!arguments) return;
    for (const auto& argument : arguments->Items) {
        auto variable = std::make_shared<clsVariable>();
        variable->Name = argument->Name;
        variable->Type_ = argument->Type_;
        variable->IsArray = argument->IsArray;
        addFirstWins(ProcVars, variable, variable->Name);
    }
}

}  // namespace quillet::source
