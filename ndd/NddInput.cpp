#include "ndd/NddInput.h"

#include "model/LayoutModel.h"
#include "model/ReportMessage.h"

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
    base::LoadStatus status = base::LoadStatus::Ok;
    base::SharedText text = base::LoadTextFile(path, &status);
    if (!text) {
        // A side file that is simply absent has its own handling; anything else is news.
        if (status != base::LoadStatus::Missing) NoteFileProblem(path, base::LastLoadFailure());
        return nullptr;
    }
    return std::make_unique<base::LineStream>(std::move(text));
}
