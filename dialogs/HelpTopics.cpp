#include "dialogs/HelpTopics.h"

#include <cstdio>
#include <cstdlib>

#include "base/Platform.h"
#include "dialogs/DialogServices.h"
#include "model/ReportMessage.h"
#include "model/TranslationOptions.h"
#include "ui/MessageBox.h"

namespace {

std::string HelpPagePath(const std::string& tool, const std::string& tag) {
    return g_options.g_strProgramFolder + "help" + base::kSep + tool + base::kSep + tag + ".html";
}

bool HelpDebugWanted() {
    const char* value = std::getenv("VTR_LUMORA_HELP_DEBUG");
    return value && std::string(value) == "1";
}

}  // namespace

std::string HelpPageUrl(const std::string& tool, const std::string& tag) {
    return "file://" + base::AbsolutePath(HelpPagePath(tool, tag));
}

void OpenHelpTopic(const DialogServices& services, std::string tool, std::string tag) {
    if (tool.empty()) tool = "Translators";
    if (tag.empty()) tag = "UserGuide";
    if (HelpDebugWanted()) {
        char text[512];
        std::snprintf(text, sizeof text, "ToolName: %s\t\t\t\t\t\t\t\t\t\nTagName: %s\n",
                      tool.c_str(), tag.c_str());
        UiMessageBox(text, kBoxOk);
    }
    std::string page = HelpPagePath(tool, tag);
    if (!base::PathExists(page) || !services.openUrl(HelpPageUrl(tool, tag)))
        UiMessageBox("Cannot open the help page : " + page, kBoxWarning);
}
