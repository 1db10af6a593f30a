#include "ndd/NddTokens.h"

#include <gtest/gtest.h>

#include <memory>

#include "base/TextFile.h"

namespace {

// One call: the text, the position before, whether a glued ";" is cut; then the token, the
// position after as the remainder of the text from it ("@N" for a position left at N, "@none"
// for no position).
TEST(NddGetToken, OneCall) {
    const struct {
        const char* text;
        int from;
        bool cut;
        const char *token, *rest;
    } rows[] = {
        {"10;\n", kNoPosition, true, "10", ""},
        {"10;\n", kNoPosition, false, "10;", ""},
        // After a lone ";" the position is none, and the remainder is the whole text again.
        {"; 5 6\n", 7, true, "", "@none"},
        {"\"N1\";\n", kNoPosition, true, "\"N1\"", ";\n"},
        {"", 42, true, "", "@42"},
        {"\nabc", 42, true, "", "@42"},
    };
    for (const auto& row : rows) {
        int pos = row.from;
        const std::string token = NddGetToken(row.text, pos, row.cut);
        const std::string rest = pos == row.from      ? "@" + std::to_string(pos)
                                 : pos == kNoPosition ? "@none"
                                                      : Mid(row.text, pos);
        EXPECT_EQ(token + "|" + rest, std::string(row.token) + "|" + row.rest) << row.text;
    }
    EXPECT_EQ(Mid("; 5 6\n", kNoPosition), "; 5 6\n");
}

// A line and its first tokens, each ended by "|".
TEST(NddToken, Lines) {
    const struct {
        const char* line;
        int count;
        const char* tokens;
    } rows[] = {
        // Quoted tokens keep their blanks and quotes until they are stripped.
        {"%via \"A B\" 10 20 0 \"top\" \"bottom\" \"N1\";\n", 9,
         "%via|\"A B\"|10|20|0|\"top\"|\"bottom\"|\"N1\"||"},
        // A lone ";" is no token and empties every later field.
        {"%x 1 ; 2 3\n", 5, "%x|1||||"},
        // An unclosed quote runs to the end; a carriage return separates nothing.
        {"%x \"open ended\n", 2, "%x|\"open ended\n|"},
        {"a\rb c", 1, "a\rb|"},
        {"\t a\tb", 2, "a|b|"},
    };
    for (const auto& row : rows) {
        std::string got;
        for (int i = 1; i <= row.count; ++i) got += NddToken(row.line, i) + "|";
        EXPECT_EQ(got, row.tokens) << row.line;
    }
}

TEST(NddStripQuotes, Rules) {
    // A line feed at the end takes three characters.
    const char* rows[][2] = {
        {"\"abc\"", "abc"}, {"\"N1\";\n", "N1"}, {"abc\"", "abc"}, {"abc", "abc"},
        {"", ""},           {"\"", ""},          {"\"\n", ""}};
    for (const auto& row : rows) EXPECT_EQ(StripQuotes(row[0]), row[1]) << row[0];
}

TEST(LineStream, LongLinesArriveInPiecesOfTheBufferLessOne) {
    std::string text(5000, 'x');
    text += "\nend\n";
    base::LineStream s(std::make_shared<const std::string>(text));
    std::vector<std::string> pieces;
    for (std::string piece; s.ReadLine(piece, base::kNddLineBuffer);) pieces.push_back(piece);
    EXPECT_EQ(pieces, (std::vector<std::string>{std::string(2047, 'x'), std::string(2047, 'x'),
                                                std::string(906, 'x') + "\n", "end\n"}));
}

TEST(LineStream, CarriageReturnBeforeLineFeedIsDroppedOthersStay) {
    std::string text = base::DropCrBeforeLf("a\r\nb\rc\r\n\r");
    EXPECT_EQ(text, "a\nb\rc\n\r");
}

TEST(LineStream, PieceIsCutAtNulButPositionMovesOn) {
    std::string text("ab\0cd\nef\n", 9);
    base::LineStream s(std::make_shared<const std::string>(text));
    std::vector<std::string> pieces;
    for (std::string piece; s.ReadLine(piece, base::kNddLineBuffer);) pieces.push_back(piece);
    EXPECT_EQ(pieces, (std::vector<std::string>{"ab", "ef\n"}));
}

TEST(NddNextWord, GoesOnAcrossLinesSkippingCommentsAndStopsAtAnEmptyLine) {
    auto text = std::make_shared<const std::string>("x # comment 9\n3 4;\n\nafter\n");
    auto stream = std::make_unique<base::LineStream>(text);
    base::LineStream* s = stream.get();
    std::string rest;
    EXPECT_EQ(NddNextWord(s, "1 2\n", rest), "1");
    EXPECT_EQ(NddNextWord(s, rest, rest), "2");
    EXPECT_EQ(NddNextWord(s, rest, rest), "3");  // the line with '#' is dropped
    EXPECT_EQ(NddNextWord(s, rest, rest), "4");
    EXPECT_EQ(NddNextWord(s, rest, rest), "");  // the empty line ends the record
    EXPECT_EQ(s, nullptr);
    EXPECT_EQ(NddNextWord(s, rest, rest), "");
}

}  // namespace
