#include "dialogs/OutputName.h"

#include "base/Platform.h"

std::string DeriveOutputName(const std::string& input) {
    size_t sep = base::LastSeparator(input);
    size_t nameStart = sep == std::string::npos ? 0 : sep + 1;
    size_t dot = input.rfind('.');
    std::string stem = dot != std::string::npos && dot > nameStart ? input.substr(0, dot) : input;
    // A dot in a folder's name is no extension, and a folder alone is no file name.
    if (stem.size() == nameStart) stem += "ofile";
    return stem + ".qfx";
}
