#pragma once
// File operations that record their failure in the run log instead of failing the caller.
#include <string>

namespace base {

// Deletes a file; a failure is written to the run log as
// "ERROR: /SafeDeleteFile/_tremove(<path>) (<error>)". True when the file was deleted.
bool SafeDeleteFile(const std::string& path);

// Makes a folder and every missing folder above it; a failure is written to the run log as
// "ERROR: /SafeCreatePath/_tmkdir(<folder>) (<error>)". True when the folder exists after.
bool SafeCreatePath(const std::string& folder);

}  // namespace base
