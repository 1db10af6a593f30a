#include "ndd/NddInput.h"

#include "model/LayoutModel.h"

bool LoadNddInput(const std::string& path, base::LoadStatus* status) {
    g_model.inputText = base::LoadTextFile(path, status);
    g_model.inputTextPath = g_model.inputText ? path : std::string();
    return static_cast<bool>(g_model.inputText);
}

void ForgetNddInput() {
    g_model.inputText.reset();
    g_model.inputTextPath.clear();
}

std::unique_ptr<base::LineStream> OpenNdd(const std::string& path) {
    if (!g_model.inputText || g_model.inputTextPath != path) {
        if (!LoadNddInput(path)) return nullptr;
    }
    return std::make_unique<base::LineStream>(g_model.inputText);
}

std::unique_ptr<base::LineStream> OpenTextFile(const std::string& path) {
    base::SharedText text = base::LoadTextFile(path);
    if (!text) return nullptr;
    return std::make_unique<base::LineStream>(std::move(text));
}
