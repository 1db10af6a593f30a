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
#include <string>

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

  protected:
    virtual void OnStage(const std::string& /*text*/) {}
    // The Settings step of a dialog run, offered when no traces file has been chosen.
    virtual void RunSettingsStep() {}

  private:
    int ReadDesignData(const std::string& inputFile);
    int FailPipeline();
    // MakeVias failed: output and log are closed and cleared.
    int FailMakeVias();
};

// Frees the per-translation arrays of the model.
void FreeModelArrays();
