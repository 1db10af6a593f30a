#pragma once
// The outline of a pad around its centre, offsets included, for the painter.
#include <QPainterPath>

#include "deck/DeckScan.h"

namespace qfxview {

QPainterPath PadPath(const PadShape& pad);

}  // namespace qfxview
