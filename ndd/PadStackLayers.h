#pragma once
// Layers of padstack entries: the layer words of the format resolved against the stack.
#include <string>

// The entry name of a padstack's default layer, before it is expanded to the layers.
extern const char kDefaultLibLayer[];

// Index of the layer that a pad layer word names, and that layer's name in outName: the top
// or bottom conductor for "%toppad"/"%bottompad", -1 and the word itself for the default
// entry, otherwise the first layer (a dielectric too) named so without case, or the first
// plane for "POWER". -1, with outName left as it was, when nothing matches.
int ResolvePadLayer(const std::string& word, std::string& outName);

// Gives every padstack with one or two entries the layer of its first entry, or of its last
// when the first names no layer.
void ResolvePadStackLayers();

// Replaces the default entry of each padstack by one entry per conductor layer that the
// padstack does not name itself; these entries share the default entry's pads.
void ExpandDefaultLayers();
