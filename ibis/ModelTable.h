#pragma once
// The IBIS model types the solver has circuit models for, each with the node names of its
// model. A type that is not in the table (a terminator, a series element) gets no model.
#include <string>
#include <vector>

#include "base/StringMap.h"

// Fills table with the 14 model types and their node lists; each list ends with " ;".
void BuildModelTable(base::StringMap<std::string>& table);
// The table as built, shared by the readers and writers.
const base::StringMap<std::string>& ModelTable();
// The node names of a list, up to the token ";".
std::vector<std::string> ModelNodeTokens(const std::string& list);
// The node names of a model type; empty when the type is not in the table. found tells.
std::vector<std::string> ModelNodesOf(const std::string& modelType, bool* found = nullptr);
