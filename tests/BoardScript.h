#pragma once
// Boards built and examined by a short script, so that a case of a writer or a pass is one
// data file. A line "> COMMAND ARGS" runs a command; the lines after it, up to the next
// command, are the exact text that it must print (most commands print nothing). Lines that
// begin with "#" are comments. The commands are listed in BoardScript.cpp.
#include <string>
#include <vector>

namespace board_script {

struct Step {
    int line = 0;  // of the command in the script
    std::string command, expected, actual;
};

// Runs script on a fresh model; every command with what it should and did print.
std::vector<Step> Run(const std::string& script);

}  // namespace board_script
