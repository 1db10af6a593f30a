#pragma once
// Names that a deck defines and the references to them: every reference resolves, no name
// is defined twice. Small tables (layers, shape sections, padstacks, circuit blocks) keep
// their names; nodes, elements, traces and vias only hashes of theirs.
#include <cstdint>
#include <map>
#include <string>
#include <unordered_map>
#include <unordered_set>

#include "deck/Findings.h"
#include "deck/NameHash.h"
#include "deck/Statement.h"

namespace qfxview {

class DeckReferences {
  public:
    explicit DeckReferences(Findings& findings) : findings_(findings) {}
    void ShapeSection(const Statement& s);
    void Element(const Statement& s);
    void Layer(const Statement& s);
    void Patch(const Statement& s);
    void Node(const Statement& s);
    void Trace(const Statement& s);
    void Via(const Statement& s);
    void PadStackDef(const Statement& s);
    void PadDef(const Statement& s);
    void PartialCkt(const Statement& s);
    void CircuitLine(const Statement& s);
    void Connect(const Statement& s);
    void LinkLine(const Statement& s);
    // Resolves what could only be resolved at the end and reports repeated hashed names.
    void Finish();

  private:
    struct Block {
        uint64_t line = 0;
        bool passive = false;
        std::unordered_set<std::string> terminals;
    };
    enum class NodeMatch { Exact, Case, Number, None };
    NodeMatch FindNode(const std::string& name);
    void Define(std::map<std::string, uint64_t>& table, const std::string& name, uint64_t line,
                const char* what);
    void RefersToPadStack(const std::string& name, uint64_t line);
    void NodeReference(const std::string& name, uint64_t line, const char* who);
    void Error(uint64_t line, const char* rule, const std::string& text);
    void Warning(uint64_t line, const char* rule, const std::string& text);
    template <class Names>
    void SealRepeats(Names& names, const char* what);

    Findings& findings_;
    std::map<std::string, uint64_t> shapes_;
    std::map<std::string, Kind> layers_;
    std::map<std::string, uint64_t> layerLines_;
    std::map<std::string, uint64_t> patches_;
    HashedNames elements_, nodes_, traces_, vias_, connects_;
    HashSet nodesFolded_, nodeNumbers_;
    bool nodesSealed_ = false;
    std::map<std::string, uint64_t> padStacks_;
    std::unordered_set<std::string> padStacksWithPads_;
    std::string padStack_;  // the open .PadStackDef
    std::unordered_map<std::string, uint64_t> padStackRefs_;
    std::map<std::string, Block> blocks_;
    Block* block_ = nullptr;  // the open .PartialCkt
    std::string blockName_;
    Block* linked_ = nullptr;  // the block of the open .Connect
    std::string linkedName_;
};

}  // namespace qfxview
