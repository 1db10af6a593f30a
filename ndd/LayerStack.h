#pragma once
// The materials and the layer stack, read from the NDD file top layer first. Every other
// reader refers to a layer by its index in this table.
#include <string>

// Reads the materials and the layer lines of path into the model's layer table and its two
// maps. Returns 0, after telling the user, when the file holds more layers than the table
// can take; 1 otherwise (a file that cannot be read leaves the table empty).
int ParseLayer(const std::string& path);
