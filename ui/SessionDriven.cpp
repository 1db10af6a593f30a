#include "ui/SessionDriven.h"

namespace ui {

namespace {

bool g_bSessionDriven = false;

}  // namespace

void SetSessionDriven(bool driven) {
    g_bSessionDriven = driven;
}

bool SessionDriven() {
    return g_bSessionDriven;
}

}  // namespace ui
