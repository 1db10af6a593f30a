#pragma once
// The fixed head and tail of a QFX file.
#include <cstdio>

void WriteTitle(FILE* out);
void WriteTransient(FILE* out);
void WriteMesh(FILE* out);
void WritePackageHead(FILE* out);
// The padstack library, then ".EndPackage".
void WritePackageEnd(FILE* out);
void WriteFileEnd(FILE* out);
