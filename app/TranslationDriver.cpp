#include "app/TranslationDriver.h"

#include <cerrno>
#include <cstdio>

#include "app/ModelReport.h"
#include "app/OutputGuard.h"
#include "app/TranslationLog.h"
#include "base/FileChecks.h"
#include "base/Platform.h"
#include "base/ScopedClassicLocale.h"
#include "geometry/CheckUndiscardableVoids.h"
#include "geometry/GapStrokes.h"
#include "geometry/MakeNode.h"
#include "geometry/ShapeCleanupRound.h"
#include "geometry/TraceCleanup.h"
#include "ibis/CircuitWriter.h"
#include "ibis/IbisReader.h"
#include "ibis/LinkageWriter.h"
#include "ibis/Parts.h"
#include "model/LayoutModel.h"
#include "model/NodeSet.h"
#include "model/Progress.h"
#include "model/ReportMessage.h"
#include "model/TraceStep.h"
#include "model/TranslationOptions.h"
#include "ndd/HkpReader.h"
#include "ndd/LayerStack.h"
#include "ndd/NddInput.h"
#include "ndd/NddTokens.h"
#include "ndd/NetTable.h"
#include "ndd/PadBoundaries.h"
#include "ndd/PadLibrary.h"
#include "ndd/PadStackLayers.h"
#include "ndd/PadStackSizes.h"
#include "ndd/ParseElement.h"
#include "ndd/SurfacePads.h"
#include "ndd/ThermalTies.h"
#include "ndd/TraceReader.h"
#include "ndd/Units.h"
#include "ndd/ViaPass.h"
#include "qfx/LayerWriter.h"
#include "qfx/MakeVias.h"
#include "qfx/NodeWriter.h"
#include "qfx/ShapeWriter.h"
#include "qfx/Skeleton.h"
#include "qfx/TraceWriter.h"
#include "qfx/ViaWriter.h"

namespace {

const char kTracesQuestion[] =
    "Do you wish to include information in the\"traces\"file?\r\n"
    "If Yes, please select the latest version of the \"traces\" file\r\n"
    "   that is usually found in the layout's \"PCB\" folder.\r\n"
    "\r\nNote: The \"traces\" file contains additional information \r\n"
    "   that is not contained within the ndd file.\r\n"
    "   The translation is usually more accurate \r\n"
    "   when this file is used in conjunction with the ndd file.\r\n"
    "\r\nIt is highly recommended.";

// Small voids are dropped by area, or around vias: then the void check must run first.
bool VoidCheckWanted() {
    return g_options.g_dbVoidAreaLimit != 0 || g_options.g_bExcludeVoidEnclosingVia;
}

// Reports a failure to the user and to the trace with the same words.
int Fail(const std::string& text) {
    ReportMessage(text);
    TraceStep(true, "%s", text.c_str());
    return 0;
}

// The extension from the last dot on; the whole name when it has no dot.
std::string ExtensionOf(const std::string& name) {
    size_t dot = name.rfind('.');
    return dot == std::string::npos ? name : name.substr(dot);
}

// What one translation counts or caches for itself starts afresh with the next.
void ResetTranslationState() {
    ResetProgress();
    ResetLogWarnings();
    ResetIbisModelProblems();
    ForgetViaRules();
}

}  // namespace

void TranslationDriver::ShowStage(const std::string& text) {
    SetProgressStage(text);
    if (g_options.g_nQuiet == 0) host_.ShowStage(text);
}

void TranslationDriver::AddUnresolvedPart(const std::string& partNumber) {
    m_lstUnresolvedParts.push_back(partNumber);
}

