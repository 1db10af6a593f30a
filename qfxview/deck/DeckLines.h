#pragma once
// Reads a deck one line at a time with its number; nothing of the file is kept beyond the
// line in hand.
#include <cstdint>
#include <cstdio>
#include <string>

namespace qfxview {

class DeckLines {
  public:
    explicit DeckLines(const std::string& path);
    ~DeckLines();
    DeckLines(const DeckLines&) = delete;
    DeckLines& operator=(const DeckLines&) = delete;

    bool IsOpen() const { return file_ != nullptr; }
    // The next line without its line end (a CR before it goes too); false at the end.
    bool Next(std::string& line);
    // Number of the line that Next gave last, from 1.
    uint64_t Number() const { return number_; }
    // Whether the last line had no line end: the file was cut off in the middle of a line.
    bool LastLineUnended() const { return unended_; }
    // Bytes read so far.
    uint64_t Offset() const { return offset_; }

  private:
    FILE* file_ = nullptr;
    char* buffer_ = nullptr;
    size_t capacity_ = 0;
    uint64_t number_ = 0;
    uint64_t offset_ = 0;
    bool unended_ = false;
};

}  // namespace qfxview
