#pragma once
// The one seam between a translation and whoever runs it. A translation tells its host which
// stage it is in and how far it has come, asks it yes/no questions, offers it the Settings
// step and hands it messages for the user; it never sees a window. BatchHost is the host of a
// run with no toolkit; the main dialog implements the same interface with its widgets.
//
// The passes reach the host of the running translation through CurrentHost (ReportMessage and
// the progress counter do): the driver installs its host with a HostScope for one translation.
#include <string>

class TranslationHost {
  public:
    virtual ~TranslationHost() = default;

    // A stage message such as "Writing Shape Info...".
    virtual void ShowStage(const std::string& text) = 0;
    // The progress bar's position, 0 to 100.
    virtual void SetProgress(int position) = 0;
    // A yes/no question; true when the answer is Yes.
    virtual bool Ask(const std::string& question) = 0;
    // The Settings step, offered when no traces file has been chosen.
    virtual void RunSettingsStep() = 0;
    // A message for the user: boxType kBoxOk or kBoxWarning, helpId a help topic or 0.
    virtual void ShowMessage(const std::string& text, int boxType, int helpId) = 0;
};

// The host installed by the innermost HostScope; a BatchHost when there is none.
TranslationHost& CurrentHost();

// Installs a host for its lifetime and puts the previous one back afterwards.
class HostScope {
  public:
    explicit HostScope(TranslationHost& host);
    ~HostScope();
    HostScope(const HostScope&) = delete;
    HostScope& operator=(const HostScope&) = delete;

  private:
    TranslationHost* previous_;
};
