#pragma once
// The progress bar of a dialog run. The line-by-line passes (traces, arc traces, shapes,
// vias) start it at 10 and move it on by 5 every 150 lines, up to 50. A batch run has none.
#include <functional>

void SetProgressHandler(std::function<void(int)> handler);
void SetProgress(int position);
// Starts a pass's line counter at position 10.
void StartPassProgress();
// Counts one record of a line-by-line pass.
void CountPassLine();
