#include "geometry/ShapeLocator.h"

#include <algorithm>
#include <cmath>

#include "geometry/ShapeBoxes.h"
#include "ndd/LayoutModel.h"

namespace {

constexpr int32_t kMaxCellsPerAxis = 256;

// The cell of a coordinate: floor((v - min) / size), held to [0, count). Monotonic in v, so a
// point inside a box always falls between the cells of the box's two sides.
int32_t CellOf(double v, double min, double size, int32_t count) {
    if (count <= 1 || !(size > 0.0)) return 0;
    double q = std::floor((v - min) / size);
    if (!(q >= 0.0)) return 0;  // also NaN
    if (q >= static_cast<double>(count - 1)) return count - 1;
    return static_cast<int32_t>(q);
}

bool Finite(const BoundingBox& b) {
    return std::isfinite(b.minX) && std::isfinite(b.minY) && std::isfinite(b.maxX) &&
           std::isfinite(b.maxY);
}

}  // namespace

int32_t LayerShapeLocator::Column(double x) const {
    return CellOf(x, minX_, cellW_, columns_);
}

int32_t LayerShapeLocator::Row(double y) const {
    return CellOf(y, minY_, cellH_, rows_);
}

LayerShapeLocator::LayerShapeLocator(ShapeRun run) : run_(run) {
    const int32_t count = run.end - run.first;
    if (count <= 0) return;
    boxes_.reserve(static_cast<size_t>(count));
    double maxX = 0.0, maxY = 0.0;
    bool any = false;
    for (int32_t i = run.first; i < run.end; ++i) {
        boxes_.push_back(ShapeBox(i));
        const BoundingBox& b = boxes_.back();
        if (!Finite(b)) continue;
        minX_ = any ? std::min(minX_, b.minX) : b.minX;
        minY_ = any ? std::min(minY_, b.minY) : b.minY;
        maxX = any ? std::max(maxX, b.maxX) : b.maxX;
        maxY = any ? std::max(maxY, b.maxY) : b.maxY;
        any = true;
    }
    const int32_t side = std::min<int32_t>(
        kMaxCellsPerAxis, static_cast<int32_t>(std::ceil(std::sqrt(static_cast<double>(count)))));
    if (any && maxX - minX_ > 0.0) {
        columns_ = side;
        cellW_ = (maxX - minX_) / side;
    }
    if (any && maxY - minY_ > 0.0) {
        rows_ = side;
        cellH_ = (maxY - minY_) / side;
    }
    // Each shape goes into every cell its box covers; a side that is not a number covers the
    // whole axis, since the box test cannot reject anything there.
    auto span = [](double lo, double hi, double min, double size, int32_t n, int32_t& a,
                   int32_t& b) {
        a = std::isnan(lo) ? 0 : CellOf(lo, min, size, n);
        b = std::isnan(hi) ? n - 1 : CellOf(hi, min, size, n);
    };
    const size_t cells = static_cast<size_t>(columns_) * static_cast<size_t>(rows_);
    cellStart_.assign(cells + 1, 0);
    for (int pass = 0; pass < 2; ++pass) {
        std::vector<uint32_t> fill(cellStart_.begin(), cellStart_.end() - 1);
        for (int32_t k = 0; k < count; ++k) {
            const BoundingBox& b = boxes_[static_cast<size_t>(k)];
            int32_t c0, c1, r0, r1;
            span(b.minX, b.maxX, minX_, cellW_, columns_, c0, c1);
            span(b.minY, b.maxY, minY_, cellH_, rows_, r0, r1);
            for (int32_t r = r0; r <= r1; ++r)
                for (int32_t c = c0; c <= c1; ++c) {
                    size_t cell = static_cast<size_t>(r * columns_ + c);
                    if (pass == 0)
                        ++cellStart_[cell + 1];
                    else
                        entries_[fill[cell]++] = run.first + k;
                }
        }
        if (pass == 0) {
            for (size_t c = 0; c < cells; ++c) cellStart_[c + 1] += cellStart_[c];
            entries_.resize(cellStart_[cells]);
        }
    }
}

const LayerShapeLocator& ShapeLocator::Layer(int32_t layer) {
    if (layer < 0 || layer >= kMaxLayers) {
        other_ = std::make_unique<LayerShapeLocator>(FindLayerShapeRun(layer));
        return *other_;
    }
    if (layers_.empty()) layers_.resize(kMaxLayers);
    auto& slot = layers_[static_cast<size_t>(layer)];
    if (!slot) slot = std::make_unique<LayerShapeLocator>(FindLayerShapeRun(layer));
    return *slot;
}
