#pragma once
// The order of a translation. Translate is the entry from the dialog and from a batch run:
// it checks the names, opens the output and the log, reads the design's library-level data
// and hands over to TranslateNddToQfx, the pipeline of reader passes, clean-up and writers
// over the one LayoutModel. A later step relies on what the earlier ones left in the global
// records, so the order here is a contract.
//
// The class holds no window: the main dialog derives from it and overrides the hooks that
// show stages, move the progress bar and run the Settings step, so the translation itself is
// the same code in a batch run with no toolkit.
#include <memory>
#include <string>
#include <vector>

#include "base/StringMap.h"
#include "ibis/ComponentNodes.h"
#include "ibis/ModelAssignment.h"

class TranslationDriver {
  public:
    TranslationDriver() = default;
    virtual ~TranslationDriver() = default;

    // Non-zero on success, 0 on any failure.
    int Translate(std::string inputFile, std::string outputFile);
    // 1 on success, 0 on failure.
    int TranslateNddToQfx(const std::string& inputFile, const std::string& outputFile,
                          const std::string& outputFolder);

    // Posts a stage message; only a dialog run shows one.
    void ShowStage(const std::string& text);

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

  protected:
    virtual void OnStage(const std::string& /*text*/) {}
    // The Settings step of a dialog run, offered when no traces file has been chosen.
    virtual void RunSettingsStep() {}

  private:
    int ReadDesignData(const std::string& inputFile);
    int ReadComponentData(const std::string& inputFile, const std::string& outputFile);
    void EmptyComponentLists();
    void BindComponentModels(const std::string& inputFile, const std::string& outputFolder);
    int FailPipeline();
    // MakeVias failed: output and log are closed and cleared.
    int FailMakeVias();
};

// Frees the per-translation arrays of the model.
void FreeModelArrays();
