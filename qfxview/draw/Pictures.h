#pragma once
// The pictures of a deck: one PNG (and SVG when asked) per conductor layer and the stack
// picture, drawn on a second pass over the file from what the first pass gathered.
#include <string>
#include <vector>

#include "deck/DeckScan.h"

namespace qfxview {

struct PictureOptions {
    int width = 1600;
    bool svg = false;
    bool nodeMarks = false;
};

// File name of a layer's picture: "layer-" and the layer's name, any character that a file
// name should not hold as "_".
std::string LayerFileName(const DeckLayer& layer, const char* extension);

// Draws the deck into dir; returns the files written, or an empty list with error set.
std::vector<std::string> WritePictures(const std::string& deckPath, const DeckScan& scan,
                                       const PictureOptions& options, const std::string& dir,
                                       std::string& error);

}  // namespace qfxview
