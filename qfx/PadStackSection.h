#pragma once
// The padstack library of the package: one ".PadStackDef" per padstack, then a mirrored copy
// ("_Mirrd") of each for parts placed on the bottom side. Both writers leave their marks on
// the padstack records (layer names, exchanged pads), so a second writing differs from the
// first in the way the output format expects. Neither prints anything without a stream.
#include <cstdio>

void WritePadStackLibrary(FILE* out);
void WriteMirroredPadStacks(FILE* out);
