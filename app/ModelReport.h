#pragma once
// The step that ends a translation: the output and the log are emptied and written again
// from the finished model, so the file the user gets is this second writing.
#include <string>

class ModelAssignment;
class ComponentNodes;

// outputFile is the output's name as the pipeline hands it on; the log follows the run's
// output name (g_strOutputFile). models and nodes are the translation's block table and
// component nodes, for the circuit description and the linkage section. Returns 1, or 0 when
// the output cannot be opened again or a write to it fails.
int WriteModelReport(const std::string& outputFile, ModelAssignment* models = nullptr,
                     ComponentNodes* nodes = nullptr);
// The same with the run's output name.
int WriteModelReport();
// The log that WriteModelReport writes for an output name.
std::string ModelReportLogPath(const std::string& outputFile);
