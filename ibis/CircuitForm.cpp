#include "ibis/CircuitForm.h"

bool g_bKeepActiveFormForTests = false;
