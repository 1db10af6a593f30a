#include "deck/DeckReferences.h"

#include "deck/Fields.h"
#include "deck/Forms.h"

namespace qfxview {

namespace {

bool StartsWith(const std::string& s, const std::string& prefix) {
    return s.compare(0, prefix.size(), prefix) == 0;
}

bool EndsWith(const std::string& s, const std::string& suffix) {
    return s.size() >= suffix.size() &&
           s.compare(s.size() - suffix.size(), suffix.size(), suffix) == 0;
}

const char kMirrored[] = "_Mirrd";

}  // namespace

void DeckReferences::Error(uint64_t line, const char* rule, const std::string& text) {
    findings_.Add(line, Severity::Error, rule, text);
}

void DeckReferences::Warning(uint64_t line, const char* rule, const std::string& text) {
    findings_.Add(line, Severity::Warning, rule, text);
}

void DeckReferences::Define(std::map<std::string, uint64_t>& table, const std::string& name,
                            uint64_t line, const char* what) {
    auto done = table.emplace(name, line);
    if (!done.second)
        Error(line, "duplicate-name",
              std::string(what) + " " + name + " is defined again (first at line " +
                  std::to_string(done.first->second) + ")");
}

template <class Names>
void DeckReferences::SealRepeats(Names& names, const char* what) {
    names.Seal([&](uint64_t line, uint64_t first) {
        Error(line, "duplicate-name",
              std::string(what) + " defined again: its name stands first at line " +
                  std::to_string(first));
    });
}

void DeckReferences::ShapeSection(const Statement& s) {
    Define(shapes_, Words(s.head).at(1), s.line, "shape section");
}

void DeckReferences::Element(const Statement& s) {
    std::string name = FirstWord(s.head);
    name.pop_back();  // the sign
    elements_.Add(HashName(name), s.line);
}

void DeckReferences::Layer(const Statement& s) {
    std::string name = FirstWord(s.head);
    if (layers_.emplace(name, s.kind).second)
        layerLines_[name] = s.line;
    else
        // A layer keeps the name that the input gives it, a repeated one too.
        Warning(s.line, "layer-name-repeated",
                "layer " + name + " is defined again (first at line " +
                    std::to_string(layerLines_[name]) + "): the input names two layers alike");
    std::string shape = ValueOf(s.head, "Shape");
    if (!shape.empty() && !shapes_.count(shape))
        Error(s.line, "unresolved-reference",
              "layer " + name + " names shape section " + shape + ", which is not defined");
}

void DeckReferences::Patch(const Statement& s) {
    const std::string name = s.head;
    Define(patches_, name, s.line, "patch");
    const std::string& more = s.more[0];
    std::string shape = ValueOf(more, "Shape"), layer = ValueOf(more, "Layer");
    auto found = layers_.find(layer);
    if (found == layers_.end() || found->second != Kind::SignalLayer) {
        Error(s.line, "unresolved-reference",
              "patch " + name + " names signal layer " + layer + ", which is not defined");
        return;
    }
    if (shapes_.count(shape)) return;
    // Every signal layer gets a patch, shapes or not; the one without keeps its reference.
    if (AfterDollar(shape) == AfterDollar(layer) && StartsWith(shape, "Shape$"))
        Warning(s.line, "patch-without-shapes",
                "patch " + name + " names shape section " + shape +
                    ", which its signal layer has not: a signal layer without shapes keeps "
                    "its patch");
    else
        Error(s.line, "unresolved-reference",
              "patch " + name + " names shape section " + shape + ", which is not defined");
}

void DeckReferences::RefersToPadStack(const std::string& name, uint64_t line) {
    if (!name.empty()) padStackRefs_.emplace(name, line);
}

void DeckReferences::Node(const Statement& s) {
    const std::string name = FirstWord(s.head);
    nodes_.Add(HashName(name), s.line);
    nodesFolded_.Add(HashFolded(name));
    nodeNumbers_.Add(HashName(NameBase(name)));
    std::string layer = ValueOf(s.head, "Layer");
    if (!layers_.count(layer))
        Error(s.line, "unresolved-reference",
              "node " + name + " names layer " + layer + ", which no layer line defines");
    RefersToPadStack(ValueOf(s.head, "PadStack"), s.line);
}

DeckReferences::NodeMatch DeckReferences::FindNode(const std::string& name) {
    if (!nodesSealed_) SealRepeats(nodes_, "node");
    nodesSealed_ = true;
    if (nodes_.Contains(HashName(name))) return NodeMatch::Exact;
    if (nodesFolded_.Contains(HashFolded(name))) return NodeMatch::Case;
    if (nodeNumbers_.Contains(HashName(NameBase(name)))) return NodeMatch::Number;
    return NodeMatch::None;
}

void DeckReferences::NodeReference(const std::string& name, uint64_t line, const char* who) {
    if (FindNode(name) != NodeMatch::Exact)
        Error(line, "unresolved-reference",
              std::string(who) + " names node " + name + ", which no node line defines");
}

void DeckReferences::Trace(const Statement& s) {
    traces_.Add(HashName(FirstWord(s.head)), s.line);
    NodeReference(ValueOf(s.head, "StartingNode"), s.line, "trace");
    NodeReference(ValueOf(s.head, "EndingNode"), s.line, "trace");
}

void DeckReferences::Via(const Statement& s) {
    vias_.Add(HashName(FirstWord(s.head)), s.line);
    for (const char* key : {"UpperNode", "LowerNode"}) {
        std::string node = ValueOf(s.head, key);
        NodeMatch match = FindNode(node);
        if (match == NodeMatch::Number)
            // A via keeps the nets its nodes had when it was made; the node line has the
            // net the node settled on later.
            Warning(s.line, "via-node-net",
                    "via names node " + node +
                        " with the net the node had when the via was made; its node line "
                        "carries another");
        else if (match != NodeMatch::Exact)
            Error(s.line, "unresolved-reference",
                  "via names node " + node + ", which no node line defines");
    }
    RefersToPadStack(ValueOf(s.head, "PadStack"), s.line);
}

void DeckReferences::PadStackDef(const Statement& s) {
    padStack_ = Words(s.head).at(1);
    Define(padStacks_, padStack_, s.line, "padstack");
}

void DeckReferences::PadDef(const Statement& s) {
    padStacksWithPads_.insert(padStack_);
    std::string layer = Words(s.head).at(1);
    if (layers_.count(layer)) return;
    if (StartsWith(layer, "Signal$") || StartsWith(layer, "Plane$"))
        Error(s.line, "unresolved-reference",
              "pad names layer " + layer + ", which no layer line defines");
    else
        Warning(s.line, "pad-layer-not-in-stack",
                "pad names layer " + layer +
                    ", which is not in the layer stack: a pad on such a layer keeps the "
                    "layer's own name");
}

void DeckReferences::PartialCkt(const Statement& s) {
    std::vector<std::string> words = Words(s.head);
    blockName_ = words.at(1);
    auto done = blocks_.emplace(blockName_, Block());
    block_ = &done.first->second;
    if (!done.second) {
        Error(s.line, "duplicate-name",
              "circuit block " + blockName_ + " is defined again (first at line " +
                  std::to_string(block_->line) + ")");
        block_->terminals.clear();
    }
    block_->line = s.line;
    block_->passive = words.size() > 2;
    for (size_t i = 4; i < words.size(); ++i) block_->terminals.insert(words[i]);
    for (size_t k = 0; k < s.moreCount; ++k) {
        std::vector<std::string> more = Words(s.more[k]);
        for (size_t i = 1; i < more.size(); ++i) block_->terminals.insert(more[i]);
    }
}

void DeckReferences::CircuitLine(const Statement& s) {
    if (!block_) return;
    const std::string first = FirstWord(s.head);
    if (StartsWith(first, "b_")) return;  // an instance of an IBIS model
    std::vector<std::string> names;
    for (size_t k = 0; k <= s.moreCount; ++k) {
        std::vector<std::string> words = Words(k == 0 ? s.head : s.more[k - 1]);
        names.insert(names.end(), words.begin() + 1, words.end());
    }
    // The value follows the last pin unless the line ends with a blank.
    const std::string& last = s.moreCount ? s.more[s.moreCount - 1] : s.head;
    if (!last.empty() && last.back() != ' ' && !names.empty()) names.pop_back();
    for (const std::string& name : names)
        if (!block_->terminals.count(name))
            Error(s.line, "unknown-terminal",
                  "element names " + name + ", which circuit block " + blockName_ +
                      " does not list among its terminals");
}

void DeckReferences::Connect(const Statement& s) {
    std::vector<std::string> words = Words(s.head);
    connects_.Add(HashName(words.at(1)), s.line);
    linkedName_ = words.at(2);
    auto found = blocks_.find(linkedName_);
    linked_ = found == blocks_.end() ? nullptr : &found->second;
    if (linked_) return;
    for (const auto& block : blocks_)
        if (EndsWith(block.first, linkedName_)) {
            // Block lines carry the name affix; linkage lines name the block without it.
            Warning(s.line, "linkage-block-affix",
                    "linkage names circuit block " + linkedName_ + ", which stands as " +
                        block.first + " with the name affix in front");
            return;
        }
    Error(s.line, "unresolved-reference",
          "linkage names circuit block " + linkedName_ + ", which is not defined");
}

void DeckReferences::LinkLine(const Statement& s) {
    std::vector<std::string> words = Words(s.head);
    const std::string node = words.at(1).substr(std::string("$Package.").size());
    NodeMatch match = FindNode(node);
    if (match == NodeMatch::Case)
        // A pin whose name or net matches its node's without case keeps its own spelling.
        Warning(s.line, "linkage-case",
                "linkage names node " + node +
                    ", which differs from its node line only in letter case");
    else if (match != NodeMatch::Exact)
        Error(s.line, "unresolved-reference",
              "linkage names node " + node + ", which no node line defines");
    if (linked_ && linked_->passive && !linked_->terminals.count(words[0]))
        Error(s.line, "unknown-terminal",
              "linkage names pin " + words[0] + ", which circuit block " + linkedName_ +
                  " does not list among its terminals");
}

void DeckReferences::Finish() {
    if (!nodesSealed_) SealRepeats(nodes_, "node");
    nodesSealed_ = true;
    SealRepeats(elements_, "shape element");
    SealRepeats(traces_, "trace");
    SealRepeats(vias_, "via");
    SealRepeats(connects_, "linkage of a component");
    for (const auto& ref : padStackRefs_) {
        if (padStacks_.count(ref.first)) continue;
        const std::string& name = ref.first;
        std::string plain = name.substr(0, name.size() - (sizeof kMirrored - 1));
        if (EndsWith(name, kMirrored) && padStacks_.count(plain) &&
            !padStacksWithPads_.count(plain))
            // Only a padstack with pads gets a mirrored copy.
            Warning(ref.second, "mirrored-padstack-without-pads",
                    "padstack " + name + " is named but not defined: a padstack without pads (" +
                        plain + ") gets no mirrored copy");
        else
            Error(ref.second, "unresolved-reference",
                  "padstack " + name + " is named but not defined");
    }
}

}  // namespace qfxview
