#pragma once
// Net colours have one owner: g_pNetColors of the option record. The output's writers, the
// translation log and the net choice of the Settings dialog all read and write that array, so
// whatever the user chose is what the output and the log show.
//
// Reading the net table gives every net its default colour (net index mod 11, plus 1). A
// loaded log's colours are held by net name until the table has been read; every reading of
// the table then puts them over the defaults, so a log rerun keeps the colours the log names
// whether or not the Settings dialog was opened in between.

// Default colours for the whole net table, then the loaded log's colours by name.
void AssignNetColors();
// The loaded log's colours, by net name, into g_pNetColors. An unknown colour name gives the
// default colour 0; a net that the table lacks is passed over.
void ApplyLogNetColors();
// The loaded log's nets become the selection, in the log's order: a net that the table lacks
// is kept as the failed look-up's value.
void TakeLogNetSelection();
