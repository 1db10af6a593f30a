#pragma once
// The component half of the NDD file: property aliases, package definitions, placements,
// gates and power ports. Each pass walks the file by itself from its first line and fills
// one of the component tables of the layout model; the driver runs them in a fixed order.
#include <string>

#include "base/TextFile.h"

// Fills g_mapAliasProps from "%aliasprop" tables and one-line "%aliasprop" records.
void ReadAliasProperties(const std::string& path);
// Fills g_mapPackageDefs with the template pins of every "%packagedef".
void ReadPackageDefs(base::LineStream& stream);
// Fills g_mapComponents from the "%partinst" placements and their value properties.
// useSide 1 puts bottom placements on the bottom conductor layer.
void GetCompPlacementInfo(base::LineStream& stream, int useSide);
// Reads the gates from the stream's first line: part numbers, default IBIS paths, pin nets.
void GetPinNetInfo(base::LineStream& stream, const std::string& inputPath);
// Fills g_mapPartPower with the "%powerport" rows of every "%part".
void ReadPartPowerPorts(const std::string& path);
// Stores each part's power-port nets on the pins of its components.
void ApplyPowerPorts();
// Turns every placed pin into a node, and a drilled pin into a via as well. Returns 0 when
// the via table cannot grow.
int PlacePins();

// The "RES 10K" form of a value under ICX_VALUE: the first letter gives the kind, the rest
// after the fourth character is number and unit, rewritten to the solver's unit letters.
// kind receives "R", "L" or "C", or stays as it is for another first letter.
std::string RewriteTypedValue(const std::string& value, std::string& kind);
