#include "app/TranslationLog.h"

#include <ctime>

#include "Version.h"
#include "base/Platform.h"
#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"
#include "ndd/NddTokens.h"

int g_bLogHasWarnings = 0;

void ResetLogWarnings() {
    g_bLogHasWarnings = 0;
}

namespace {

void WriteNetLine(FILE* log, int32_t net) {
    std::string name = PlainNetName(net);
    const char* color = NetColorName(NetColorOf(net));
    if (color)
        std::fprintf(log, "\t%s\t%s\n", name.c_str(), color);
    else
        std::fprintf(log, "\t%s\tDefault\n", name.c_str());
}

void WriteNetLines(FILE* log) {
    std::fprintf(log, "\nNets Translated : \n");
    if (g_options.g_bAllNets) {
        std::fprintf(log, "\tAll nets are selected\n");
        g_options.g_bAllNetsFromLog = 1;
        for (int32_t net = 0; net < g_model.g_nNetCount; ++net) WriteNetLine(log, net);
    } else if (g_options.g_bSelectedOnly) {
        for (int32_t net : g_options.g_pSelectedNets) WriteNetLine(log, net);
    }
}

void WriteSwitchLines(FILE* log) {
    const TranslationOptions& o = g_options;
    if (o.g_bAllowSignalOnPlane) std::fprintf(log, "\tAllow signal traces on Power Plane\n");
    if (o.g_bAllowPatches) std::fprintf(log, "\tAllow patches on Signal layers\n");
    if (o.g_bAddPseudoPlane) std::fprintf(log, "\tAdd pseudo plane(s) if lack of plane\n");
    if (o.g_nIncludeNoNetEtches)
        std::fprintf(log, "\tInclude elements with no net names\n");
    else
        std::fprintf(log, "\tExclude elements with no net names\n");
    // The smallest area worth a line is the float epsilon.
    if (o.g_bExcludeVoidEnclosingVia && o.g_dbViaVoidArea >= 1.1920928955078125e-7)
        std::fprintf(log, "\tExclude void shapes enclosing vias with area less than %lf mm x mm\n",
                     o.g_dbViaVoidArea);
    if (o.g_bColorShapesByNet)
        std::fprintf(log, "\tDistinguish shapes of different nets by color\n");
}

void WriteValueLines(FILE* log) {
    const TranslationOptions& o = g_options;
    if (o.g_dbVoidAreaLimit > 0)
        std::fprintf(log, "\tExclude void shapes with area less than %lf mm x mm\n",
                     o.g_dbVoidAreaLimit);
    if (o.g_dbTraceUnionLength > 0)
        std::fprintf(log, "\tUnion traces shorter than %lf mm\n", o.g_dbTraceUnionLength);
    if (o.g_dbMaxArcLength > 0)
        std::fprintf(log, "\tMaximum arc length replaced by line segment %lf mm\n",
                     o.g_dbMaxArcLength);
    if (o.g_bTranslateLinkages) std::fprintf(log, "\tTranslate component linkages\n");
    if (o.g_nTranslatePads) std::fprintf(log, "\tTranslate pads\n");
    if (!o.g_strTraceGapPercent.empty())
        std::fprintf(log,
                     "\tGenerate Gap around Traces with Gap Size in terms of percentage of Trace "
                     "Width : %s\n",
                     o.g_strTraceGapPercent.c_str());
    if (!o.g_strValueFieldName.empty() && !EqualsNoCase(o.g_strValueFieldName, "ICX_VALUE"))
        std::fprintf(log, "\tName of the Data Field for Component Values :%s\n",
                     o.g_strValueFieldName.c_str());
    if (o.g_bSpatialLimit)
        std::fprintf(log, "\tSpatial range : (%lf, %lf) -- (%lf, %lf)    Unit : mm\n",
                     o.g_dbSpatialMinX, o.g_dbSpatialMinY, o.g_dbSpatialMaxX, o.g_dbSpatialMaxY);
    if (!o.g_strNameAffix.empty())
        std::fprintf(log, "\tName affix : %s\n", o.g_strNameAffix.c_str());
    if (o.g_bAppendNetName) std::fprintf(log, "\tAppend net name to objects\n");
}

}  // namespace

void WriteLogHeader() {
    if (g_options.g_pLogFile) WriteLogHeader(g_options.g_pLogFile);
}

void WriteLogHeader(FILE* log) {
    std::fprintf(log, "Ndd2Qfx Version %s\n", NDD2QFX_SPECIAL_BUILD);
    std::fprintf(log, "From file : %s\n", g_options.g_strInputFile.c_str());
    std::fprintf(log, "To file : %s\n", g_options.g_strOutputFile.c_str());
    std::string when = base::FormatTime("%A  %B %#d  %X  %Y", std::time(nullptr));
    std::fprintf(log, "%s\n", when.c_str());
    WriteNetLines(log);
    std::fprintf(log, "\nSettings :\n");
    WriteSwitchLines(log);
    WriteValueLines(log);
    std::fprintf(log, "\n\nWarning(s):\n");
}

void LogWarning(const std::string& text) {
    if (g_options.g_pLogFile) std::fputs(text.c_str(), g_options.g_pLogFile);
    g_bLogHasWarnings = 1;
}

void WriteModelReportLines(FILE* log) {
    std::fprintf(log, "\n\nComponent Model Info :\n\n");
    int number = 0;
    g_model.g_mapComponents.ForEach([&](const std::string& key, const ComponentRec& c) {
        const std::string& refDes = c.refDes.empty() ? key : c.refDes;
        std::fprintf(log, "%d] Component RefDes : %s ", ++number, refDes.c_str());
        if (c.value.empty())
            std::fprintf(log, "\tValue\\Model is Missing . \n");
        else
            std::fprintf(log, "\tValue : %s\n", c.value.c_str());
    });
    std::fprintf(log, "\nTotal No Of Components in Design File = %d\n", number);
}
