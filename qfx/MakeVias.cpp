#include "qfx/MakeVias.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

#include "geometry/NodeGrid.h"
#include "geometry/PointInShape.h"
#include "model/LayoutModel.h"
#include "model/NodeSet.h"
#include "model/TranslationOptions.h"
#include "qfx/Naming.h"
#include "qfx/OutputScale.h"
#include "qfx/ViaContact.h"

namespace {

bool RealNet(int32_t net) {
    return net != kNoNet && net != kNoNetAlt;
}

bool IsVoid(const ShapeRec& s) {
    return s.polarity != kPolarityCopper;
}

// A via node takes the position of the via's upper node. The move is within the node
// tolerance of where the node was found, so the set's order is kept.
void PlaceAt(const NodeRec* node, double x, double y, NodeGrid& grid) {
    NodeRec* n = const_cast<NodeRec*>(node);
    const double oldX = n->x, oldY = n->y;
    n->x = x;
    n->y = y;
    grid.Moved(node, oldX, oldY);
}

// AddViaNode, entering a node that is new in the grid.
const NodeRec* AddGridNode(double x, double y, int32_t layer, int32_t net, uint16_t contact,
                           NodeGrid& grid) {
    const uint32_t count = g_model.g_nNodeCount;
    const NodeRec* node = AddViaNode(x, y, layer, net, contact, 1);
    if (node && g_model.g_nNodeCount != count) grid.Add(node);
    return node;
}

// The layers that some via crosses between its ends: those whose nodes NodeNear asks for.
std::vector<bool> MiddleLayers() {
    std::vector<bool> wanted(static_cast<size_t>(std::max<int32_t>(g_model.g_nLayerCount, 0)));
    for (const ViaRec& via : g_model.g_aVias) {
        if (via.noContact) continue;
        const int32_t end = std::min<int32_t>(via.endLayer, g_model.g_nLayerCount);
        for (int32_t L = via.startLayer + 1; L < end; ++L) wanted[static_cast<size_t>(L)] = true;
    }
    return wanted;
}

// Room that one via's walk fills and the next one's reuses.
struct ViaScratch {
    std::vector<double> radii;
    std::vector<const NodeRec*> near;
};

// One via's walk down its layers.
class ViaBuilder {
  public:
    ViaBuilder(const ViaRec& via, ShapeLocator& locator, NodeGrid& grid, ViaScratch& scratch,
               uint32_t& number)
        : via_(via),
          locator_(locator),
          grid_(grid),
          number_(number),
          radii_(scratch.radii),
          near_(scratch.near) {}

    bool Build() {
        int32_t shape = kNoShape;
        const int contact =
            via_.noContact ? 0 : ViaContact(via_.startLayer, via_, &shape, &locator_);
        const NodeRec* upper = AddGridNode(via_.x, via_.y, via_.startLayer, via_.net,
                                           static_cast<uint16_t>(contact), grid_);
        if (!upper) return false;
        upper->contact = static_cast<uint16_t>(contact);
        x_ = upper->x;
        y_ = upper->y;
        DiscardEndVoid(shape);
        upperId_ = upper->id;
        upperNet_ = upper->net;
        if (!via_.noContact) {
            const int32_t end = std::min<int32_t>(via_.endLayer, g_model.g_nLayerCount);
            GatherNearNodes(end);
            for (int32_t L = via_.startLayer + 1; L < end; ++L)
                if (!MiddleLayer(L, L - via_.startLayer - 1)) return false;
        }
        return LowerEnd();
    }

  private:
    // A small void on an end layer goes when the option asks for it and nothing needs it.
    void DiscardEndVoid(int32_t shape) {
        if (shape == kNoShape) return;
        ShapeRec& s = g_model.g_aShapes[static_cast<size_t>(shape)];
        if (IsVoid(s) && g_options.g_bExcludeVoidEnclosingVia && Limit() > s.area &&
            !s.undiscardable)
            s.discarded = 1;
    }

    static double Limit() { return g_options.g_dbViaVoidArea / kOutputScale / kOutputScale; }

    // The pad radius of each layer the via crosses, and the grid's nodes of all those layers
    // near the centre, gathered once for the widest pad: the walk adds and moves nodes only on
    // a layer it has asked about already, so the gathering stays true for the layers below.
    void GatherNearNodes(int32_t end) {
        radii_.clear();
        double widest = 0.0;
        for (int32_t L = via_.startLayer + 1; L < end; ++L) {
            const bool copper = g_model.g_aLayers[L].kind != kLayerDielectric;
            radii_.push_back(copper ? ViaPadRadius(via_, L) : 0.0);
            if (copper && radii_.back() > widest) widest = radii_.back();
        }
        near_.clear();
        nearKnown_ = widest > 0.0 &&
                     grid_.ForNear(x_, y_, widest, [&](const NodeRec& n) { near_.push_back(&n); });
    }

    bool MiddleLayer(int32_t L, int32_t crossed) {
        if (g_model.g_aLayers[L].kind == kLayerDielectric) return true;
        if (NodeNear(L, radii_[static_cast<size_t>(crossed)])) return Connect(L, false);
        const int32_t shape = ShapeAtCentre(L);
        if (shape == kNoShape) return true;
        ShapeRec& s = g_model.g_aShapes[static_cast<size_t>(shape)];
        if (!IsVoid(s)) return Connect(L, true);
        if (Limit() > s.area) {
            if (!s.undiscardable)
                s.discarded = g_options.g_bExcludeVoidEnclosingVia;
            else
                WarnEnclosed(shape);
        }
        return true;
    }

