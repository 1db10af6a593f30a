#pragma once
// The second pass over a deck: each statement is drawn the moment it is read, onto the
// canvases of the layers it lies on. Shapes come in falling size, so a void cuts the copper
// drawn before it and an island inside it is drawn after; traces and vias follow the shapes
// as they do in the deck. Only the nodes are kept, as hashed names with their places, since
// traces and vias name the nodes they join.
#include <QColor>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "deck/DeckScan.h"
#include "deck/Statement.h"
#include "draw/LayerCanvas.h"

namespace qfxview {

class DeckPainter {
  public:
    // canvases holds one entry per layer of the scan, null for a layer that is not drawn.
    DeckPainter(const DeckScan& scan, const std::vector<LayerCanvas*>& canvases, bool nodeMarks);
    void Take(const Statement& statement);

  private:
    struct NodePlace {
        uint64_t hash;
        float x, y;
        int32_t layer;
    };
    const NodePlace* FindNode(const std::string& name);
    void Element(const Statement& s);
    void Node(const Statement& s);
    void Trace(const Statement& s);
    void Via(const Statement& s);
    void Pad(int layer, const std::string& padStack, const QPointF& at, double rotation,
             const QColor& color);
    LayerCanvas* Canvas(int layer) const;

    const DeckScan& scan_;
    std::vector<LayerCanvas*> canvases_;
    bool nodeMarks_;
    int shapeLayer_ = -1;  // the layer of the open .Shape section
    QColor sectionColor_;
    std::vector<NodePlace> nodes_;  // sorted by hash once the first trace or via asks
    bool nodesSorted_ = false;
    // Nodes that stand behind a trace or via, in a deck out of order.
    std::unordered_map<uint64_t, NodePlace> lateNodes_;
};

}  // namespace qfxview
