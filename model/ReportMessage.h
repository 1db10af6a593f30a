#pragma once
// The one way to tell the user something. A dialog run shows a message box through the
// installed box handler; a batch run writes the text to error.log (and to standard error, so
// a command-line user sees it even before error.log is open).
#include <string>

// Box types and answers of a message box.
constexpr int kBoxOk = 0;
constexpr int kBoxYesNo = 4;
constexpr int kBoxWarning = 48;
constexpr int kAnswerYes = 6;
constexpr int kAnswerNo = 7;

int ReportMessage(std::string text, int boxType = kBoxOk, int helpId = 0);

// Writes a text as a batch run reports it: trailing blanks, newlines and tabs removed, one
// newline appended, to error.log when it is open, and to standard error.
void WriteBatchReport(const std::string& text);

// The dialog layer installs the box; without one, a dialog-run message goes to standard error.
using MessageBoxHandler = int (*)(const std::string& text, int boxType, int helpId);
void SetMessageBoxHandler(MessageBoxHandler handler);