    // A node of the layer within the pad radius of the centre: a trace end on the pad. The
    // answer is whether the walk of the set from the lower bound of (L, x - r, y - r) to the
    // upper bound of (L, x + r, y + r) meets such a node; the grid finds the nodes near enough
    // and the set's order tells whether that walk would pass them.
    bool NodeNear(int32_t L, double r) const {
        // No distance is below a radius of 0 or less; nor is the range walk bounded then.
        if (!(r > 0.0)) return false;
        NodeRec low, high;
        low.layer = high.layer = L;
        low.x = x_ - r, low.y = y_ - r;
        high.x = x_ + r, high.y = y_ + r;
        auto near = [&](const NodeRec& n) {
            const double dx = n.x - x_, dy = n.y - y_;
            return std::sqrt(dx * dx + dy * dy) < r;
        };
        bool found = false;
        auto visit = [&](const NodeRec& n) {
            if (!found && n.layer == L && near(n) && !NodeOrder()(n, low) && !NodeOrder()(high, n))
                found = true;
        };
        if (nearKnown_) {
            for (const NodeRec* n : near_) visit(*n);
            return found;
        }
        if (grid_.ForNear(x_, y_, r, visit)) return found;
        WalkNodeRange(L, low.x, low.y, high.x, high.y, [&](const NodeRec& n) {
            found = near(n);
            return found;
        });
        return found;
    }

    // The first shape of the layer that holds the centre, passing over copper of another net
    // (and, with no-net etches included, any copper when the via has no net). Copper of
    // another real net that holds the centre gives the layer up when fills get a gap.
    int32_t ShapeAtCentre(int32_t L) const {
        const bool gap = g_options.g_dbGapAroundAreaFillOnPlaneLayers > 0;
        bool givenUp = false;
        const int32_t hit = FirstShapeHolding(L, x_, y_, &locator_, [&](int32_t i) {
            const ShapeRec& s = g_model.g_aShapes[static_cast<size_t>(i)];
            if (!IsVoid(s)) {
                const bool foreign = via_.net != kNoNet && s.net != via_.net;
                const bool noNetSkip = via_.net == kNoNet && g_options.g_nIncludeNoNetEtches;
                if (foreign || noNetSkip) {
                    if (gap && s.net != via_.net && RealNet(s.net) && RealNet(via_.net) &&
                        locator_.Holds(i, x_, y_))
                        givenUp = true;
                    return givenUp;
                }
            }
            return locator_.Holds(i, x_, y_) != 0;
        });
        return givenUp ? kNoShape : hit;
    }

    // Joins the barrel to the via's node on layer L and makes that node the upper end.
    bool Connect(int32_t L, bool placeAtUpper) {
        const NodeRec* node = FindNode(L, x_, y_);
        if (node) {
            node->viaRefs = 1;
        } else {
            node = AddGridNode(x_, y_, L, via_.net, 1, grid_);
            if (!node) return false;
            node->pad.Set(via_.padStack, via_.rotation);
        }
        if (placeAtUpper) PlaceAt(node, x_, y_, grid_);
        AddStretch(node);
        return true;
    }

    bool LowerEnd() {
        int32_t shape = kNoShape;
        const int contact = via_.noContact ? 0 : ViaContact(via_.endLayer, via_, &shape, &locator_);
        DiscardEndVoid(shape);
        const NodeRec* lower = AddGridNode(via_.x, via_.y, via_.endLayer, via_.net,
                                           static_cast<uint16_t>(contact), grid_);
        if (!lower) return false;
        PlaceAt(lower, x_, y_, grid_);
        lower->contact = static_cast<uint16_t>(contact);
        AddStretch(lower);
        return true;
    }

    void AddStretch(const NodeRec* lower) {
        ViaOutRec out;
        out.number = number_++;
        out.padStack = via_.padStack;
        out.rotation = via_.rotation;
        out.net = via_.net;
        out.drillIndex = via_.drillIndex;
        out.upperNode = upperId_;
        out.upperNet = upperNet_;
        out.lowerNode = lower->id;
        out.lowerNet = lower->net;
        g_model.g_aViaOut.push_back(out);
        upperId_ = lower->id;
        upperNet_ = lower->net;
    }

    // The warning names the net with one colon and its plain name.
    void WarnEnclosed(int32_t shape) const {
        FILE* log = g_options.g_pLogFile;
        if (!log) return;
        const ShapeRec& s = g_model.g_aShapes[static_cast<size_t>(shape)];
        const std::string net = via_.net == kNoNet ? std::string() : ":" + PlainNetName(via_.net);
        std::fprintf(log,
                     "Warning : Via%s%0ld%s(%lemm, %lemm) is enclosed by undiscardable %s%s%0d\n",
                     Affix().c_str(), static_cast<long>(number_), net.c_str(), x_ * kOutputScale,
                     y_ * kOutputScale, s.geometry == kGeometryCircle ? "Circle" : "Polygon",
                     Affix().c_str(), static_cast<int>(shape));
    }

    const ViaRec& via_;
    ShapeLocator& locator_;
    NodeGrid& grid_;
    uint32_t& number_;
    std::vector<double>& radii_;
    std::vector<const NodeRec*>& near_;
    bool nearKnown_ = false;
    double x_ = 0.0, y_ = 0.0;
    uint32_t upperId_ = 0;
    int32_t upperNet_ = kNoNet;
};

}  // namespace

int MakeVias() {
    g_model.g_aViaOut.clear();
    ShapeLocator locator;
    NodeGrid grid;
    grid.Build(MiddleLayers());
    ViaScratch scratch;
    uint32_t number = 1;
    for (const ViaRec& via : g_model.g_aVias)
        if (!ViaBuilder(via, locator, grid, scratch, number).Build()) return 0;
    return 1;
}
