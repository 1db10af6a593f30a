#pragma once
// The progress bar of a dialog run. The line-by-line passes (traces, arc traces, shapes,
// vias) start it at 10 and move it on by 5 every 150 lines, up to 50. A batch run has none.
#include <functional>
#include <string>

void SetProgressHandler(std::function<void(int)> handler);
// The stage that a translation has reached, as its stage messages name it.
void SetProgressStage(const std::string& stage);
// Told of every stage and every move of the bar, in any run: the batch run's terminal line.
void SetProgressObserver(std::function<void(const std::string& stage, int position)> observer);
void SetProgress(int position);
// Starts a pass's line counter at position 10.
void StartPassProgress();
// Counts one record of a line-by-line pass.
void CountPassLine();
