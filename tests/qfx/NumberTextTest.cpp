// The writers' number formatting must give the C library's text, byte for byte.
#include "qfx/NumberText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <vector>

namespace {

std::string Printf(const char* format, int precision, double v) {
    char buf[512];
    std::snprintf(buf, sizeof buf, format, precision, v);
    return buf;
}

// Counts the values whose text differs from snprintf's, in the three forms the writers use.
int Mismatches(const std::vector<double>& values) {
    int bad = 0;
    for (double v : values) {
        std::string e10, e6, f6;
        AppendExp(e10, v, 10);
        AppendExp(e6, v, 6);
        AppendFixed(f6, v, 6);
        bool same = e10 == Printf("%.*e", 10, v) && e6 == Printf("%.*e", 6, v) &&
                    f6 == Printf("%.*f", 6, v);
        if (!same && ++bad <= 5) ADD_FAILURE() << "differs for " << Printf("%.*a", 13, v);
    }
    return bad;
}

double FromBits(uint64_t bits) {
    double v;
    std::memcpy(&v, &bits, sizeof v);
    return v;
}

TEST(NumberText, MatchesSnprintfOnRandomAndEdgeValues) {
    std::mt19937_64 rng(17);
    using limits = std::numeric_limits<double>;
    // clang-format off
    std::vector<double> values = {
        0.0, -0.0, 1.0, -1.5, 2.5, 0.5, 9.9999999999499, 9.99999999995, 999999.5, -1e38,
        limits::max(), limits::min(), limits::denorm_min(), -limits::denorm_min(),
        limits::infinity(), -limits::infinity(), limits::quiet_NaN(), -limits::quiet_NaN()};
    // clang-format on
    std::uniform_int_distribution<int64_t> digits11(10000000000LL, 99999999999LL);
    std::uniform_int_distribution<int64_t> digits7(1000000, 9999999);
    std::uniform_int_distribution<int64_t> small(-1000000000, 1000000000);
    std::uniform_real_distribution<double> board(-2000.0, 2000.0);
    for (int i = 0; i < 40000; ++i) {
        values.push_back(FromBits(rng()));                          // any double
        values.push_back(FromBits(rng() & 0x800FFFFFFFFFFFFFull));  // subnormals
        values.push_back(board(rng));                               // lengths in mm
        values.push_back(static_cast<double>(small(rng)) * 1e-5);   // NDD units to mm
        // Exact halfway cases of each precision: 12 and 8 significant digits ending in 5, and
        // seven decimals ending in 5.
        values.push_back(static_cast<double>(digits11(rng)) + 0.5);
        values.push_back(std::ldexp(static_cast<double>(digits11(rng)) * 2 + 1, -1 - i % 30));
        values.push_back(static_cast<double>(digits7(rng)) + 0.5);
        values.push_back(static_cast<double>(small(rng)) / 128.0);
    }
    EXPECT_EQ(Mismatches(values), 0);
}

TEST(NumberText, IntegersAsPrintf) {
    std::string out;
    AppendInt(out, 0);
    out += ' ';
    AppendInt(out, -2147483647LL - 1);
    out += ' ';
    AppendInt(out, 65536);
    EXPECT_EQ(out, "0 -2147483648 65536");
}

}  // namespace
