#pragma once
#include <string>

// Reads the unit lines ("%length" and friends) and sets the length and conductivity scales.
void ParseUnits(const std::string& path);
