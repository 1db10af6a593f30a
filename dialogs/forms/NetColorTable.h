#pragma once
// The colours of nets by number: 0 is "default", a net without a colour of its own; 1 to 11
// are the named colours ("red" to "darkyellow", see NetColorName) as 0x00BBGGRR, red in the
// low byte.
#include <cstdint>

#include <QColor>

constexpr int kNetColorCount = 11;

constexpr uint32_t kNetColorValues[kNetColorCount + 1] = {
    0x00000000,  // default: no colour value
    0x000000FF, 0x0000FF00, 0x00FF0000, 0x0000FFFF, 0x00FF00FF, 0x00800000,
    0x00008000, 0x00808000, 0x00000080, 0x00800080, 0x00008080,
};

// The value of a colour number; 0 for "default" and for a number outside the table.
inline uint32_t NetColorValue(int index) {
    return index >= 1 && index <= kNetColorCount ? kNetColorValues[index] : 0;
}

// A 0x00BBGGRR value as the toolkit's colour.
inline QColor NetColorToQColor(uint32_t bgr) {
    return QColor(bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF);
}
