#include "ibis/PinMappingWriter.h"

#include <cerrno>
#include <cstdio>
#include <unordered_map>

#include "base/FileChecks.h"
#include "base/Platform.h"
#include "base/ScopedClassicLocale.h"
#include "model/ReportMessage.h"
#include "ndd/NddInput.h"
#include "ndd/NddTokens.h"

namespace {

constexpr size_t kIbisLineBuffer = 1024;

// One rewrite of the file's text into the temporary file. Lines that are copied are copied
// byte for byte; only the [Pin] table and the [Pin Mapping] table are written anew.
class MappingRewrite {
  public:
    MappingRewrite(const ComponentRec& component, base::LineStream& in, FILE* out)
        : c_(component), in_(in), out_(out) {
        for (const PinRec& pin : c_.pins) pinsByName_.emplace(pin.name, &pin);
    }
    void Run();

  private:
    bool Next();
    void CopyLine() { std::fwrite(in_.Text()->data() + start_, 1, in_.Tell() - start_, out_); }
    void PrintRow(const std::string& name, const std::string& signal, const std::string& model) {
        std::fprintf(out_, "%s     %s     %s\n", name.c_str(), signal.c_str(), model.c_str());
    }
    bool CopyHead();
    void KeepUnchangedRows();
    void WriteChangedRows();
    void WriteMappingTable();
    void WriteMappingRow(const PinRec& pin);
    void SkipOldMappingTable();
    void CopyRest();

