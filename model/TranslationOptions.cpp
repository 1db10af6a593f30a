#include "model/TranslationOptions.h"

TranslationOptions g_options;

const char* const kNetColorNames[11] = {"red",     "green",       "blue",      "yellow",
                                        "magenta", "darkblue",    "darkgreen", "darkcyan",
                                        "darkred", "darkmagenta", "darkyellow"};

const char* NetColorName(int32_t index) {
    if (index < 1 || index > 11) return nullptr;
    return kNetColorNames[index - 1];
}

void ResetTranslationOptions() {
    for (FILE** f : {&g_options.g_pErrorLog, &g_options.g_pOutputFile, &g_options.g_pLogFile,
                     &g_options.g_pTempLogFile}) {
        if (*f) std::fclose(*f);
    }
    g_options = TranslationOptions{};
}
