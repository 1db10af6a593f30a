#pragma once
// The pin name of a node. Few nodes have one, and the node set and its flat copy hold every
// node, so a node keeps only the number of its name in the model's label table; number 0 is
// the empty name. The table is cleared with the model.
#include <cstdint>
#include <string>

class NodeLabel {
  public:
    bool empty() const { return index_ == 0; }
    const std::string& str() const;
    operator const std::string&() const { return str(); }
    NodeLabel& operator=(const std::string& name);

    friend bool operator==(const NodeLabel& a, const std::string& b) { return a.str() == b; }
    friend bool operator!=(const NodeLabel& a, const std::string& b) { return !(a == b); }

  private:
    uint32_t index_ = 0;
};
