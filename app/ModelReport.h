#pragma once
// The step that ends a translation: the output and the log are emptied and written again
// from the finished model, so the file the user gets is this second writing.
#include <string>

// outputFile is the output's name as the pipeline hands it on; the log follows the run's
// output name (g_strOutputFile). Returns 1, or 0 when the output cannot be opened again.
int WriteModelReport(const std::string& outputFile);
// The same with the run's output name.
int WriteModelReport();
