#pragma once
// The net table: net names come from the "%port" lines, sorted without case. Its index is
// the net index of every other record.
#include <cstdint>
#include <string>

#include "base/TextFile.h"
#include "ndd/NetColors.h"  // colours follow every reading of the table

// Reads the net table from the stream's first line on, then the display names.
void ParseNet(base::LineStream& stream);
// Unique display names: names that differ only in case get "_1", "_2", ... appended.
void BuildDisplayNetNames();
// Case-insensitive binary search; kNoNet when not found.
int32_t NetIndexByName(const std::string& name);
// True when no net selection is in force, or when the name (found case-sensitively) is
// among the selected nets.
bool IsNetSelected(const std::string& name);
// Selected-only mode when any net is selected, otherwise all-nets mode.
void SetNetSelectionMode();
