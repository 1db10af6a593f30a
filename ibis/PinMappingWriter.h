#pragma once
// Saves the pin mapping of a component into its IBIS file: the [Pin] table is rewritten with
// the pins the mapping changed, a [Pin Mapping] table follows it, and the first line marks
// the file as changed by this program. The mapping comes from the pins, as StoreMappingRows
// left them; a later ParseIbisFile takes it back.
#include <string>

#include "model/ComponentRecords.h"

// The first line of a file that this program has changed.
constexpr char kModifiedIbisMarker[] = "|****Lumora Modifed IBIS File****";
// Shown when the changed file cannot take the place of the old one.
constexpr char kIbisNotSaved[] =
    "file could not be saved ,   \nplease check if it is read only file";

// The file the new text is written to before it replaces the old one: the name cut at
// ".ibs" (in any case), followed by "_temp_lumora.ibs".
std::string PinMappingTempName(const std::string& ibisFile);

// Rewrites component.ibisFile. Returns 0 for a passive component and when the file could not
// be saved (the user has been told through ReportMessage), 1 otherwise. A read-only file is
// not replaced: it keeps its text, and the new text stays in the temporary file.
int PinMappingWriter(ComponentRec& component);