TranslateStatus TranslationDriver::Translate(std::string inputFile, std::string outputFile) {
    HostScope hostScope(host_);
    // Numbers read and written are in the "C" form whatever the process's locale.
    base::ScopedClassicLocale classicNumbers;
    ResetTranslationState();
    TraceStep(true, "Begin");
    if (inputFile.empty() || outputFile.empty()) {
        Fail(inputFile.empty() ? "Please specify a NDD file" : "Please specify a QFX file");
        return TranslateStatus::Failed;
    }
    if (g_options.g_nQuiet == 0 && base::PathExists(outputFile) && !g_options.g_bLogLoaded &&
        ReportMessage("Target qfx file already exists, \n Do you want to replace it?", kBoxYesNo) ==
            kAnswerNo) {
        TraceStep(true, "exit");
        return TranslateStatus::Declined;
    }
    return TranslateNamed(std::move(inputFile), std::move(outputFile)) ? TranslateStatus::Done
                                                                       : TranslateStatus::Failed;
}

int TranslationDriver::TranslateNamed(std::string inputFile, std::string outputFile) {
    if (!LoadNddInput(inputFile)) {
        ReportMessage("Unable To open The Input NDD File\nPlease Check the Permissions");
        NoteFileProblem(inputFile, base::LastLoadFailure());
        TraceStep(true, "Unable To open The Input NDD File\nPlease Check the Permissions");
        return 0;
    }
    // Nothing is opened for writing while a write would land on a file this run reads.
    std::string clash = FindInputClash(inputFile, outputFile);
    if (!clash.empty()) return Fail(clash);
    FILE* out = std::fopen(outputFile.c_str(), "w+");
    if (!out) {
        int error = errno;
        ReportMessage("Cannot open file : " + outputFile);
        NoteFileProblem(outputFile, base::SystemReason(error));
        TraceStep(true, "Cannot open file : %s", outputFile.c_str());
        return 0;
    }
    g_options.g_pOutputFile = out;
    if (!g_options.g_pLogFile) {
        g_options.g_pLogFile = std::fopen((outputFile + ".log").c_str(), "w");
        if (!g_options.g_pLogFile) {
            int error = errno;
            ReportMessage("Cannot open log file : " + outputFile + ".log", kBoxWarning);
            NoteFileProblem(outputFile + ".log", base::SystemReason(error));
        }
    }
    if (g_options.g_nQuiet == 0 && g_options.g_strTraceFile.empty() &&
        ReportMessage(kTracesQuestion, kBoxYesNo) == kAnswerYes)
        host_.RunSettingsStep();

    int result = ReadDesignData(inputFile);
    if (result) result = ReadComponentData(inputFile, outputFile);
    if (result) {
        if (inputFile.empty() || outputFile.empty())
            return Fail("File name empty. Please provide the file name!");
        if (inputFile.back() != '.' && !EqualsNoCase(ExtensionOf(inputFile), ".NDD")) {
            TraceStep(true, "The Extension of Input File must be NDD !Please Retry .");
            ReportMessage("The Extension of Input File must be NDD !\nPlease Retry .");
            return 0;
        }
        const bool named =
            outputFile.back() == '.' || EqualsNoCase(ExtensionOf(outputFile), ".QFX");
        if (!named) outputFile += ".QFX";
        firstWritingReplaced_ = named;
        size_t sep = base::LastSeparator(outputFile);
        std::string outputFolder =
            sep == std::string::npos ? std::string() : outputFile.substr(0, sep + 1);
        TraceStep(true, "ParsePadDefData");
        ParsePadDefData(inputFile);
        ResolvePadStackLayers();
        ExpandDefaultLayers();
        TraceStep(true, "Transfer");
        result = TranslateNddToQfx(inputFile, outputFile, outputFolder);
    }
    FreeModelArrays();
    return result;
}

// Units, nets and the other library-level data that the pipeline's passes bind to.
int TranslationDriver::ReadDesignData(const std::string& inputFile) {
    if (m_bReread) {
        EmptyComponentLists();
        ParseUnits(inputFile);
        ReadAliasProperties(inputFile);
        auto stream = OpenNdd(inputFile);
        if (!stream) {
            TraceStep(true, "fail to open %s", inputFile.c_str());
            return 0;
        }
        SetNetSelectionMode();
        TraceStep(true, "ParseNet");
        ParseNet(*stream);
        AssignNetColors();
    }
    SetNetSelectionMode();
    g_model.g_aLayers.reset();
    g_model.g_nLayerCount = 0;
    TraceStep(true, "ParseLayer");
    if (!ParseLayer(inputFile)) return 0;
    return 1;
}

