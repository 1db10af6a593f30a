#include "deck/DeckLines.h"

#include <sys/types.h>
#include <cstdlib>

namespace qfxview {

DeckLines::DeckLines(const std::string& path) : file_(std::fopen(path.c_str(), "rb")) {
    // A large stream buffer: decks run to gigabytes and are read front to back.
    if (file_) std::setvbuf(file_, nullptr, _IOFBF, 1 << 20);
}

DeckLines::~DeckLines() {
    if (file_) std::fclose(file_);
    std::free(buffer_);
}

bool DeckLines::Next(std::string& line) {
    if (!file_) return false;
    ssize_t n = getline(&buffer_, &capacity_, file_);
    if (n < 0) return false;
    ++number_;
    offset_ += static_cast<uint64_t>(n);
    size_t length = static_cast<size_t>(n);
    unended_ = length == 0 || buffer_[length - 1] != '\n';
    if (!unended_) --length;
    if (length > 0 && buffer_[length - 1] == '\r') --length;
    line.assign(buffer_, length);
    return true;
}

}  // namespace qfxview
