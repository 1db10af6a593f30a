#include "ibis/ModelAssignment.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>
#include <utility>

#include "ibis/ComponentValue.h"
#include "ibis/IbisReader.h"
#include "ibis/ModelTable.h"

namespace {

std::string Underscored(std::string text, const char* marks) {
    for (char& c : text)
        for (const char* m = marks; *m; ++m)
            if (c == *m) c = '_';
    return text;
}

}  // namespace

std::string ActiveBlockName(const ComponentRec& component) {
    return Underscored(component.partNumber + "_" + component.packageName, ",. ");
}

std::string PassiveBlockName(const ComponentRec& component) {
    const std::string& tail = component.value.empty() ? component.packageName : component.value;
    return Underscored(component.partNumber + "_" + tail, ". ");
}

ModelAssignment::ModelAssignment(base::StringMap<ComponentRec>* components_,
                                 std::string outputName_, FILE* output_, FILE* messages_,
                                 base::StringMap<std::string>* assignments_, std::string inputName_)
    : componentTable(components_),
      assignments(assignments_),
      outputName(std::move(outputName_)),
      inputName(std::move(inputName_)),
      output(output_),
      messages(messages_) {}

void ModelAssignment::ResolveModels() {
    partRefDes.Clear();
    BuildModelTable(modelNodes);
    // The tables below point into the component table, which a fresh read has remade.
    partComponents.Clear();
    components.clear();
    blocks.Clear();
    blockComponents.Clear();
    if (!componentTable) return;

    // A part takes the kind of its last component, so all its components agree.
    base::StringMap<std::string> partKinds(base::kComponentBuckets);
    componentTable->ForEach([&](const std::string&, ComponentRec& c) {
        ClassifyComponent(c);
        c.kindFromRefDes = c.kind;
        partKinds.Set(c.partNumber, c.kind);
    });
    componentTable->ForEach([&](const std::string&, ComponentRec& c) {
        c.kindFromRefDes = *partKinds.Find(c.partNumber);
    });

    componentTable->ForEach([&](const std::string&, ComponentRec& c) {
        ClassifyComponent(c);
        NormaliseValue(c);
        if (c.isActive) {
            c.blockName = ActiveBlockName(c);
            partComponents.Set(c.partNumber, &c);
            blocks.Set(c.blockName, &c);
            partRefDes[c.partNumber].push_back(c.refDes);
            blockComponents[c.blockName].push_back(&c);
        } else {
            c.blockName = PassiveBlockName(c);
            blocks.Set(c.blockName, &c);
        }
        components.push_back(&c);
    });

    blocks.ForEach([](const std::string&, ComponentRec* c) {
        if (c->isActive) ParseIbisFile(*c);
    });
}

namespace {

// Everything a model gives a pin; its net stays its own.
void CopyPinModel(const PinRec& from, PinRec& to) {
    to.hasModel = from.hasModel;
    to.CopyModelFrom(from);
    to.pinClass = from.pinClass;
    to.name = from.name;
}

}  // namespace

void ModelAssignment::CopyBlockModel(ComponentRec& c) {
    std::vector<ComponentRec*>* block = blockComponents.Find(c.blockName);
    if (!block) return;
    for (ComponentRec* d : *block) {
        if (d == &c) continue;
        d->isActive = c.isActive;
        d->mappingComplete = c.mappingComplete;
        d->ibisOpened = c.ibisOpened;
        d->ibisError = c.ibisError;
        d->pinsMatch = c.pinsMatch;
        d->groups = base::StringMap<GroupRec>(c.groups);
        d->kind = c.kind;
        d->kindFromRefDes = c.kindFromRefDes;
        d->ibisFile = c.ibisFile;
        d->blockName = c.blockName;
        d->partNumber = c.partNumber;
        auto to = d->pins.begin();
        for (auto from = c.pins.begin(); from != c.pins.end() && to != d->pins.end(); ++from, ++to)
            CopyPinModel(*from, *to);
    }
}

void ModelAssignment::CopyBlockModels() {
    // A copy from a component makes every member of its block equal to it in all copied fields
    // and in the pins that both have. After the first, a member's own copy repeats what is
    // there already, except for the pins at and beyond the longest pin list copied so far.
    struct BlockCopy {
        bool agreed = false;
        size_t copiedPins = 0;
    };
    std::unordered_map<const ComponentRec*, const std::vector<ComponentRec*>*> blockOf;
    blockComponents.ForEach([&](const std::string&, std::vector<ComponentRec*>& members) {
        for (const ComponentRec* m : members) blockOf.emplace(m, &members);
    });
    std::unordered_map<const std::vector<ComponentRec*>*, BlockCopy> progress;
    for (ComponentRec* c : components) {
        std::vector<ComponentRec*>* block = blockComponents.Find(c->blockName);
        if (!block) continue;
        BlockCopy& p = progress[block];
        auto own = blockOf.find(c);
        const bool member = own != blockOf.end() && own->second == block;
        if (!member || !p.agreed) {
            CopyBlockModel(*c);
            p.agreed = true;
            p.copiedPins = std::max(p.copiedPins, c->pins.size());
            continue;
        }
        if (c->pins.size() <= p.copiedPins) continue;
        for (ComponentRec* d : *block) {
            if (d == c || d->pins.size() <= p.copiedPins) continue;
            auto from = std::next(c->pins.begin(), static_cast<std::ptrdiff_t>(p.copiedPins));
            auto to = std::next(d->pins.begin(), static_cast<std::ptrdiff_t>(p.copiedPins));
            for (; from != c->pins.end() && to != d->pins.end(); ++from, ++to)
                CopyPinModel(*from, *to);
        }
        p.copiedPins = c->pins.size();
    }
}
