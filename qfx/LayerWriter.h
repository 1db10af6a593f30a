#pragma once
#include <cstdio>

// The layer stack, top first; pseudo planes below it when fewer than two planes (or signal
// layers with patches) exist; then the patches. Reads LayerRec::hasShapes, which
// WriteShapes sets, so it runs after it.
void WriteLayers(FILE* out);
