#pragma once
// The output that an input chosen in the dialog proposes: "x.y.ndd" gives "x.y.qfx".
#include <string>

// The input up to the last dot of its file name (not a leading one), or the whole input when
// its file name has none, plus ".qfx"; a name that leaves no file name gets the stem "ofile".
std::string DeriveOutputName(const std::string& input);
