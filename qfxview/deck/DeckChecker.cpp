#include "deck/DeckChecker.h"

#include "deck/Fields.h"
#include "deck/Forms.h"

namespace qfxview {

void DeckChecker::FormError(const Statement& s, const std::string& text) {
    findings_.Add(s.line, Severity::Error, "statement-form", text);
}

void DeckChecker::Take(const Statement& s) {
    switch (order_.Take(s)) {
        case Place::Skip:
            return;
        case Place::CircuitBody:
            TakeCircuitLine(s);
            return;
        case Place::LinkageBody:
            TakeLinkLine(s);
            return;
        case Place::ShapeBody:
        case Place::PadBody:
        case Place::Free:
            TakeOwn(s);
            return;
    }
}

void DeckChecker::TakeOwn(const Statement& s) {
    if (s.kind == Kind::Orphan) return FormError(s, "continuation line continues no statement");
    if (s.kind == Kind::Other) return FormError(s, "unknown statement " + FirstWord(s.head));
    if (!HasWriterForm(s))
        return FormError(s, std::string(KindName(s.kind)) + " does not have the writers' form");
    std::string number;
    if (HoldsNonFinite(s, number))
        // Numbers are read as far as they go, "inf" and "nan" included, and printed as read.
        findings_.Add(s.line, Severity::Warning, "non-finite-number",
                      std::string(KindName(s.kind)) + " holds the number " + number +
                          ", which the input held and the writers print as read");
    switch (s.kind) {
        case Kind::ShapeOpen:
            references_.ShapeSection(s);
            break;
        case Kind::Circle:
        case Kind::Box:
        case Kind::Polygon:
            ++counts_.shapes, references_.Element(s);
            break;
        case Kind::SignalLayer:
        case Kind::PlaneLayer:
        case Kind::MediumLayer:
        case Kind::MediumPseudo:
        case Kind::PlanePseudo:
            ++counts_.layers, references_.Layer(s);
            break;
        case Kind::Patch:
            references_.Patch(s);
            break;
        case Kind::Node:
            ++counts_.nodes, references_.Node(s);
            break;
        case Kind::Trace:
            ++counts_.traces, references_.Trace(s);
            break;
        case Kind::Via:
            ++counts_.vias, references_.Via(s);
            break;
        case Kind::PadStackDef:
            ++counts_.padStacks, references_.PadStackDef(s);
            break;
        case Kind::PadDef:
            references_.PadDef(s);
            break;
        case Kind::PartialCkt:
            ++counts_.blocks, references_.PartialCkt(s);
            break;
        case Kind::Connect:
            ++counts_.linkages, references_.Connect(s);
            break;
        default:
            break;
    }
}

// The element line of a passive block ("R 1 2 10K"), or an instance of an IBIS model with
// its file on a continuation line.
void DeckChecker::TakeCircuitLine(const Statement& s) {
    const std::string first = FirstWord(s.head);
    bool element = (first == "R" || first == "L" || first == "C") && s.head.size() > 2;
    bool instance = first.compare(0, 2, "b_") == 0 && s.moreCount == 1 &&
                    MatchesForm("+ file='{N}' model='{N}'", s.more[0]);
    for (size_t i = 0; element && i < s.moreCount; ++i)
        element = s.more[i].size() > 2 && s.more[i][1] == ' ';
    if (!element && !instance)
        return FormError(s, "line in a circuit block is neither an element nor a model instance");
    references_.CircuitLine(s);
}

void DeckChecker::TakeLinkLine(const Statement& s) {
    if (s.moreCount != 0 || !IsLinkLine(s.head))
        return FormError(s, "line in a linkage block does not tie a pin to a package node");
    references_.LinkLine(s);
}

void DeckChecker::Finish(uint64_t lastLine, bool cutOff) {
    order_.Finish(lastLine, cutOff);
    references_.Finish();
}

namespace {

std::string Count(uint64_t n, const char* one, const char* many) {
    return std::to_string(n) + " " + (n == 1 ? one : many);
}

}  // namespace

std::string SummaryLine(const std::string& deckName, const DeckCounts& c, const Findings& f) {
    return deckName + ": " + Count(c.layers, "layer", "layers") + ", " +
           Count(c.shapes, "shape", "shapes") + ", " + Count(c.nodes, "node", "nodes") + ", " +
           Count(c.traces, "trace", "traces") + ", " + Count(c.vias, "via", "vias") + ", " +
           Count(c.padStacks, "padstack", "padstacks") + ", " + Count(c.blocks, "block", "blocks") +
           ", " + Count(c.linkages, "linkage", "linkages") + "; " +
           Count(f.Errors(), "error", "errors") + ", " + Count(f.Warnings(), "warning", "warnings");
}

bool CheckDeck(const std::string& path, Findings& findings, DeckCounts& counts) {
    DeckLines lines(path);
    if (!lines.IsOpen()) return false;
    StatementReader reader(lines);
    DeckChecker checker(findings);
    Statement statement;
    while (reader.Next(statement)) checker.Take(statement);
    checker.Finish(lines.Number() > 0 ? lines.Number() : 1, reader.CutOff());
    counts = checker.Counts();
    return true;
}

}  // namespace qfxview
