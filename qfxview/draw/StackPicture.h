#pragma once
// The layer lines of a deck drawn as a cross-section, top layer first, each band with the
// layer's name and thickness.
#include <string>
#include <vector>

#include "deck/DeckScan.h"

namespace qfxview {

// Writes the picture as a PNG of the given width; false if it could not be written.
bool WriteStackPicture(const std::vector<DeckLayer>& layers, int width, const std::string& path);

}  // namespace qfxview
