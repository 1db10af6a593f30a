#pragma once
// Part numbers to IBIS models for one translation: sorts the components into passive and
// active, names their circuit blocks, normalises passive values and reads the IBIS file of
// each active block. The driver owns one for the length of a translation.
#include <cstdio>
#include <string>
#include <vector>

#include "base/StringMap.h"
#include "model/ComponentRecords.h"

class ModelAssignment {
  public:
    // components is the design's component table; assignments maps a part number to the
    // IBIS file the user chose for it. Streams may be null.
    ModelAssignment(base::StringMap<ComponentRec>* components, std::string outputName, FILE* output,
                    FILE* messages, base::StringMap<std::string>* assignments,
                    std::string inputName);

    // Classifies every component, names the blocks and reads the active blocks' files.
    void ResolveModels();
    // Copies the read model of an active component to the other components of its block.
    void CopyBlockModel(ComponentRec& component);
    // CopyBlockModel for every component in turn, with the same result in time linear in the
    // pins: once one copy has made a block's members agree, a later member's copy changes only
    // the pins beyond those already copied.
    void CopyBlockModels();

    // Model type to node list; built by ResolveModels.
    base::StringMap<std::string> modelNodes{base::kComponentBuckets};
    // Part numbers that take part in the IBIS step, value "T".
    base::StringMap<std::string> ibisParts{base::kComponentBuckets};
    // Every component, in the walking order of the component table.
    std::vector<ComponentRec*> components;
    // Block name to the component that stands for the block.
    base::StringMap<ComponentRec*> blocks{base::kComponentBuckets};

    // Part number to a component of the part (the last one seen).
    base::StringMap<ComponentRec*> partComponents{base::kComponentBuckets};
    // Part number to the designators of its active components.
    base::StringMap<std::vector<std::string>> partRefDes{base::kComponentBuckets};
    // Block name to its active components.
    base::StringMap<std::vector<ComponentRec*>> blockComponents{base::kComponentBuckets};

    base::StringMap<ComponentRec>* componentTable = nullptr;
    base::StringMap<std::string>* assignments = nullptr;
    std::string outputName;
    std::string inputName;
    FILE* output = nullptr;
    FILE* messages = nullptr;
};

// The block name of an active component: part number and package, with ",", "." and blanks
// as "_".
std::string ActiveBlockName(const ComponentRec& component);
// The block name of a passive component: part number and value (or package when the value
// is empty), with "." and blanks as "_".
std::string PassiveBlockName(const ComponentRec& component);
