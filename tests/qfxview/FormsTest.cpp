// The printf forms of the writers, as the checker matches them, and the grouping of lines
// into statements.
#include <gtest/gtest.h>

#include <QTemporaryFile>
#include <string>

#include "deck/Forms.h"
#include "deck/Statement.h"

namespace {

struct FormCase {
    const char* form;
    const char* line;
    bool matches;
};

const FormCase kCases[] = {
    {"{E}mm", "1.000000e-01mm", true},
    {"{E}mm", "-1.000000e+100mm", true},
    {"{E}mm", "1.00000e-01mm", false},    // five decimals
    {"{E}mm", "1.000000e-1mm", false},    // one exponent digit
    {"{E}mm", "10.000000e-01mm", false},  // two leading digits
    {"{E}mm", "infmm", true},             // printf's own words for numbers that are not finite
    {"{E}mm", "-nanmm", true},
    {"{E}mm", "infinitymm", false},
    {"{T}mm", "1.2345678900e+01mm", true},
    {"{T}mm", "1.234567e+01mm", false},
    {"{F}", "-90.000000", true},
    {"{F}", "90.00000", false},
    {"{D}", "-17", true},
    {"{D}", "1a", false},
    {"{S} x", "Circle12::USB_D++ x", true},  // a net that ends in "+", then the sign
    {"{S} x", "Circle12 x", false},
    {"{N} = {N}", "a = b", true},
    {"{N} = {N}", "a =  b", false},
    {"{N}", "", false},
};

TEST(Forms, MatchFieldByField) {
    for (const FormCase& c : kCases)
        EXPECT_EQ(qfxview::MatchesForm(c.form, c.line), c.matches) << c.form << " | " << c.line;
}

// Writes text to a temporary file and reads its statements back.
std::vector<qfxview::Statement> StatementsOf(const std::string& text) {
    QTemporaryFile file;
    file.open();
    file.write(text.c_str());
    file.flush();
    qfxview::DeckLines lines(file.fileName().toStdString());
    qfxview::StatementReader reader(lines);
    std::vector<qfxview::Statement> statements;
    for (qfxview::Statement s; reader.Next(s);) statements.push_back(s);
    return statements;
}

TEST(StatementReader, JoinsContinuationsButNotAcrossABlankLine) {
    auto s = StatementsOf("Patch$TOP\r\n+ Shape = Shape$TOP Layer = Signal$TOP\r\n\n+ x\n.End\n");
    ASSERT_EQ(s.size(), 3u);
    EXPECT_EQ(s[0].kind, qfxview::Kind::Patch);
    ASSERT_EQ(s[0].moreCount, 1u);
    EXPECT_EQ(s[0].more[0], "+ Shape = Shape$TOP Layer = Signal$TOP");  // no CR
    EXPECT_EQ(s[1].kind, qfxview::Kind::Orphan);
    EXPECT_EQ(s[1].line, 4u);
    EXPECT_EQ(s[2].kind, qfxview::Kind::End);
    EXPECT_EQ(s[2].line, 5u);
}

TEST(StatementReader, KindsOfLeadingWords) {
    using qfxview::Kind;
    using qfxview::KindOf;
    EXPECT_EQ(KindOf("MediumPseudo6 Thickness = 0.01mm Permittivity = 4.0"), Kind::MediumPseudo);
    EXPECT_EQ(KindOf("Medium$D1 Thickness"), Kind::MediumLayer);
    EXPECT_EQ(KindOf(".EndC"), Kind::ConnectEnd);
    EXPECT_EQ(KindOf(".End"), Kind::End);
    EXPECT_EQ(KindOf(".Endx"), Kind::Other);
    EXPECT_EQ(KindOf("Regular Polygon"), Kind::Regular);
    EXPECT_EQ(KindOf("R 1 2 10K"), Kind::Other);
}

}  // namespace
