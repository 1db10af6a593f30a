#pragma once
// A net is named by its place in the sorted net table. Two values mean "no net"; they lie far
// beyond any table that fits in memory, so no real net takes them however many a board has.
#include <cstdint>

constexpr int32_t kNoNet = INT32_MAX;
constexpr int32_t kNoNetAlt = INT32_MAX - 1;
