#pragma once
// A picture of the screen at the moment of a crash, for the runs where a call stack alone does
// not tell what the user was looking at. Switched on by LUSHL_SNAP_CRASH_MOMENT.
#include <ctime>
#include <string>

// When LUSHL_SNAP_CRASH_MOMENT holds a non-zero number, the crash handler saves the screen
// instead of writing its crash log. Call once the toolkit's application object exists.
void InstallCrashSnapshot();
// Takes the snapshot away again, before the application object goes.
void RemoveCrashSnapshot();

// "crash_image_<%m%d%Y_%H%M%S>.jpg" in the given folder (which ends with a separator).
std::string CrashImageName(const std::string& folder, std::time_t when);

// Grabs the whole primary screen and saves it under CrashImageName in the tool log folder;
// a failed save says "Failed to save full screen.\n" on the debugger's output.
void SaveCrashSnapshot();
