#include "ibis/ModelAssignment.h"

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
        for (auto from = c.pins.begin(); from != c.pins.end() && to != d->pins.end();
             ++from, ++to) {
            // Everything the model gave the pin; its net stays its own.
            to->hasModel = from->hasModel;
            to->nodeNames = from->nodeNames;
            to->ioNode = from->ioNode;
            to->pullupRef = from->pullupRef;
            to->pulldownRef = from->pulldownRef;
            to->powerClampRef = from->powerClampRef;
            to->gndClampRef = from->gndClampRef;
            to->powerGroup = from->powerGroup;
            to->groundGroup = from->groundGroup;
            to->modelName = from->modelName;
            to->modelNameAsRead = from->modelNameAsRead;
            to->modelType = from->modelType;
            to->signalName = from->signalName;
            to->pinClass = from->pinClass;
            to->name = from->name;
        }
    }
}
