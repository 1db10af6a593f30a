#pragma once
// A translation writes its QFX file, the log beside it and a temporary log. None of them may
// be a file that the same run reads, whatever names lead there: writing would destroy the
// user's input before it was read to the end.
#include <string>

// The message for the first file that the run would write over one it reads, or "" when the
// outputs are all distinct from the input, the loaded log and the side files. The loaded log
// may be rewritten as the new log (that is how a log is re-run), but never by the QFX file.
std::string FindInputClash(const std::string& inputFile, const std::string& outputFile);

// The same for error.log, which a batch run opens before anything is read.
std::string FindErrorLogClash(const std::string& errorLog);
