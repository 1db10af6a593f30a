#pragma once
// Numbers as printf prints them in the "C" locale, without printf's cost. std::to_chars gives
// the same text: it rounds the exact binary value to nearest with ties to even, as the C library
// does in its default rounding mode. What is no finite number goes through snprintf, so its
// spelling ("inf", "-nan") stays the C library's.
#include <cstdio>
#include <string>

// Appends v as printf("%.*e", precision, v) prints it.
void AppendExp(std::string& out, double v, int precision);
// Appends v as printf("%.*f", precision, v) prints it.
void AppendFixed(std::string& out, double v, int precision);
// Appends v as printf("%lld", v) prints it.
void AppendInt(std::string& out, long long v);
// Writes the whole of text to out.
void PutText(FILE* out, const std::string& text);
