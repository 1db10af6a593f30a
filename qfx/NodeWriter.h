#pragma once
// The node lines of the package: one line per node that something holds, in the order of the
// node set (layer, then x, then y).
#include <cstdio>

// Also settles the drill of every via padstack that has none, from the via output table, so
// that the padstack library prints it, and rebuilds the node index.
void WriteNodes(FILE* out);

// What WriteNodes leaves in the model, without its text: the via padstacks' drills and the
// node index.
void PrepareNodeWriting();
