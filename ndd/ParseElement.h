#pragma once
// The fills and voids of the board ("%fill_area" records) as shapes.
#include <string>

// Reads the board outline, empties the shape tables and reads every fill that passes the net
// filter: its outlines as copper (polarity 2) and its cutouts as voids (polarity 3), all on the
// fill's layer and net. A fill with no boundary covers the board outline. Returns 1, or 0 when
// the file cannot be opened or memory runs out ("Insufficient Memory" has then been shown).
int ParseElement(const std::string& path);
