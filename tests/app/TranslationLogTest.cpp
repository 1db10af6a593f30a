#include "app/TranslationLog.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <ctime>
#include <sstream>

#include "TestSupport.h"
#include "model/TranslationOptions.h"
#include "base/Platform.h"
#include "model/LayoutModel.h"

using namespace testing_support;

namespace {

void SetNets(std::initializer_list<const char*> names) {
    for (const char* name : names) {
        NetRec rec;
        std::strncpy(rec.name, name, kNetNameBytes - 1);
        g_model.g_strNetNames.push_back(rec);
    }
    g_model.g_nNetCount = static_cast<int32_t>(g_model.g_strNetNames.size());
    g_model.g_nNetColor.clear();
    for (int32_t i = 0; i < g_model.g_nNetCount; ++i) g_model.g_nNetColor.push_back(i % 11 + 1);
}

std::vector<std::string> HeaderLines() {
    return SplitLines(CaptureOutput([](FILE* f) { WriteLogHeader(f); }));
}

bool OneOf(const std::string& word, std::initializer_list<const char*> names) {
    for (const char* name : names)
        if (word == name) return true;
    return false;
}

bool AllDigits(const std::string& text, size_t minLength, size_t maxLength) {
    if (text.size() < minLength || text.size() > maxLength) return false;
    for (char c : text)
        if (c < '0' || c > '9') return false;
    return true;
}

// "Weekday  Month D  HH:MM:SS  YYYY": two blanks between the fields but one before the day,
// and the day without a leading zero.
bool IsDateLine(const std::string& line) {
    size_t a = line.find("  ");
    if (a == std::string::npos) return false;
    std::string weekday = line.substr(0, a), rest = line.substr(a + 2);
    size_t b = rest.find(' ');
    if (b == std::string::npos) return false;
    std::string month = rest.substr(0, b);
    rest = rest.substr(b + 1);
    size_t c = rest.find("  ");
    if (c == std::string::npos) return false;
    std::string day = rest.substr(0, c);
    rest = rest.substr(c + 2);
    size_t d = rest.find("  ");
    if (d == std::string::npos || d != 8) return false;
    std::string clock = rest.substr(0, d), year = rest.substr(d + 2);
    return OneOf(weekday,
                 {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"}) &&
           OneOf(month, {"January", "February", "March", "April", "May", "June", "July", "August",
                         "September", "October", "November", "December"}) &&
           AllDigits(day, 1, 2) && day[0] != '0' && clock[2] == ':' && clock[5] == ':' &&
           AllDigits(clock.substr(0, 2) + clock.substr(3, 2) + clock.substr(6, 2), 6, 6) &&
           AllDigits(year, 4, 4);
}

// "1.0.0.7": four numbers joined by dots.
bool IsSpecialBuild(const std::string& text) {
    std::stringstream parts(text);
    std::string part;
    int count = 0;
    while (std::getline(parts, part, '.')) {
        if (!AllDigits(part, 1, 9)) return false;
        ++count;
    }
    return count == 4;
}

TEST(TranslationLog, HeaderOfARunWithNonDefaultSettings) {
    ResetGlobals();
    TranslationOptions& o = g_options;
    SetNets({"CLK", "DATA", "GND"});
    o.g_strInputFile = "/work/in.ndd";
    o.g_strOutputFile = "/work/out.qfx";
    o.g_bAllNets = 0;
    o.g_bSelectedOnly = 1;
    o.g_nSelectedNetCount = 2;
    o.g_pSelectedNets = {2, 0};
    g_model.g_nNetColor = {9, 4, 0};  // CLK darkred, GND without a colour
    o.g_bAllowSignalOnPlane = 0;
    o.g_bAddPseudoPlane = 0;
    o.g_nIncludeNoNetEtches = 1;
    o.g_bExcludeVoidEnclosingVia = 1;
    o.g_dbViaVoidArea = 2.5;
    o.g_bColorShapesByNet = 0;
    o.g_dbVoidAreaLimit = 0.75;
    o.g_dbTraceUnionLength = 0.125;
    o.g_dbMaxArcLength = 0.05;
    o.g_bTranslateLinkages = o.g_bWriteLinkages = 0;
    o.g_nTranslatePads = 0;
    o.g_strTraceGapPercent = "25";
    o.g_strValueFieldName = "PART_VALUE";
    o.g_bSpatialLimit = 1;
    o.g_dbSpatialMinX = 1.5;
    o.g_dbSpatialMinY = -2.0;
    o.g_dbSpatialMaxX = 30.25;
    o.g_dbSpatialMaxY = 40.0;
    o.g_strNameAffix = "AB";
    o.g_bAppendNetName = 0;

    std::vector<std::string> lines = HeaderLines();
    ASSERT_EQ(lines.size(), 23u);
    ASSERT_EQ(lines[0].rfind("Ndd2Qfx Version ", 0), 0u);
    EXPECT_TRUE(IsSpecialBuild(lines[0].substr(16))) << lines[0];
    EXPECT_EQ(lines[1], "From file : /work/in.ndd");
    EXPECT_EQ(lines[2], "To file : /work/out.qfx");
    EXPECT_TRUE(IsDateLine(lines[3])) << lines[3];
    std::vector<std::string> rest(lines.begin() + 4, lines.end());
    std::vector<std::string> expected = {
        "",
        "Nets Translated : ",
        "\tGND\tDefault",
        "\tCLK\tdarkred",
        "",
        "Settings :",
        "\tAllow patches on Signal layers",
        "\tInclude elements with no net names",
        "\tExclude void shapes enclosing vias with area less than 2.500000 mm x mm",
        "\tExclude void shapes with area less than 0.750000 mm x mm",
        "\tUnion traces shorter than 0.125000 mm",
        "\tMaximum arc length replaced by line segment 0.050000 mm",
        "\tGenerate Gap around Traces with Gap Size in terms of percentage of Trace Width : 25",
        "\tName of the Data Field for Component Values :PART_VALUE",
        "\tSpatial range : (1.500000, -2.000000) -- (30.250000, 40.000000)    Unit : mm",
        "\tName affix : AB",
        "",
        "",
        "Warning(s):",
    };
    EXPECT_EQ(rest, expected);
    EXPECT_EQ(o.g_bAllNetsFromLog, 0);
}

TEST(TranslationLog, HeaderWithDefaultsListsAllNetsWithTheirColours) {
    ResetGlobals();
    SetNets({"A", "B"});
    g_model.g_nNetColor[1] = 0;  // a net with no colour prints "Default"
    std::vector<std::string> lines = HeaderLines();
    std::vector<std::string> rest(lines.begin() + 4, lines.end());
    std::vector<std::string> expected = {
        "",
        "Nets Translated : ",
        "\tAll nets are selected",
        "\tA\tred",
        "\tB\tDefault",
        "",
        "Settings :",
        "\tAllow signal traces on Power Plane",
        "\tAllow patches on Signal layers",
        "\tAdd pseudo plane(s) if lack of plane",
        "\tExclude elements with no net names",
        "\tDistinguish shapes of different nets by color",
        "\tMaximum arc length replaced by line segment 0.200000 mm",
        "\tTranslate component linkages",
        "\tTranslate pads",
        "\tAppend net name to objects",
        "",
        "",
        "Warning(s):",
    };
    EXPECT_EQ(rest, expected);
    EXPECT_EQ(lines[1], "From file : ");
    // Writing the all-nets line marks the run as one of all nets.
    EXPECT_EQ(g_options.g_bAllNetsFromLog, 1);
}

TEST(TranslationLog, SettingLinesStandOnlyUnderTheirConditions) {
    ResetGlobals();
    TranslationOptions& o = g_options;
    o.g_bExcludeVoidEnclosingVia = 1;
    o.g_dbViaVoidArea = 1.19e-7;  // below the float epsilon
    o.g_strValueFieldName = "icx_value";
    o.g_dbMaxArcLength = 0.0;
    o.g_bSpatialLimit = 0;
    std::string text = CaptureOutput([](FILE* f) { WriteLogHeader(f); });
    EXPECT_EQ(text.find("enclosing vias"), std::string::npos);
    EXPECT_EQ(text.find("Component Values"), std::string::npos);
    EXPECT_EQ(text.find("Maximum arc length"), std::string::npos);
    EXPECT_EQ(text.find("Spatial range"), std::string::npos);

    o.g_dbViaVoidArea = 1.1920928955078125e-7;
    o.g_bExcludeVoidEnclosingVia = 1;
    text = CaptureOutput([](FILE* f) { WriteLogHeader(f); });
    EXPECT_NE(text.find("\tExclude void shapes enclosing vias with area less than 0.000000 mm x "
                        "mm\n"),
              std::string::npos);
    o.g_bExcludeVoidEnclosingVia = 0;
    text = CaptureOutput([](FILE* f) { WriteLogHeader(f); });
    EXPECT_EQ(text.find("enclosing vias"), std::string::npos);
}

TEST(TranslationLog, DateDropsTheLeadingZeroOfTheDay) {
    const char* oldTz = std::getenv("TZ");
    std::string saved = oldTz ? oldTz : "";
    setenv("TZ", "UTC", 1);
    tzset();
    // 2026-03-05 09:04:07 UTC, a Thursday.
    std::time_t when = 1772701447;
    EXPECT_EQ(base::FormatTime("%A  %B %#d  %X  %Y", when), "Thursday  March 5  09:04:07  2026");
    EXPECT_TRUE(IsDateLine("Thursday  March 5  09:04:07  2026"));
    EXPECT_FALSE(IsDateLine("Thursday  March 05  09:04:07  2026"));
    EXPECT_FALSE(IsDateLine("Thursday March 5 09:04:07 2026"));
    if (oldTz)
        setenv("TZ", saved.c_str(), 1);
    else
        unsetenv("TZ");
    tzset();
}

TEST(TranslationLog, LogWarningAppendsTheTextAsItStands) {
    ResetGlobals();
    g_options.g_pLogFile = std::tmpfile();
    LogWarning("Warning : one\n");
    LogWarning("two %d");
    EXPECT_EQ(ReadStream(g_options.g_pLogFile), "Warning : one\ntwo %d");
    EXPECT_EQ(g_bLogHasWarnings, 1);
    ResetGlobals();
    LogWarning("no log open");  // no stream: nothing to write, no crash
}

TEST(TranslationLog, ModelReportListsComponentsInMapOrder) {
    ResetGlobals();
    ComponentRec r1;
    r1.refDes = "R1";
    r1.value = "10K";
    ComponentRec u1;
    u1.refDes = "U1";
    g_model.g_mapComponents.Set("R1", r1);
    g_model.g_mapComponents.Set("U1", u1);
    // "R1": 82*33+49 = 2755, bucket 5 of 10; "U1": 85*33+49 = 2854, bucket 4: U1 walks first.
    std::string text = CaptureOutput([](FILE* f) { WriteModelReportLines(f); });
    EXPECT_EQ(text,
              "\n\nComponent Model Info :\n\n"
              "1] Component RefDes : U1 \tValue\\Model is Missing . \n"
              "2] Component RefDes : R1 \tValue : 10K\n"
              "\nTotal No Of Components in Design File = 2\n");
}

TEST(TranslationLog, ModelReportOfABoardWithoutComponents) {
    ResetGlobals();
    std::string text = CaptureOutput([](FILE* f) { WriteModelReportLines(f); });
    EXPECT_EQ(text, "\n\nComponent Model Info :\n\n\nTotal No Of Components in Design File = 0\n");
}

}  // namespace
