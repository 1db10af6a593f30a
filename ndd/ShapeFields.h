#pragma once
// Fields of the shape records of the board outline and the fills.
#include <string>
#include <string_view>
#include <vector>

#include "model/ShapeRec.h"

// The fields after keyword on the line (from the line's start when keyword is not in it), as
// NddGetToken gives them: a glued ';' is cut, and a lone ";" ends the record.
std::vector<std::string> FieldsAfter(std::string_view line, std::string_view keyword);

// Field i as a length in mm; a missing field is 0.
double LengthField(const std::vector<std::string>& fields, size_t i);

// Coordinate words of a record that may run over several lines. Adds the words of text to
// words; returns true when a word holding ';' (or a lone ";") ended the list.
bool AppendCoordinateWords(std::string_view text, std::vector<std::string>& words);

// Pairs of words as points in mm; a word left over at the end is dropped.
std::vector<ShapePoint> PointsOfWords(const std::vector<std::string>& words);