void TranslationDriver::ForgetInput() {
    if (!m_bReread) return;
    EmptyComponentLists();
    g_options.g_nSelectedNetCount = 0;
}

void TranslationDriver::ReadForSettings(const std::string& inputFile,
                                        const std::string& outputFile) {
    if (m_bReread && inputFile.empty()) {
        g_model.g_strNetNames.clear();
        g_model.g_nNetCount = 0;
        g_model.g_strDisplayNetNames.clear();
        g_options.g_pNetColors.clear();
    }
    if (m_bReread && !inputFile.empty()) {
        ParseUnits(inputFile);
        ReadAliasProperties(inputFile);
        if (auto nets = OpenNdd(inputFile)) {
            ParseNet(*nets);
            AssignNetColors();
        }
        if (auto packages = OpenNdd(inputFile)) ReadPackageDefs(*packages);
        if (auto stream = OpenNdd(inputFile)) {
            GetCompPlacementInfo(*stream, 0);
            stream->Rewind();
            GetPinNetInfo(*stream, inputFile);
        }
        // No message file yet: the output is not open before Translate.
        g_pModelAssignment =
            std::make_unique<ModelAssignment>(&g_model.g_mapComponents, outputFile, nullptr,
                                              nullptr, &m_mapIbisAssignments, inputFile);
        g_pModelAssignment->ResolveModels();
        g_pModelAssignment->ibisParts.Clear();
        for (const std::string& part : m_lstUnresolvedParts)
            g_pModelAssignment->ibisParts.Set(part, "T");
    }
    m_bReread = false;
}

void TranslationDriver::EmptyComponentLists() {
    // The model assignment points into the component table: it goes first.
    g_pComponentNodes.reset();
    g_pModelAssignment.reset();
    g_model.g_mapComponents.Clear();
    g_model.g_mapPartPower.Clear();
    m_mapIbisAssignments.Clear();
    m_lstUnresolvedParts.clear();
}

// Packages, placements, pin nets and power ports, then the models of the components.
int TranslationDriver::ReadComponentData(const std::string& inputFile,
                                         const std::string& outputFile) {
    if (m_bReread) {
        auto packages = OpenNdd(inputFile);
        if (packages) ReadPackageDefs(*packages);
    }
    TraceStep(true, "GetCompPlacementInfo");
    auto stream = OpenNdd(inputFile);
    if (!stream) return 0;
    GetCompPlacementInfo(*stream, 1);
    stream->Rewind();
    TraceStep(true, "GetPinNetInfo");
    GetPinNetInfo(*stream, inputFile);
    stream.reset();
    ReadPartPowerPorts(inputFile);
    ApplyPowerPorts();
    if (m_bReread) {
        if (g_options.g_pTempLogFile) std::fclose(g_options.g_pTempLogFile);
        g_options.g_pTempLogFile = std::fopen((outputFile + "temp.log").c_str(), "w");
        g_pModelAssignment = std::make_unique<ModelAssignment>(
            &g_model.g_mapComponents, outputFile, g_options.g_pOutputFile, g_options.g_pTempLogFile,
            &m_mapIbisAssignments, inputFile);
        g_pModelAssignment->ResolveModels();
        g_pModelAssignment->ibisParts.Clear();
        for (const std::string& part : m_lstUnresolvedParts)
            g_pModelAssignment->ibisParts.Set(part, "T");
    }
    return 1;
}

