#pragma once
// The progress of a batch run on one line of a terminal: the stage, the share of the stages
// passed and the time so far, redrawn in place. Only when the stream is a terminal: a redirected
// stream and error.log never see it. It listens to the progress calls the dialog's bar uses.
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>

class TerminalProgress {
  public:
    using Clock = std::function<double()>;  // seconds from any fixed point

    // Listens while it lives when err is a terminal (or always, with isTerminal true).
    explicit TerminalProgress(FILE* err, int isTerminal = -1, Clock clock = nullptr);
    ~TerminalProgress();
    TerminalProgress(const TerminalProgress&) = delete;
    TerminalProgress& operator=(const TerminalProgress&) = delete;

    // The line for a stage at a time: "stage  NN %  S.S s".
    static std::string Line(const std::string& stage, double elapsed);

  private:
    void Show(const std::string& stage);

    FILE* err_;
    bool active_ = false;
    Clock clock_;
    double start_ = 0, shown_ = -1;
    std::string stage_;
};
