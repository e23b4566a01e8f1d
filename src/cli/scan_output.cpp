#include "cli/scan_output.h"

#include "basic/unicode.h"
#include "cli/json_writer.h"

namespace quillet::cli {

namespace {

using basic::Str;
using source::C4_ProcDef;
using source::clsConstant;
using source::clsEnum;
using source::clsLabel;
using source::clsType;
using source::clsVariable;

// One record's fields, written once for JSON and once for text.
class FieldSink {
public:
    virtual ~FieldSink() = default;
    virtual void field(const char* name, const Str& value) = 0;
    virtual void field(const char* name, bool value) = 0;
    virtual void field(const char* name, long long value) = 0;
    // A member that is a list of records: the writer of each record is called between.
    virtual void beginList(const char* name) = 0;
    virtual void beginRecord() = 0;
    virtual void endRecord() = 0;
    virtual void endList() = 0;
};

void fields(FieldSink& sink, const clsEnum& e);
void fields(FieldSink& sink, const clsType& t);
void fields(FieldSink& sink, const source::C4_ProcArgument& a);
void fields(FieldSink& sink, const C4_ProcDef& p);

void fields(FieldSink& sink, const clsVariable& v) {
    sink.field("Name", v.Name);
    sink.field("Type_", v.Type_);
    sink.field("IsArray", v.IsArray);
    sink.field("Bounds", v.Bounds());
    sink.field("ModuleName", v.ModuleName);
}

void fields(FieldSink& sink, const clsConstant& c) {
    sink.field("Name", c.Name);
    sink.field("Type_", c.Type_);
    sink.field("Value", c.Value);
    sink.field("EnumName", c.EnumName());
    sink.field("Project", c.Project);
    sink.field("ModuleName", c.ModuleName);
}

void fields(FieldSink& sink, const clsLabel& l) {
    sink.field("Name", l.Name);
    sink.field("HasReturn", l.HasReturn);
}

template <class C>
void list(FieldSink& sink, const char* name, const C& items) {
    sink.beginList(name);
    for (const auto& item : items) {
        sink.beginRecord();
        fields(sink, *item);
        sink.endRecord();
    }
    sink.endList();
}

void fields(FieldSink& sink, const clsEnum& e) {
    sink.field("Name", e.Name);
    sink.field("Project", e.Project);
    sink.field("Module", e.Module);
    sink.field("IsPrivate", e.IsPrivate);
    list(sink, "Items", e.Items);
}

void fields(FieldSink& sink, const clsType& t) {
    sink.field("Name", t.Name);
    sink.field("Project", t.Project);
    sink.field("Module", t.Module);
    sink.field("IsPrivate", t.IsPrivate);
    list(sink, "Items", t.Items);
}

void fields(FieldSink& sink, const source::C4_ProcArgument& a) {
    sink.field("Name", a.Name);
    sink.field("Type_", a.Type_);
    sink.field("IsOptional", a.IsOptional);
    sink.field("IsPassedByVal", a.IsPassedByVal);
    sink.field("IsParamArray", a.IsParamArray);
    sink.field("IsArray", a.IsArray);
    sink.field("DefaultValue", a.DefaultValue);
}

void fields(FieldSink& sink, const C4_ProcDef& p) {
    sink.field("Name", p.Name);
    sink.field("Project", p.Project);
    sink.field("ModuleName", p.ModuleName);
    sink.field("ProcKind", static_cast<long long>(p.ProcKind));
    sink.field("ProcIsFunction", p.ProcIsFunction);
    sink.field("ProcIsPublic", p.ProcIsPublic);
    sink.field("ProcReturnType", p.ProcReturnType);
    sink.field("OneLineProcDef", p.OneLineProcDef);
    list(sink, "ProcArguments", p.ProcArguments->Items);
}

template <class P>
void collection(FieldSink& sink, const char* name, const P& items) {
    if (items) {
        list(sink, name, *items);
        return;
    }
    sink.beginList(name);
    sink.endList();
}

void procedureProperties(FieldSink& sink, const source::clsScanProc& p) {
    sink.field("ProcStartLine", static_cast<long long>(p.ProcStartLine()));
    sink.field("ProcRealStartLine", static_cast<long long>(p.ProcRealStartLine()));
    sink.field("ProcEndLine", static_cast<long long>(p.ProcEndLine()));
    sink.field("ProcRealEndLine", static_cast<long long>(p.ProcRealEndLine()));
    sink.field("ProcType", static_cast<long long>(p.ProcType()));
    sink.field("ProcTypeStr", p.ProcTypeStr());
    sink.field("ProcName", p.ProcName());
    sink.field("ProcExitLine", static_cast<long long>(p.ProcExitLine()));
    sink.field("ProcDeclAreaLineCount", p.ProcDeclAreaLineCount());
    sink.field("ProcDeclAreaStartLine", p.ProcDeclAreaStartLine());
    sink.field("ProcDeclAreaEndLine", p.ProcDeclAreaEndLine());
    sink.field("ProcDefLineCount", p.ProcDefLineCount());
}

void everything(FieldSink& sink, const ScanOutput& scan) {
    if (scan.project) {
        collection(sink, "ProjectProcs", scan.project->ProjectProcs);
        collection(sink, "ProjectVars", scan.project->ProjectVars);
        collection(sink, "ProjectConsts", scan.project->ProjectConsts);
        collection(sink, "ProjectEnums", scan.project->ProjectEnums);
        collection(sink, "ProjectTypes", scan.project->ProjectTypes);
    }
    if (scan.module) {
        list(sink, "ModuleVars", scan.module->ModuleVars);
        list(sink, "ModuleConsts", scan.module->ModuleConsts);
        list(sink, "ModuleEnums", scan.module->ModuleEnums);
        list(sink, "ModuleTypes", scan.module->ModuleTypes);
        list(sink, "ModuleProcs", scan.module->ModuleProcs);
    }
    if (scan.procedure) {
        list(sink, "ProcVars", scan.procedure->ProcVars);
        list(sink, "ProcConsts", scan.procedure->ProcConsts);
        list(sink, "ProcLabels", scan.procedure->ProcLabels);
        procedureProperties(sink, *scan.procedure);
    }
}

class JsonSink : public FieldSink {
public:
    explicit JsonSink(std::ostream& out) : json_(out) {}
    void field(const char* name, const Str& value) override {
        json_.key(basic::fromUtf8(name));
        json_.value(value);
    }
    void field(const char* name, bool value) override {
        json_.key(basic::fromUtf8(name));
        json_.value(value);
    }
    void field(const char* name, long long value) override {
        json_.key(basic::fromUtf8(name));
        json_.value(value);
    }
    void beginList(const char* name) override {
        json_.key(basic::fromUtf8(name));
        json_.beginArray();
    }
    void beginRecord() override { json_.beginObject(); }
    void endRecord() override { json_.endObject(); }
    void endList() override { json_.endArray(); }
    JsonWriter& writer() { return json_; }

private:
    JsonWriter json_;
};

// Text: a heading per collection, a line per record, nested lists indented under their record;
// an empty collection says so, an empty nested list is left out.
class TextSink : public FieldSink {
public:
    explicit TextSink(std::ostream& out) : out_(out) {}
    void field(const char* name, const Str& value) override {
        if (!value.empty()) add(std::string(name) + "=" + basic::toUtf8(value));
    }
    void field(const char* name, bool value) override {
        if (value) add(name);
    }
    void field(const char* name, long long value) override { add(std::string(name) + "=" + std::to_string(value)); }
    void beginList(const char* name) override {
        flush();
        headings_.push_back(name);
        printed_.push_back(false);
    }
    void beginRecord() override {
        flush();
        if (!printed_.back()) {
            out_ << indent(headings_.size() - 1) << headings_.back() << ":\n";
            printed_.back() = true;
        }
    }
    void endRecord() override { flush(); }
    void endList() override {
        flush();
        if (!printed_.back() && headings_.size() == 1) out_ << headings_.back() << ": (none)\n";
        headings_.pop_back();
        printed_.pop_back();
    }
    void flush() {
        if (line_.empty()) return;
        out_ << indent(headings_.size()) << line_ << "\n";
        line_.clear();
    }

private:
    static std::string indent(size_t depth) { return std::string(depth * 2, ' '); }
    void add(const std::string& part) { line_ += (line_.empty() ? "" : "  ") + part; }

    std::ostream& out_;
    std::string line_;
    std::vector<std::string> headings_;
    std::vector<bool> printed_;
};

}  // namespace

void writeScanJson(const ScanOutput& scan, std::ostream& out) {
    JsonSink sink(out);
    sink.writer().beginObject();
    everything(sink, scan);
    sink.writer().endObject();
    sink.writer().finish();
}

void writeScanText(const ScanOutput& scan, std::ostream& out) {
    TextSink sink(out);
    everything(sink, scan);
    sink.flush();
}

}  // namespace quillet::cli
