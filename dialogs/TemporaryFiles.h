#pragma once
// What a dialog run leaves behind beside its input and output besides the QFX file and its
// log: the model log of an unfinished translation and files of the same stem.
#include <string>

// Closes the run's open streams, then deletes, where they exist as files:
// "<folder of the input>temp.log" when an input is named; "<output>temp.log", the output with
// "log" as its extension and the output without its extension when an output is named. The
// translation's own log, "<output>.log", stays.
void DeleteTemporaryFiles(const std::string& input, const std::string& output);
