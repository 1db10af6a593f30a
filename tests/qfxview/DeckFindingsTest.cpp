// Each hand-written deck of tests/data/qfxview gives exactly the finding lines and summary
// that expected.txt holds for it.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "deck/DeckChecker.h"

namespace {

const std::string kData = QFXVIEW_TEST_DATA;

std::vector<std::string> Decks() {
    std::vector<std::string> decks;
    for (const auto& e : std::filesystem::directory_iterator(kData))
        if (e.path().extension() == ".qfx") decks.push_back(e.path().filename().string());
    std::sort(decks.begin(), decks.end());
    return decks;
}

std::vector<std::string> Expected(const std::string& deck) {
    std::ifstream in(kData + "/expected.txt");
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);)
        if (line.compare(0, deck.size() + 1, deck + ":") == 0) lines.push_back(line);
    return lines;
}

std::vector<std::string> Checked(const std::string& deck) {
    qfxview::Findings findings;
    qfxview::DeckCounts counts;
    if (!qfxview::CheckDeck(kData + "/" + deck, findings, counts)) return {"unreadable"};
    std::vector<std::string> lines = findings.Lines(deck);
    lines.push_back(qfxview::SummaryLine(deck, counts, findings));
    return lines;
}

class DeckFindings : public ::testing::TestWithParam<std::string> {};

TEST_P(DeckFindings, AreTheLinesWorkedOutByHand) {
    std::vector<std::string> expected = Expected(GetParam());
    ASSERT_FALSE(expected.empty()) << "expected.txt has no lines for " << GetParam();
    EXPECT_EQ(Checked(GetParam()), expected);
}

INSTANTIATE_TEST_SUITE_P(HandWritten, DeckFindings, ::testing::ValuesIn(Decks()),
                         [](const ::testing::TestParamInfo<std::string>& info) {
                             return info.param.substr(0, info.param.size() - 4);
                         });

TEST(DeckFindings, EveryDeckOfTheDataFolderIsCovered) {
    EXPECT_GE(Decks().size(), 15u);
}

TEST(DeckFindings, FindingsPastTheLimitOfARuleAreCountedOnly) {
    qfxview::Findings findings;
    for (size_t i = 0; i < qfxview::Findings::kKeptPerRule + 2; ++i)
        findings.Add(i + 1, qfxview::Severity::Error, "statement-form", "bad");
    std::vector<std::string> lines = findings.Lines("d.qfx");
    ASSERT_EQ(lines.size(), qfxview::Findings::kKeptPerRule + 1);
    EXPECT_EQ(lines.front(), "d.qfx:1: error: bad [statement-form]");
    EXPECT_EQ(lines.back(), "d.qfx: 2 more findings [statement-form]");
    EXPECT_EQ(findings.Errors(), qfxview::Findings::kKeptPerRule + 2);
}

}  // namespace