// Pins to package nodes, between two rounds of copying each block's model to its members.
void TranslationDriver::BindComponentModels(const std::string& inputFile,
                                            const std::string& outputFolder) {
    g_pComponentNodes = std::make_unique<ComponentNodes>(
        &g_model.g_mapComponents, g_pModelAssignment.get(), inputFile, g_options.g_pOutputFile,
        g_options.g_pLogFile, outputFolder);
    if (!g_pModelAssignment) return;
    g_pModelAssignment->CopyBlockModels();
    g_pComponentNodes->BindPinsToNodes(g_pModelAssignment->blocks);
    g_pModelAssignment->CopyBlockModels();
}

int TranslationDriver::FailPipeline() {
    if (g_options.g_pLogFile) std::fclose(g_options.g_pLogFile);
    g_options.g_pLogFile = nullptr;
    return 0;
}

int TranslationDriver::FailMakeVias() {
    if (g_options.g_pOutputFile) std::fclose(g_options.g_pOutputFile);
    g_options.g_pOutputFile = nullptr;
    if (g_options.g_pLogFile) std::fclose(g_options.g_pLogFile);
    g_options.g_pLogFile = nullptr;
    TraceStep(true, "fail to Make Via");
    return 0;
}

int TranslationDriver::TranslateNddToQfx(const std::string& inputFile,
                                         const std::string& outputFile,
                                         const std::string& outputFolder) {
    if (g_options.g_nQuiet == 0) SetProgress(0);
    ShowStage("Begin ...");
    g_model.g_dbWorkMinX = g_options.g_dbSpatialMinX;
    g_model.g_dbWorkMinY = g_options.g_dbSpatialMinY;
    g_model.g_dbWorkMaxX = g_options.g_dbSpatialMaxX;
    g_model.g_dbWorkMaxY = g_options.g_dbSpatialMaxY;
    if (!OpenNdd(inputFile)) {
        ReportMessage("Cannot open file : " + inputFile, kBoxWarning);
        TraceStep(true, "Cannot open file : %s", inputFile.c_str());
        return 0;
    }
    WriteLogHeader();
    TraceStep(true, "LogHeader");
    ShowStage("Processing Layer Info ...");
    ShowStage("Processing Via Info ...");
    TraceStep(true, "ParsePadDef");
    ParsePadDef(inputFile);
    TraceStep(true, "ParseVia");
    // The via lines first; pins of placed parts follow as further vias.
    if (!ParseVia(inputFile) || !PlacePins()) return FailPipeline();

    double unionLength = g_options.g_dbTraceUnionLength / 1.0;
    g_model.g_dbTinyTraceLimitSquared = unionLength * unionLength;

    ShowStage("Processing Trace Info...");
    ShowStage("Processing Shape Info...");
    TraceStep(true, "ParseElement");
    if (!ParseElement(inputFile)) return FailPipeline();
    ParseHkpFile();

    if (g_options.g_dbGapAroundAreaFillOnPlaneLayers > 0)
        AddGapStrokesOnPlaneLayers(g_options.g_dbGapAroundAreaFillOnPlaneLayers);

    TraceStep(true, "ParseTrace, ParseArcTrace");
    ParseTrace(inputFile, 0);
    ParseArcTrace(inputFile, 0);
    // No pass below reads the design again, and the text is as large as the board: it goes
    // now rather than at the end (a later reader would load it anew).
    ForgetNddInput();

    RunShapeCleanupRound();
    SpreadSurfacePads();

    FILE* out = g_options.g_pOutputFile;
    ShowStage("Writing Title ...");
    WriteTitle(out);
    TraceStep(true, "output");
    ShowStage("Writing Transient ...");
    WriteTransient(out);
    ShowStage("Writing Mesh ...");
    WriteMesh(out);
    ShowStage("Writing PKG header ...");
    TraceStep(true, "MakePackage");
    WritePackageHead(out);

    // The flat copy of the nodes is read only through the node index, which the void check
    // makes first: no pass before it and none between it and the last copy reads the array,
    // so the copy is made only where it is read. Each copy is the whole node set.
    if (VoidCheckWanted()) {
        ShowStage("Check Undiscardable Void Shapes ...");
        RebuildNodeArray();
        CheckUndiscardableVoids();
    }

    ParseThermalTies();

    TraceStep(true, "Writing Via Info...");
    if (g_options.g_bTranslateVias) {
        ShowStage("Writing Via Info...");
        if (!MakeVias()) return FailMakeVias();
    }

    // The last copy of the node set: from here on the passes work on the array.
    RebuildNodeArray();
    RebuildNodeIndex();

    TraceStep(true, "KickOutTrivialTrace");
    KickOutTrivialTrace();
    if (g_model.g_dbTinyTraceLimitSquared > 0) {
        ShowStage("Clear tiny traces ...");
        ClearTinyTraces();
    }
    // The gaps are new shapes: they are cleaned like the others, and the voids are checked
    // again right after.
    GenerateTraceGaps();
    RunShapeCleanupRound();
    if (VoidCheckWanted()) CheckUndiscardableVoids();

    // When the report step writes every section again into this same file, the sections that
    // grow with the board (shapes, nodes, traces, vias) only leave their marks in the model
    // here, so that a big board is not formatted twice; the small sections are written as
    // they are. A first writing under another name stays beside the deck and is written whole.
    const bool whole = !firstWritingReplaced_;
    TraceStep(true, "Writing Shape Info...");
    if (g_options.g_bTranslateShapes) {
        ShowStage("Writing Shape Info...");
        if (whole)
            WriteShapes(out);
        else
            MarkShapeLayers();
    }
    if (g_options.g_bTranslateLayers) {
        ShowStage("Writing Layer Info...");
        WriteLayers(out);
    }

    BindComponentModels(inputFile, outputFolder);

    ShowStage("Writing Node Info...");
    TraceStep(true, "MakeNode");
    MakeNode();
    FlipMirroredBottomNodes();
    if (whole)
        WriteNodes(out);
    else
        PrepareNodeWriting();
    TraceStep(true, "MakeTrace");
    if (g_options.g_bTranslateTraces) {
        ShowStage("Writing Trace Info...");
        if (whole) WriteTraces(out);
    }
    if (g_options.g_bTranslateVias && whole) WriteVias(out);

    ShowStage("Writing PKG End...");
    WritePackageEnd(out);
    WriteCircuitDescription(out, g_pModelAssignment.get());
    WriteLinkageDescription(out, g_options.g_pLogFile, g_pComponentNodes.get());
    WriteFileEnd(out);
    // The first writing is checked like the second: a deck cut short must never pass for a
    // finished one.
    std::string reason;
    if (!base::CloseWritten(g_options.g_pOutputFile, reason)) {
        ReportWriteFailure(outputFile, reason);
        return FailPipeline();
    }
    if (!WriteModelReport(outputFile, g_pModelAssignment.get(), g_pComponentNodes.get()))
        return FailPipeline();
    if (!base::CloseWritten(g_options.g_pLogFile, reason)) {
        ReportWriteFailure(ModelReportLogPath(outputFile), reason);
        return 0;
    }
    TraceStep(true, "Translation completed");
    ShowStage("Translation completed");
    return 1;
}

void FreeModelArrays() {
    if (g_options.g_pOutputFile) std::fclose(g_options.g_pOutputFile);
    g_options.g_pOutputFile = nullptr;
    g_model.g_aVias.clear();
    g_model.g_aDrillRadii.clear();
    g_model.g_aTraces.clear();
    g_model.g_aTraceNets.clear();
    g_model.g_aTraceFlags.clear();
    g_model.g_aShapes.clear();
    g_model.g_aShapePoints.clear();
    g_model.g_aShapeBoxes.clear();
    g_model.g_aViaOut.clear();
    g_model.g_setNodes.clear();
    g_model.g_aNodes.clear();
    g_model.g_aNodeIndex.clear();
    g_model.g_aNodeLabels.assign(1, std::string());
    g_model.g_aNodePads.assign(1, NodePadEntry{});
    g_model.g_nNodeCount = 0;
}
