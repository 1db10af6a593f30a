#include "app/SettingsPage.h"

#include <gtest/gtest.h>

#include "TestSupport.h"
#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"

using namespace testing_support;

namespace {

TEST(SettingsPage, RoundTripClearsAViaFlagWithoutArea) {
    ResetGlobals();
    ASSERT_EQ(g_options.g_bExcludeVoidEnclosingVia, 1);
    ASSERT_EQ(g_options.g_dbViaVoidArea, 0.0);
    NormaliseTranslationOptions();
    EXPECT_EQ(g_options.g_bExcludeVoidEnclosingVia, 0);

    g_options.g_bExcludeVoidEnclosingVia = 1;
    g_options.g_dbViaVoidArea = 0.5;
    NormaliseTranslationOptions();
    EXPECT_EQ(g_options.g_bExcludeVoidEnclosingVia, 1);

    // A negative area shows the box on, but only an area above 0 keeps the flag.
    g_options.g_dbViaVoidArea = -1.0;
    NormaliseTranslationOptions();
    EXPECT_EQ(g_options.g_bExcludeVoidEnclosingVia, 0);
    EXPECT_EQ(g_options.g_dbViaVoidArea, -1.0);
}

TEST(SettingsPage, LoadRaisesACrossedMaximumInThePageOnly) {
    ResetGlobals();
    g_options.g_dbSpatialMinX = 5.0;
    g_options.g_dbSpatialMaxX = 2.0;
    g_options.g_dbSpatialMinY = -1.0;
    g_options.g_dbSpatialMaxY = 3.0;
    SettingsPage page;
    page.Load();
    EXPECT_EQ(page.maxX, 5.0);
    EXPECT_EQ(page.maxY, 3.0);
    EXPECT_EQ(g_options.g_dbSpatialMaxX, 2.0);
    page.Apply();
    EXPECT_EQ(g_options.g_dbSpatialMaxX, 5.0);
}

TEST(SettingsPage, ApplyWritesThePageBack) {
    ResetGlobals();
    g_options.g_strValueFieldName = "OLD";
    SettingsPage page;
    page.Load();
    EXPECT_EQ(page.excludeNoNetElements, 1);
    page.excludeNoNetElements = 0;
    page.translateLinkages = 0;
    page.valueFieldName.clear();  // an empty box keeps the last name
    page.traceUnionLength = 0.5;
    page.nameAffix = "X_";
    page.Apply();
    EXPECT_EQ(g_options.g_nIncludeNoNetEtches, 1);
    EXPECT_EQ(g_options.g_bTranslateLinkages, 0);
    EXPECT_EQ(g_options.g_bWriteLinkages, 0);
    EXPECT_EQ(g_options.g_strValueFieldName, "OLD");
    EXPECT_EQ(g_options.g_dbTraceUnionLength, 0.5);
    EXPECT_EQ(g_model.g_dbTinyTraceLimitSquared, 0.25);
    EXPECT_EQ(g_options.g_strNameAffix, "X_");

    page.valueFieldName = "NEW";
    page.Apply();
    EXPECT_EQ(g_options.g_strValueFieldName, "NEW");
}

}  // namespace
