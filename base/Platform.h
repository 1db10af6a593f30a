#pragma once
// The few places where the program meets the operating system. Paths from users, the
// command line and loaded logs may use either separator; they are normalised to the native
// one here, and "the last separator" means the last of either kind.
#include <ctime>
#include <string>

namespace base {

constexpr char kSep = '/';

// Every '\' and '/' becomes the native separator.
std::string NativeSeparators(std::string path);
// Position of the last '/' or '\', or std::string::npos.
size_t LastSeparator(const std::string& path);
bool HasSeparator(const std::string& path);
// Absolute, lexically normalised path (no symbolic links resolved).
std::string AbsolutePath(const std::string& path);
std::string CurrentFolder();
bool ChangeFolder(const std::string& folder);
bool PathExists(const std::string& path);
bool IsFolder(const std::string& path);
bool RemoveFile(const std::string& path);
// A file that nobody may write: no write permission bit is set, or this process may not
// write it. Windows calls such a file read-only and refuses to delete it.
bool IsReadOnlyFile(const std::string& path);
// Deletes a file as Windows does: a read-only file stays, and the call fails.
bool DeleteUnlessReadOnly(const std::string& path);
// Renames as Windows does: an existing file under the new name is not replaced.
bool RenameWithoutReplacing(const std::string& from, const std::string& to);
// TMP, then TEMP, then TMPDIR, then /tmp.
std::string TempFolder();
// Folder of the running program, with a trailing separator.
std::string ProgramFolder(const char* argv0);
// strftime under the "C" locale; "%#d" is taken as the day without a leading zero.
std::string FormatTime(const char* format, std::time_t when);

// The system's words for an error number.
const char* ErrorText(int error);
// Bytes of stack left below the caller's frame on the calling thread; 0 when unknown.
size_t StackRoom();
// Folder part of a path: the text up to and including its last separator of either kind.
std::string FolderWithSeparator(const std::string& path);

}  // namespace base
