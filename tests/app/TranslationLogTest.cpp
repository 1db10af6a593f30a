// The log head and model report as written from a hand-set record; whole runs are in
// tests/data/cases (log_*).
#include "app/TranslationLog.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

#include "Fixtures.h"
#include "TestSupport.h"
#include "base/Platform.h"
#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"

using namespace testing_support;

namespace {

// The log head from its net block on: the first four lines hold the version, the files and
// the date.
std::string HeadAfterDate() {
    std::string text = CaptureOutput([](FILE* f) { WriteLogHeader(f); });
    size_t at = 0;
    for (int i = 0; i < 4; ++i) at = text.find('\n', at) + 1;
    return text.substr(at);
}

// Only the selected nets are listed, in their order; a net without a colour says "Default".
TEST(TranslationLog, SelectedNetsAndValueSettings) {
    ResetGlobals();
    fixtures::SetNetNames({"CLK", "DATA", "GND"});
    TranslationOptions& o = g_options;
    o.g_bAllNets = 0;
    o.g_bSelectedOnly = 1;
    o.g_pSelectedNets = {2, 0};
    o.g_pNetColors = {9, 4, 0};
    o.g_bAllowSignalOnPlane = o.g_bAddPseudoPlane = o.g_bColorShapesByNet = 0;
    o.g_bTranslateLinkages = o.g_nTranslatePads = o.g_bAppendNetName = 0;
    o.g_nIncludeNoNetEtches = 1;
    o.g_bExcludeVoidEnclosingVia = 1;
    o.g_dbViaVoidArea = 2.5;
    o.g_dbTraceUnionLength = 0.125;
    o.g_dbMaxArcLength = 0.05;
    o.g_strValueFieldName = "icx_value";  // the default name, in any case, has no line
    o.g_strNameAffix = "AB";
    EXPECT_EQ(HeadAfterDate(), DataFile("app/TranslationLog/SelectedNetsAndValueSettings.txt"));
    EXPECT_EQ(o.g_bAllNetsFromLog, 0);
}

// The via line needs an area of at least the float epsilon.
TEST(TranslationLog, ViaAreaLineFromTheFloatEpsilonOn) {
    ResetGlobals();
    g_options.g_bExcludeVoidEnclosingVia = 1;
    const std::string line = "\tExclude void shapes enclosing vias with area less than";
    g_options.g_dbViaVoidArea = 1.19e-7;
    EXPECT_EQ(HeadAfterDate().find(line), std::string::npos);
    g_options.g_dbViaVoidArea = 1.1920928955078125e-7;
    EXPECT_NE(HeadAfterDate().find(line + " 0.000000 mm x mm\n"), std::string::npos);
    g_options.g_bExcludeVoidEnclosingVia = 0;
    EXPECT_EQ(HeadAfterDate().find(line), std::string::npos);
}

TEST(TranslationLog, DateDropsTheLeadingZeroOfTheDay) {
    const char* oldTz = std::getenv("TZ");
    std::string saved = oldTz ? oldTz : "";
    setenv("TZ", "UTC", 1);
    tzset();
    // 2026-03-05 09:04:07 UTC, a Thursday.
    EXPECT_EQ(base::FormatTime("%A  %B %#d  %X  %Y", 1772701447),
              "Thursday  March 5  09:04:07  2026");
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
    auto report = [] { return CaptureOutput([](FILE* f) { WriteModelReportLines(f); }); };
    EXPECT_EQ(report(), DataFile("app/TranslationLog/ModelReportListsComponentsInMapOrder.txt"));
    ComponentRec r1, u1;
    r1.refDes = "R1";
    r1.value = "10K";
    u1.refDes = "U1";
    g_model.g_mapComponents.Set("R1", r1);
    g_model.g_mapComponents.Set("U1", u1);
    // "R1": 82*33+49 = 2755, bucket 5 of 10; "U1": 85*33+49 = 2854, bucket 4: U1 walks first.
    EXPECT_EQ(report(), DataFile("app/TranslationLog/ModelReportListsComponentsInMapOrder.2.txt"));
}

}  // namespace
