#pragma once
// Components, their pins, package definitions and part power ports. An empty text is the
// "not set" value of every text field.
#include <cstdint>
#include <list>
#include <string>
#include <vector>

#include "base/StringMap.h"
#include "model/PinModelFields.h"

struct PadStackRec;

// Fields ordered by size so the record carries no padding between them.
struct PinRec {
    std::string name;
    std::string net;
    std::string nodeId;
    std::string padStackName;
    double libX = 0.0, libY = 0.0;
    double x = 0.0, y = 0.0;
    double rotation = 0.0;
    PadStackRec* padStack = nullptr;
    int32_t pinClass = -1;  // 0 signal, 1 power, 2 ground, -1 unknown or no connection
    uint32_t hasNode = 0;
    uint32_t hasModel = 0;

    // The model fields; empty ones, made by nobody, for a pin that never got any.
    const PinModelFields& Model() const { return model_.Get(); }
    // The model fields to write; the first call makes them.
    PinModelFields& EditModel() { return model_.Edit(); }
    // Takes all model fields of from, or none when from has none.
    void CopyModelFrom(const PinRec& from) { model_ = from.model_; }

  private:
    PinModelHolder model_;
};

struct GroupRec {
    std::string name;
    std::string kind;  // "PU" or "PD"
    std::vector<std::string> pins;
};

struct ComponentRec {
    std::string placement;
    std::string kindFromRefDes;
    std::string kind = "?";
    uint32_t hasValue = 0;
    base::StringMap<std::string> pinNodes{base::kComponentBuckets};
    uint32_t mappingComplete = 0;
    uint32_t ibisOpened = 0;
    uint32_t ibisError = 0;
    std::string blockName;
    std::string refDes;
    std::string partNumber;
    uint32_t isActive = 0;
    uint32_t spare = 0;
    std::string spareText;
    std::string packageName;
    std::string value;
    std::string ibisFile;
    double x = 0.0, y = 0.0;
    double rotation = 0.0;
    int32_t layer = 0;
    // A list keeps pin addresses stable while pins are added.
    std::list<PinRec> pins;
    base::StringMap<GroupRec> groups{base::kComponentBuckets};
    uint32_t pinsMatch = 1;
};

struct PackageDefRec {
    std::string name;
    std::vector<PinRec> pins;
};

struct PartPowerRec {
    std::string name;
    std::vector<std::string> powerPorts;  // "<net>?<pin>"
};
