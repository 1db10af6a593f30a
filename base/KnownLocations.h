#pragma once
// The base library's table of known locations, filled once at start-up for a tool group.
//   Tool log folder:    the folder that LULIB_RUNLOG names a file in when it does (the working
//                       folder for a bare file name); else $XDG_STATE_HOME/lumora/<group>/,
//                       $HOME/.local/state/lumora/<group>/ without it.
//   Tool temp folder:   TMP, TEMP, TMPDIR, then /tmp.
//   Tool output folder: the working folder at start-up.
//   Run.log:            "Run.log" in the tool log folder.
// Folders end with a separator.
#include <string>

namespace base {

enum class KnownLocation { ToolOutputFolder, ToolLogFolder, ToolTempFolder, RunLogFile };

// Fills the table for a tool group, makes the log folder, and sets the run log's destination
// to the Run.log path (exported to child processes); that path takes the place of any value
// LULIB_RUNLOG held.
void InitializeLuLib(const char* toolGroup);

// A location of the table; "" before InitializeLuLib.
std::string KnownLocationPath(KnownLocation which);

}  // namespace base
