#include "model/TranslationOptions.h"

#include <strings.h>

TranslationOptions g_options;

const char* const kNetColorNames[11] = {"red",     "green",       "blue",      "yellow",
                                        "magenta", "darkblue",    "darkgreen", "darkcyan",
                                        "darkred", "darkmagenta", "darkyellow"};

const char* NetColorName(int32_t index) {
    if (index < 1 || index > 11) return nullptr;
    return kNetColorNames[index - 1];
}

int32_t NetColorIndexByName(const std::string& name) {
    for (int32_t i = 0; i < 11; ++i)
        if (strcasecmp(name.c_str(), kNetColorNames[i]) == 0) return i + 1;
    return 0;
}

int32_t NetColorOf(int32_t net) {
    const std::vector<int32_t>& colors = g_options.g_pNetColors;
    return net >= 0 && static_cast<size_t>(net) < colors.size() ? colors[static_cast<size_t>(net)]
                                                                : 0;
}

void ResetTranslationOptions() {
    for (FILE** f : {&g_options.g_pErrorLog, &g_options.g_pOutputFile, &g_options.g_pLogFile,
                     &g_options.g_pTempLogFile}) {
        if (*f) std::fclose(*f);
    }
    g_options = TranslationOptions{};
}
