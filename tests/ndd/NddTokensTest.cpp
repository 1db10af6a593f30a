#include "ndd/NddTokens.h"

#include <gtest/gtest.h>

#include <memory>

#include "base/TextFile.h"

namespace {

std::vector<std::string> Tokens(const std::string& line, int count, bool cut = true) {
    std::vector<std::string> out;
    for (int i = 1; i <= count; ++i) out.push_back(NddToken(line, i, cut));
    return out;
}

TEST(NddGetToken, QuotedTokenKeepsBlanksAndQuotesUntilStripped) {
    std::string line = "%via \"A B\" 10 20 0 \"top\" \"bottom\" \"N1\";\n";
    EXPECT_EQ(Tokens(line, 9), (std::vector<std::string>{"%via", "\"A B\"", "10", "20", "0",
                                                         "\"top\"", "\"bottom\"", "\"N1\"", ""}));
    EXPECT_EQ(StripQuotes(NddToken(line, 2)), "A B");
}

TEST(NddGetToken, GluedSemicolonIsCutUnlessKept) {
    int pos = kNoPosition;
    EXPECT_EQ(NddGetToken("10;\n", pos), "10");
    EXPECT_EQ(Mid("10;\n", pos), "");
    pos = kNoPosition;
    EXPECT_EQ(NddGetToken("10;\n", pos, false), "10;");
}

TEST(NddGetToken, LoneSemicolonIsNoTokenAndEmptiesEveryLaterField) {
    int pos = 7;
    EXPECT_EQ(NddGetToken("; 5 6\n", pos), "");
    EXPECT_EQ(pos, kNoPosition);
    // After the lone ";" the remainder is the whole text again, so it is found once more.
    EXPECT_EQ(Mid("; 5 6\n", pos), "; 5 6\n");
    EXPECT_EQ(Tokens("%x 1 ; 2 3\n", 5), (std::vector<std::string>{"%x", "1", "", "", ""}));
}

TEST(NddGetToken, QuoteFollowedBySemicolonLeavesItInTheRemainder) {
    int pos = kNoPosition;
    std::string text = "\"N1\";\n";
    EXPECT_EQ(NddGetToken(text, pos), "\"N1\"");
    EXPECT_EQ(Mid(text, pos), ";\n");
}

TEST(NddGetToken, EmptyTextOrLeadingLineFeedLeavesPositionAlone) {
    int pos = 42;
    EXPECT_EQ(NddGetToken("", pos), "");
    EXPECT_EQ(pos, 42);
    EXPECT_EQ(NddGetToken("\nabc", pos), "");
    EXPECT_EQ(pos, 42);
}

TEST(NddGetToken, UnclosedQuoteRunsToTheEndAndCarriageReturnSeparatesNothing) {
    EXPECT_EQ(NddToken("%x \"open ended\n", 2), "\"open ended\n");
    EXPECT_EQ(NddToken("a\rb c", 1), "a\rb");
    EXPECT_EQ(NddToken("\t a\tb", 2), "b");
}

TEST(NddStripQuotes, Rules) {
    auto strip = [](std::string s) { return StripQuotes(s); };
    EXPECT_EQ(strip("\"abc\""), "abc");
    EXPECT_EQ(strip("\"N1\";\n"), "N1");  // a line feed at the end takes three characters
    EXPECT_EQ(strip("abc\""), "abc");
    EXPECT_EQ(strip("abc"), "abc");
    EXPECT_EQ(strip(""), "");
    EXPECT_EQ(strip("\""), "");
    EXPECT_EQ(strip("\"\n"), "");
}

TEST(LineStream, LongLinesArriveInPiecesOfTheBufferLessOne) {
    std::string text(5000, 'x');
    text += "\nend\n";
    base::LineStream s(std::make_shared<const std::string>(text));
    std::string piece;
    ASSERT_TRUE(s.ReadLine(piece, base::kNddLineBuffer));
    EXPECT_EQ(piece, std::string(2047, 'x'));
    ASSERT_TRUE(s.ReadLine(piece, base::kNddLineBuffer));
    EXPECT_EQ(piece, std::string(2047, 'x'));
    ASSERT_TRUE(s.ReadLine(piece, base::kNddLineBuffer));
    EXPECT_EQ(piece, std::string(906, 'x') + "\n");
    ASSERT_TRUE(s.ReadLine(piece, base::kNddLineBuffer));
    EXPECT_EQ(piece, "end\n");
    EXPECT_FALSE(s.ReadLine(piece, base::kNddLineBuffer));
}

TEST(LineStream, CarriageReturnBeforeLineFeedIsDroppedOthersStay) {
    std::string text = base::DropCrBeforeLf("a\r\nb\rc\r\n\r");
    EXPECT_EQ(text, "a\nb\rc\n\r");
}

TEST(LineStream, PieceIsCutAtNulButPositionMovesOn) {
    std::string text("ab\0cd\nef\n", 9);
    base::LineStream s(std::make_shared<const std::string>(text));
    std::string piece;
    ASSERT_TRUE(s.ReadLine(piece, base::kNddLineBuffer));
    EXPECT_EQ(piece, "ab");
    ASSERT_TRUE(s.ReadLine(piece, base::kNddLineBuffer));
    EXPECT_EQ(piece, "ef\n");
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
