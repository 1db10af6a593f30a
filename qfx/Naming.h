#pragma once
// Object names of the QFX file: class word, name affix, counter or layer name, then the
// pin label suffix and the net suffix.
#include <cstdint>
#include <string>

// The name affix ("Name affix : "), empty by default.
const std::string& Affix();
// "::" and the net's unique display name; empty when net names are off or for no net.
std::string NetSuffix(int32_t net);
// "Node", affix, number, "!!" and the pin label (if any), and the net suffix appended to out: a
// node's name as its own line and every reference to it spell it.
void AppendNodeName(std::string& out, int32_t id, const std::string& label, int32_t net);
// The program's version as the title prints it: "," to "." and blanks removed.
std::string TitleVersion(const std::string& productVersion);
