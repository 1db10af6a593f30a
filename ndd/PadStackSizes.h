#pragma once
// The size pass at the head of the via pass: per padstack its smallest equivalent pad radius
// (or its drill), its layer words and its type.
#include <string>

#include "base/TextFile.h"
#include "model/PadRecords.h"

// Fills the model's padstack size list and map from the "%padstackdef" records of path.
void ParsePadStackSizes(const std::string& path);
// Drops the "%viarule"/"%pinrule" lines gathered from the last input text.
void ForgetViaRules();

// Equivalent radius of a "%polygon" whose coordinates follow in fields and, up to the line
// with a ';', on the next lines of stream. Sets the record's corner list.
double GetPolygonRadius(const std::string& fields, base::LineStream& stream, PadStackSizeRec& size);

// The type of a padstack without a "%padstacktype", from the layers its words name.
void GuessPadStackType(PadStackSizeRec& size);

// A buried padstack's type from its "%viarule" or "%pinrule" line in path; without one the
// translation log is told.
void ReadBuriedViaRule(PadStackSizeRec& size, const std::string& path);
