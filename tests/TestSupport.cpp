#include "TestSupport.h"

#include "model/LayoutModel.h"
#include "model/TraceStep.h"
#include "model/TranslationOptions.h"

namespace testing_support {

void ResetGlobals() {
    setenv("KEEP_BENCHMARK", "0", 1);
    ResetTraceStep();
    ResetTranslationOptions();
    ResetLayoutModel();
}

}  // namespace testing_support
