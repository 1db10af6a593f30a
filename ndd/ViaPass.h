#pragma once
// The via pass: "%via" lines into the model's via array, each with the drill radius of its
// padstack from the size pass.
#include <cstddef>
#include <cstdint>
#include <string>

// Runs the size pass, then reads the vias of path. Returns 0 when the file cannot be read
// or memory runs out (after telling the user), 1 otherwise.
int ParseVia(const std::string& path);

// Index of radius in the drill radius table, adding it with the next free index when it is
// new; outPosition, when given, receives its place in the sorted table. UINT32_MAX when the table
// cannot take it.
uint32_t AddDrillRadius(double radius, size_t* outPosition = nullptr);
