#pragma once
// The pad library and the padstack library that the QFX padstack section prints, read
// before the pipeline starts.
#include <string>

// "%paddef" records into the model's pad library, by name with blanks and commas as "_".
void ParsePadLibrary(const std::string& path);
// "%padstackdef" records into the model's padstack map, with their pads from the library.
void ParsePadStackLibrary(const std::string& path);
// Both library passes, in order.
void ParsePadDefData(const std::string& path);