    const ComponentRec& c_;
    base::LineStream& in_;
    FILE* out_;
    std::unordered_map<std::string, const PinRec*> pinsByName_;
    std::string line_;
    size_t start_ = 0;       // where line_ begins in the text
    bool haveLine_ = false;  // line_ ended the last table and is not written yet
};

bool MappingRewrite::Next() {
    start_ = in_.Tell();
    return in_.ReadLine(line_, kIbisLineBuffer);
}

void MappingRewrite::Run() {
    bool unmarked = CopyHead();
    KeepUnchangedRows();
    WriteChangedRows();
    WriteMappingTable();
    if (unmarked) std::fputs("| End Pin Section\n|\n", out_);
    SkipOldMappingTable();
    CopyRest();
}

// Copies the lines up to the [Pin] keyword. The marker goes in front of an unmarked file;
// a marked one keeps its first line, so saving again adds no second marker.
bool MappingRewrite::CopyHead() {
    bool more = Next();
    bool unmarked = !more || !Contains(line_, kModifiedIbisMarker);
    if (unmarked) std::fprintf(out_, "%s\n", kModifiedIbisMarker);
    for (; more; more = Next()) {
        CopyLine();
        if (Contains(line_, "[Pin]")) break;
    }
    return unmarked;
}

// The old table: comments stay, rows of pins the mapping left alone are written again, and
// the rows of changed pins go (they follow in WriteChangedRows).
void MappingRewrite::KeepUnchangedRows() {
    while (Next()) {
        if (line_.empty()) continue;
        if (line_[0] == '[') {
            haveLine_ = true;
            return;
        }
        if (line_[0] == '|') {
            CopyLine();
            continue;
        }
        auto it = pinsByName_.find(NddToken(line_, 1));
        if (it == pinsByName_.end()) continue;
        const PinRec& pin = *it->second;
        const PinModelFields& m = pin.Model();
        if (!m.modelName.empty() && m.modelName == m.modelNameAsRead)
            PrintRow(pin.name, m.signalName, m.modelName);
    }
}

// Changed pins in the order power, ground, no-connect.
void MappingRewrite::WriteChangedRows() {
    static const char* const kPassModel[] = {"POWER", "GND", "NC"};
    for (int pass = 0; pass < 3; ++pass) {
        for (const PinRec& pin : c_.pins) {
            const PinModelFields& m = pin.Model();
            std::string signal = m.signalName.empty() ? "NC" : m.signalName;
            std::string model = m.modelName.empty() ? "NC" : m.modelName;
            if (model == m.modelNameAsRead || !Contains(ToUpper(model), kPassModel[pass])) continue;
            if (pass == 2)
                signal = "NC";
            else if (EqualsNoCase(signal, "NC"))
                signal = "SIGNAL";
            PrintRow(pin.name, signal, model);
        }
    }
}

void MappingRewrite::WriteMappingTable() {
    std::fputs(
        "[Pin Mapping]      pulldown_ref       pullup_ref         gnd_clamp_ref      "
        "power_clamp_ref    \n",
        out_);
    for (const PinRec& pin : c_.pins) WriteMappingRow(pin);
}

// Columns are 19 characters wide; a longer text runs into the next column without a blank.
// A power pin's bus stands in the third column, a ground pin's in the second.
void MappingRewrite::WriteMappingRow(const PinRec& pin) {
    const char* name = pin.name.c_str();
    const PinModelFields& m = pin.Model();
    if (pin.pinClass == 0) {
        std::fprintf(out_, "%-19s%-19s%-19s%-19s%s\n", name, m.pulldownRef.c_str(),
                     m.pullupRef.c_str(), m.gndClampRef.c_str(), m.powerClampRef.c_str());
    } else if (pin.pinClass == 1 && !m.powerGroup.empty()) {
        std::fprintf(out_, "%-19s%-19s%s\n", name, "NC", m.powerGroup.c_str());
    } else if (pin.pinClass == 2 && !m.groundGroup.empty()) {
        std::fprintf(out_, "%-19s%-19s%s\n", name, m.groundGroup.c_str(), "NC");
    } else {
        // No reference: the pin alone, with four empty columns behind it.
        std::fprintf(out_, "%s%19s%19s%19s%19s\n", name, "", "", "", "");
    }
}

// An older [Pin Mapping] table right behind the [Pin] table gives way to the new one.
void MappingRewrite::SkipOldMappingTable() {
    if (!haveLine_ || !StartsWith(line_, "[Pin Mapping]")) return;
    haveLine_ = false;
    while (Next()) {
        if (StartsWith(line_, "[")) {
            haveLine_ = true;
            return;
        }
    }
    std::fputs("|\n", out_);
}

void MappingRewrite::CopyRest() {
    if (haveLine_) CopyLine();
    const std::string& text = *in_.Text();
    size_t at = in_.Tell();
    if (at < text.size()) std::fwrite(text.data() + at, 1, text.size() - at, out_);
}

// The temporary file takes the place of the old one as on Windows: a read-only file is not
// deleted, and the rename then finds its name taken, so the old file stays as it was.
bool ReplaceIbisFile(const std::string& temp, const std::string& ibisFile) {
    base::DeleteUnlessReadOnly(ibisFile);
    return base::RenameWithoutReplacing(temp, ibisFile);
}

}  // namespace

std::string PinMappingTempName(const std::string& ibisFile) {
    size_t at = ToLower(ibisFile).find(".ibs");
    return ibisFile.substr(0, at) + "_temp_lumora.ibs";
}

int PinMappingWriter(ComponentRec& component) {
    if (!component.isActive) return 0;
    std::unique_ptr<base::LineStream> in = OpenTextFile(component.ibisFile);
    if (!in) {
        ReportMessage("Cannot open file : " + component.ibisFile, kBoxWarning);
        return 0;
    }
    std::string temp = PinMappingTempName(component.ibisFile);
    FILE* out = std::fopen(temp.c_str(), "w");
    if (!out) {
        ReportWriteFailure(temp, base::SystemReason(errno));
        return 0;
    }
    component.ibisOpened = 1;
    {
        base::ScopedClassicLocale classic;
        MappingRewrite(component, *in, out).Run();
    }
    std::string reason;
    if (!base::CloseWritten(out, reason)) {
        // A partial file must not replace a whole one.
        base::RemoveFile(temp);
        ReportWriteFailure(temp, reason);
        return 0;
    }
    if (!ReplaceIbisFile(temp, component.ibisFile)) {
        ReportMessage(kIbisNotSaved);
        return 0;
    }
    return 1;
}
