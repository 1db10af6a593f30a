#pragma once
// The text that "-h", "-help", "--help" and "/?" print on standard output.
#include <string>

std::string UsageText();
