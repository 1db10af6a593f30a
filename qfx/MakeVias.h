#pragma once
// Turns each via of the design into stretches of barrel in g_model.g_aViaOut, one for each
// pair of consecutive layers that the via really touches, and makes their nodes. Small voids
// that a via stands in are marked discarded when the option asks for it; a small void that
// must stay puts a warning into the translation log.
//
// Runs on the sorted shape table, after the void check has set undiscardable. Returns 1, or 0
// when a node could not be made.
int MakeVias();
