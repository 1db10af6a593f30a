#pragma once
// The program's help: a page of the local help, found by tool name and tag, opened in the
// desktop's viewer.
#include <string>

struct DialogServices;

// "<program folder>help/<tool>/<tag>.html" as a file URL.
std::string HelpPageUrl(const std::string& tool, const std::string& tag);

// Opens the help at tool and tag; "Translators" and "UserGuide" stand in for empty ones. With
// VTR_LUMORA_HELP_DEBUG set to 1 a box shows the two names first. A page that is missing or
// that the desktop cannot show is reported.
void OpenHelpTopic(const DialogServices& services, std::string tool, std::string tag);
