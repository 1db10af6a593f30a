#pragma once
// Every pass reads the NDD file from its first line, as if it opened the file by path. The
// file is loaded into memory once per translation and the passes walk that text.
#include <memory>
#include <string>

#include "base/TextFile.h"

// Loads path afresh as the translation's input. Returns false when it cannot be read.
bool LoadNddInput(const std::string& path, base::LoadStatus* status = nullptr);
// Drops the loaded input, so the next open reads the disk again.
void ForgetNddInput();
// A stream at the first line of path: the loaded input when path names it, otherwise the
// file read from disk (and kept as the loaded input). Null when the file cannot be read.
std::unique_ptr<base::LineStream> OpenNdd(const std::string& path);
// Any other text file (side files, IBIS files, logs): read from disk each time.
std::unique_ptr<base::LineStream> OpenTextFile(const std::string& path);
