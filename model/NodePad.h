#pragma once
// The padstack and rotation of a node. Only pin nodes and the nodes a via barrel makes have a
// padstack, and the node set and its flat copy hold every node, so a node keeps only the number
// of its entry in the model's pad table; number 0 is no padstack and rotation 0. Every change
// makes a new entry, so a record and its copies never share a change. The table is cleared
// with the model.
#include <cstdint>

struct PadStackRec;

struct NodePadEntry {
    PadStackRec* padStack = nullptr;
    double rotation = 0.0;
};

class NodePad {
  public:
    PadStackRec* padStack() const { return Entry().padStack; }
    double rotation() const { return Entry().rotation; }
    void Set(PadStackRec* padStack, double rotation);
    void SetRotation(double rotation) { Set(padStack(), rotation); }

  private:
    const NodePadEntry& Entry() const;

    uint32_t index_ = 0;
};
