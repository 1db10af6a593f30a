#pragma once
// Pad boundaries by pad name, with the equivalent radius that the size pass compares.
#include <memory>
#include <string>

#include "base/TextFile.h"
#include "model/PadRecords.h"

// Reads every "%paddef" record's boundary into the model's pad boundary map.
void ParsePadDef(const std::string& path);

// Reads the boundary that follows on the next lines, up to "%end_boundary". line receives
// the last line read. Returns null when no shape was read or the file ended first. The stream
// becomes null when a polygon's words meet a line without a token.
std::shared_ptr<PadBoundaryRec> ParseBoundary(base::LineStream*& stream, std::string& line);
