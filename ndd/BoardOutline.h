#pragma once
// The board outline: the points of the shape behind "%board_outline", which a fill without a
// boundary of its own covers.
#include <string>

// Fills g_lstBoardOutline from a "%line" path, a "%polygon" or a "%rectangle", closed by its
// first point. A file without an outline leaves the list empty.
void ParseBoardOutline(const std::string& path);
