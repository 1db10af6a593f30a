#include "app/SettingsPage.h"

#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"

void SettingsPage::Load() {
    const TranslationOptions& o = g_options;
    shape = o.g_bTranslateShapes;
    layer = o.g_bTranslateLayers;
    trace = o.g_bTranslateTraces;
    via = o.g_bTranslateVias;
    translatePads = o.g_nTranslatePads;
    allowSignalOnPlane = o.g_bAllowSignalOnPlane;
    addPseudoPlane = o.g_bAddPseudoPlane;
    excludeNoNetElements = o.g_nIncludeNoNetEtches ? 0 : 1;
    allowPatches = o.g_bAllowPatches;
    colorShapesByNet = o.g_bColorShapesByNet;
    translateLinkages = o.g_bTranslateLinkages;
    // The check box stands for "on and with an area": a flag without an area shows off.
    excludeVoidEnclosingVia = o.g_bExcludeVoidEnclosingVia && o.g_dbViaVoidArea != 0.0;
    viaVoidArea = o.g_dbViaVoidArea;
    voidAreaLimit = o.g_dbVoidAreaLimit;
    traceUnionLength = o.g_dbTraceUnionLength;
    maxArcLength = o.g_dbMaxArcLength;
    traceGapPercent = o.g_strTraceGapPercent;
    valueFieldName = o.g_strValueFieldName;
    nameAffix = o.g_strNameAffix;
    appendNetName = o.g_bAppendNetName;
    spatialLimit = o.g_bSpatialLimit;
    minX = o.g_dbSpatialMinX;
    minY = o.g_dbSpatialMinY;
    maxX = o.g_dbSpatialMaxX;
    maxY = o.g_dbSpatialMaxY;
    // A crossed range is shown with the maximum raised to the minimum.
    if (minX > maxX) maxX = minX;
    if (minY > maxY) maxY = minY;
}

void SettingsPage::Apply() const {
    TranslationOptions& o = g_options;
    o.g_bTranslateShapes = shape;
    o.g_bTranslateLayers = layer;
    o.g_bTranslateTraces = trace;
    o.g_bTranslateVias = via;
    o.g_nTranslatePads = translatePads;
    o.g_bAllowSignalOnPlane = allowSignalOnPlane;
    o.g_bAddPseudoPlane = addPseudoPlane;
    o.g_nIncludeNoNetEtches = excludeNoNetElements ? 0 : 1;
    o.g_bAllowPatches = allowPatches;
    o.g_bColorShapesByNet = colorShapesByNet;
    o.g_bTranslateLinkages = translateLinkages;
    o.g_bWriteLinkages = translateLinkages;
    o.g_bExcludeVoidEnclosingVia = excludeVoidEnclosingVia && viaVoidArea > 0.0;
    o.g_dbViaVoidArea = viaVoidArea;
    o.g_dbVoidAreaLimit = voidAreaLimit;
    o.g_dbTraceUnionLength = traceUnionLength;
    o.g_dbMaxArcLength = maxArcLength;
    o.g_strTraceGapPercent = traceGapPercent;
    // An empty box keeps the last name in force.
    if (!valueFieldName.empty()) o.g_strValueFieldName = valueFieldName;
    o.g_strNameAffix = nameAffix;
    o.g_bAppendNetName = appendNetName;
    o.g_bSpatialLimit = spatialLimit;
    o.g_dbSpatialMinX = minX;
    o.g_dbSpatialMinY = minY;
    o.g_dbSpatialMaxX = maxX;
    o.g_dbSpatialMaxY = maxY;
    g_model.g_dbTinyTraceLimitSquared = traceUnionLength * traceUnionLength;
}

void NormaliseTranslationOptions() {
    SettingsPage page;
    page.Load();
    page.Apply();
}
