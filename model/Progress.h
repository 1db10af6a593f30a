#pragma once
// The progress bar. The line-by-line passes (traces, arc traces, shapes, vias) start it at 10
// and move it on by 5 every 150 lines, up to 50. The host of the running translation shows
// it; a quiet (batch) run moves nothing.
#include <functional>
#include <string>

// The stage that a translation has reached, as its stage messages name it.
void SetProgressStage(const std::string& stage);
// Told of every stage and every move of the bar, in any run: the batch run's terminal line.
void SetProgressObserver(std::function<void(const std::string& stage, int position)> observer);
// Moves the bar to position.
void SetProgress(int position);
// Starts a pass's line counter at position 10.
void StartPassProgress();
// Counts one record of a line-by-line pass.
void CountPassLine();
// The bar and the line counter back to 0, for a new translation.
void ResetProgress();
