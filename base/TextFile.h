#pragma once
// Input files are read once into memory; each pass then walks the text as if it read the
// file line by line with a buffer of its own size, as fgets would. A line longer than the
// buffer arrives as several pieces of (buffer size - 1) characters, line ends are kept, and a
// carriage return directly before a line feed is dropped when the file is loaded, so that
// files written on Windows read the same.
#include <memory>
#include <string>

namespace base {

using SharedText = std::shared_ptr<const std::string>;

enum class LoadStatus { Ok, Missing, IsFolder, NotRegular, Unreadable };

// Loads a whole file in text mode. Only regular files are read: a device or a pipe could
// feed the reader for ever. Returns null and sets status on failure.
SharedText LoadTextFile(const std::string& path, LoadStatus* status = nullptr);

// The system's words for the last failure of LoadTextFile on this thread.
std::string LastLoadFailure();

// Drops each carriage return that stands directly before a line feed.
std::string DropCrBeforeLf(std::string raw);

class LineStream {
  public:
    LineStream() = default;
    explicit LineStream(SharedText text) : text_(std::move(text)) {}

    // Reads the next piece with a buffer of bufferSize bytes. Returns false at the end of
    // the text with nothing read. The piece is cut at an embedded NUL byte, as a C string
    // would be, while the position moves past the whole piece.
    bool ReadLine(std::string& out, size_t bufferSize);
    bool AtEnd() const { return !text_ || pos_ >= text_->size(); }
    void Rewind() { pos_ = 0; }
    size_t Tell() const { return pos_; }
    void Seek(size_t pos) { pos_ = pos; }
    bool IsOpen() const { return static_cast<bool>(text_); }
    const SharedText& Text() const { return text_; }

  private:
    SharedText text_;
    size_t pos_ = 0;
};

// The buffer sizes that the readers use.
constexpr size_t kNddLineBuffer = 2048;
constexpr size_t kWideLineBuffer = 16384;
constexpr size_t kLogLineBuffer = 384;

}  // namespace base
