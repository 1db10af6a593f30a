#pragma once
// The one way to tell the user something. A batch run writes the text to error.log (and to
// standard error, so a command-line user sees it even before error.log is open); otherwise the
// host of the running translation shows it, or asks it when the box is a yes/no question.
#include <string>

// Box types and answers of a message box.
constexpr int kBoxOk = 0;
constexpr int kBoxYesNo = 4;
constexpr int kBoxWarning = 48;
constexpr int kAnswerYes = 6;
constexpr int kAnswerNo = 7;

// Returns kAnswerYes or kAnswerNo for a kBoxYesNo question, 1 otherwise.
int ReportMessage(std::string text, int boxType = kBoxOk, int helpId = 0);

// Writes a text as a batch run reports it: trailing blanks, newlines and tabs removed, one
// newline appended, to error.log when it is open, and to standard error.
void WriteBatchReport(const std::string& text);
