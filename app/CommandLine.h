#pragma once
// The command line: options first, then up to three names. Result codes: 0 no file named,
// 1 file names taken, 2 the first name has an unknown extension, 4 started by the parent tool
// ("-pipe" or "/pipe" among the options; names behind the options are then not read).
#include <string>
#include <vector>

constexpr int kCmdNoFile = 0;
constexpr int kCmdFilesTaken = 1;
constexpr int kCmdUnknownExtension = 2;
constexpr int kCmdPipeStart = 4;

// args[0] is the program. Sets the option fields it meets in the global options.
int ParseCommandLine(const std::vector<std::string>& args, std::string& logFile,
                     std::string& inputFile, std::string& outputFile);

// The output name of an input: up to the dot at or behind the fourth character from the
// end, plus ".qfx".
std::string DefaultOutputName(const std::string& inputFile);
