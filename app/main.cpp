#include "app/Ndd2QfxApp.h"

int main(int argc, char** argv) {
    return RunProcess(argc, argv);
}
