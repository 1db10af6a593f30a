#pragma once
// Reading a translation log back: it restores the input and output names, the chosen nets
// with their colours, and the settings. The reader is tolerant: it knows older wordings, and
// apart from two lines it can only switch settings on.
#include <string>

// inputFile and outputFile are the names in force (command line or dialog fields); the log's
// paths replace them where they differ. Returns false when the file cannot be read or is no
// translation log; the user has been told.
bool LoadLogFile(const std::string& logPath, std::string& inputFile, std::string& outputFile);
