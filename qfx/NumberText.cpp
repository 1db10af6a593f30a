#include "qfx/NumberText.h"

#include <charconv>
#include <cmath>

namespace {

void AppendFormatted(std::string& out, double v, int precision, std::chars_format form,
                     const char* format) {
    // Room for the longest fixed form of a double: 309 digits, point, precision and sign.
    char buf[400];
    if (std::isfinite(v) && precision >= 0 && precision < 40) {
        std::to_chars_result r = std::to_chars(buf, buf + sizeof buf, v, form, precision);
        if (r.ec == std::errc()) {
            out.append(buf, r.ptr);
            return;
        }
    }
    int n = std::snprintf(buf, sizeof buf, format, precision, v);
    if (n > 0) out.append(buf, static_cast<size_t>(n) < sizeof buf ? n : sizeof buf - 1);
}

}  // namespace

void AppendExp(std::string& out, double v, int precision) {
    AppendFormatted(out, v, precision, std::chars_format::scientific, "%.*e");
}

void AppendFixed(std::string& out, double v, int precision) {
    AppendFormatted(out, v, precision, std::chars_format::fixed, "%.*f");
}

void AppendInt(std::string& out, long long v) {
    char buf[24];
    std::to_chars_result r = std::to_chars(buf, buf + sizeof buf, v);
    out.append(buf, r.ptr);
}

void PutText(FILE* out, const std::string& text) {
    std::fwrite(text.data(), 1, text.size(), out);
}
