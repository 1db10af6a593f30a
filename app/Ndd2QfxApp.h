#pragma once
// The application object and its start routine: command line to paths and run mode, the
// working folder, error.log of a batch run, then one translation with no window (batch) or
// the main dialog.
#include <string>
#include <vector>

class CNdd2QfxApp {
  public:
    explicit CNdd2QfxApp(std::vector<std::string> args) : m_args(std::move(args)) {}
    virtual ~CNdd2QfxApp();

    // 0 when it stopped early, -1 when it ran to its end.
    virtual int InitInstance();
    // Runs when the start routine has returned; nothing to do.
    virtual int ExitInstance() { return 0; }

    // Status of a run that would open the main dialog, which this build does not have.
    static constexpr int kNoDialogStatus = 2;
    // Status of a failed batch translation under "-strict".
    static constexpr int kStrictFailureStatus = 1;

    // False when the batch translation failed.
    bool Succeeded() const { return m_bSucceeded; }

  private:
    void DecideFolder(std::string& folder);
    void OpenErrorLog(const std::string& folder);
    std::vector<std::string> m_args;
    bool m_bSucceeded = true;
};

// Process entry: "-v" prints the name and version; "-b" runs the start routine with no
// toolkit on a thread of its own; otherwise the UI shell (ProcessHooks.h) runs it. Returns the
// process status.
int RunProcess(int argc, char** argv);
