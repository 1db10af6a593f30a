#pragma once
// The values of the "Translation Options" page, without any window. Load copies the option
// record into the page; Apply writes the page back the way the page allows. Making a page and
// applying it at once forces the record into what the page would accept (a log load and the
// opening of the main dialog both do that), and the Settings dialog builds its controls on
// the same two halves.
#include <cstdint>
#include <string>

struct SettingsPage {
    // Elements to be translated.
    int32_t shape = 1;
    int32_t layer = 1;
    int32_t trace = 1;
    int32_t via = 1;
    int32_t translatePads = 1;

    int32_t allowSignalOnPlane = 1;
    int32_t addPseudoPlane = 1;
    int32_t excludeNoNetElements = 1;  // the inverse of the include-no-net option
    int32_t allowPatches = 1;
    int32_t colorShapesByNet = 1;
    int32_t translatePassiveLinkages = 0;  // shown, read, and dropped
    int32_t translateLinkages = 1;

    int32_t excludeVoidEnclosingVia = 0;
    double viaVoidArea = 0.0;
    double voidAreaLimit = 0.0;
    double traceUnionLength = 0.0;
    double maxArcLength = 0.2;
    std::string traceGapPercent;
    std::string valueFieldName;
    std::string nameAffix;
    int32_t appendNetName = 1;

    int32_t spatialLimit = 0;
    double minX = -1e38, minY = -1e38;
    double maxX = 1e38, maxY = 1e38;

    // Copies the option record into the page.
    void Load();
    // Writes the page back into the option record.
    void Apply() const;
};

// Makes a page from the option record and applies it at once.
void NormaliseTranslationOptions();
