#pragma once
// The About box of the "More..." menu: the program's picture above its version line and an
// OK button.
#include <memory>
#include <string>

class QDialog;
class QWidget;

// The caption of the About entry of the "More..." menu (the string resource 101).
std::string AboutEntryCaption();

// "Version <special build without its last part> (Build No. <product version, dots for
// commas>)".
std::string AboutVersionText();

// The About box, built and not shown.
std::unique_ptr<QDialog> MakeAboutDialog(QWidget* parent);
