#pragma once
// Pad shapes as the pad and padstack library passes read them: word by word, across lines,
// with keywords compared without case.
#include <string>

#include "base/TextFile.h"
#include "model/PadRecords.h"

// Words of a record that may run over several lines. The stream pointer is the pass's own:
// it becomes null when the file ends or a line without a token is met, which ends the pass.
class NddWordReader {
  public:
    NddWordReader(base::LineStream*& stream, std::string firstLine)
        : stream_(stream), rest_(std::move(firstLine)) {}
    std::string Next(bool cutSemicolon = true);
    bool Ended() const { return stream_ == nullptr; }

  private:
    base::LineStream*& stream_;
    std::string rest_;
};

// Reads the fields of the shape that keyword names into shape (kind 1 rectangle, 2 circle,
// 3 polygon or path, 4 oval along X, 5 oval along Y), lengths in mm. Another keyword gives
// kind 0. A "%line"/"%arc" path is read only when allowPath is set. next receives a word
// that was read past the shape and not yet used, or "".
void ReadPadShape(NddWordReader& words, const std::string& keyword, bool allowPath,
                  PadLibRec& shape, std::string& next);

// An inline "%begin_boundary" ... "%end_boundary" of a padstack's pad line, read after the
// "%begin_boundary" word up to and including "%end_boundary". A path gives kind 0.
void ReadInlineBoundary(NddWordReader& words, PadLibRec& shape);

// Reads words up to and including the first that equals word without case, or to the end.
void SkipToWord(NddWordReader& words, std::string current, const char* word);
