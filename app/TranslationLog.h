#pragma once
// The translation log <output>.log: versions, paths, chosen nets and settings of the run,
// the warnings that passes append, and the component report of the second writing. The same
// file is a saved setup that LoadLogFile reads back.
#include <cstdio>
#include <string>

// Identity, paths, date, nets, settings and the "Warning(s):" heading, to the open log.
void WriteLogHeader();
void WriteLogHeader(FILE* log);

// Appends a text to the log as it stands.
void LogWarning(const std::string& text);
// Set once a warning has been written to the log; cleared for each translation.
extern int g_bLogHasWarnings;
void ResetLogWarnings();

// "Component Model Info": every component with its value, and their count.
void WriteModelReportLines(FILE* log);
