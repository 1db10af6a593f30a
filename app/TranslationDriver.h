#pragma once
// The order of a translation. Translate is the entry from the dialog and from a batch run:
// it checks the names, opens the output and the log, reads the design's library-level data
// and hands over to the pipeline of reader passes, clean-up and writers over the one
// LayoutModel. A later step relies on what the earlier ones left in the global records, so
// the order here is a contract.
//
// The driver holds no window: it reaches the user only through its TranslationHost, so the
// translation is the same code in a batch run with no toolkit and in the dialog.
#include <memory>
#include <string>
#include <vector>

#include "base/StringMap.h"
#include "ibis/ComponentNodes.h"
#include "ibis/ModelAssignment.h"
#include "model/TranslationHost.h"

// What became of a translation; the application decides what follows.
enum class TranslateStatus {
    Failed,    // the user has been told why; what was written stays on disk
    Done,      // the output and its log are complete
    Declined,  // the user would not replace an existing output: the program ends
};

class TranslationDriver {
  public:
    explicit TranslationDriver(TranslationHost& host) : host_(host) {}

    TranslateStatus Translate(std::string inputFile, std::string outputFile);

    // The input is read afresh by the next Translate: after a new input or a log load.
    void RereadInput() { m_bReread = true; }
    // True while the next Translate (or Settings step) reads the input's library data.
    bool Rereads() const { return m_bReread; }

    // The Settings step, before the user picks nets and models. When the input is to be read
    // afresh, ForgetInput empties the component lists and the chosen nets, and ReadForSettings
    // reads a named input as far as the Settings dialog needs it (units, aliases, nets and
    // their colours, parts, placements, pin nets, models); an unnamed one leaves no nets.
    // Afterwards the next Translate reads no more of it, so what the user picked stays.
    void ForgetInput();
    void ReadForSettings(const std::string& inputFile, const std::string& outputFile);
    // The parts and models read for the Settings step or the running translation; null
    // before the input is read.
    ModelAssignment* Models() const { return g_pModelAssignment.get(); }
    // A part whose model the user has yet to settle; it takes part in the IBIS step.
    void AddUnresolvedPart(const std::string& partNumber);

  private:
    // Translate once the names are checked and the output may be replaced.
    int TranslateNamed(std::string inputFile, std::string outputFile);
    int TranslateNddToQfx(const std::string& inputFile, const std::string& outputFile,
                          const std::string& outputFolder);
    // Posts a stage message; only a run that is not quiet shows one.
    void ShowStage(const std::string& text);
    int ReadDesignData(const std::string& inputFile);
    int ReadComponentData(const std::string& inputFile, const std::string& outputFile);
    void EmptyComponentLists();
    void BindComponentModels(const std::string& inputFile, const std::string& outputFolder);
    int FailPipeline();
    // MakeVias failed: output and log are closed and cleared.
    int FailMakeVias();

    TranslationHost& host_;
    // The report step writes the deck again into the file of the first writing (the output
    // was named with its extension): the first writing's text of the sections that grow with
    // the board would only be replaced.
    bool firstWritingReplaced_ = false;
    // The input must be read afresh: true after construction, a new input or a log load.
    bool m_bReread = true;
    // Part numbers to IBIS model assignments, made in Translate; components with their
    // package nodes, made by the pipeline. Both live for one translation.
    std::unique_ptr<ModelAssignment> g_pModelAssignment;
    std::unique_ptr<ComponentNodes> g_pComponentNodes;
    // Part number to the IBIS file chosen for it.
    base::StringMap<std::string> m_mapIbisAssignments{base::kComponentBuckets};
    // Part numbers whose models the user has yet to settle; they take part in the IBIS step.
    std::vector<std::string> m_lstUnresolvedParts;
};

// Frees the per-translation arrays of the model.
void FreeModelArrays();
