#include "qfx/Skeleton.h"

#include "Version.h"
#include "qfx/Naming.h"
#include "qfx/PadStackSection.h"

void WriteTitle(FILE* out) {
    std::fprintf(out,
                 "Title - BOLT9000 file for version 2000.02 translated by Ndd2Qfx %s from "
                 "Mentor's NDD file .\n\n",
                 TitleVersion(NDD2QFX_PRODUCT_VERSION).c_str());
}

void WriteTransient(FILE* out) {
    std::fprintf(out, ".Transient Timesteps = 100 Viewstep = 10 DC = No Window = Yes\n\n");
}

void WriteMesh(FILE* out) {
    std::fprintf(out, ".Mesh Pkg = $Package Mesh_X = 30 Mesh_Y = 30\n\n");
}

void WritePackageHead(FILE* out) {
    std::fprintf(out,
                 ".Package $Package Trace_Color = blue Via_Color = red Hole_Color = yellow\n\n");
}

void WritePackageEnd(FILE* out) {
    WritePadStackLibrary(out);
    WriteMirroredPadStacks(out);
    std::fprintf(out, "\n\n");
    std::fprintf(out, ".EndPackage\n");
}

void WriteFileEnd(FILE* out) {
    std::fprintf(out, ".End\n");
}
