#include "ibis/LinkageWriter.h"

#include <string>

#include "ibis/CircuitForm.h"
#include "ibis/ComponentNodes.h"
#include "ibis/ModelAssignment.h"
#include "ibis/PinMappingRows.h"
#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"
#include "ndd/NddTokens.h"
#include "ndd/NetTable.h"

namespace {

std::string DotsAndCommasUnderscored(std::string name) {
    for (char& c : name)
        if (c == '.' || c == ',') c = '_';
    return name;
}

// Whether a pin's net lets it into a linkage.
bool NetTaken(const PinRec& pin) {
    if (pin.net.empty()) return g_options.g_nIncludeNoNetEtches != 0;
    return !Contains(pin.net, "%no_connect") && IsNetSelected(pin.net);
}

std::string NodeNetName(const NodeRec* node) {
    return node ? DisplayNetName(node->net) : std::string();
}

// The passive form: every linked pin to its node. Returns the number of linked pins.
int PassiveConnect(ComponentNodes& nodes, ComponentRec& c, std::string& text) {
    text = ".Connect " + c.refDes + " " + DotsAndCommasUnderscored(c.blockName) + "\n";
    int linked = 0;
    for (PinRec& pin : c.pins) {
        if (!NetTaken(pin)) continue;
        if (pin.nodeId.empty()) nodes.AddExtraPinNode(pin, c);
        if (pin.nodeId.empty()) continue;
        const NodeRec* node = nodes.NodeOf(pin.nodeId);
        std::string nodeLabel = node ? node->label : std::string();
        std::string pinLabel = EqualsNoCase(pin.name, nodeLabel) ? pin.name : nodeLabel;
        std::string nodeNet = NodeNetName(node);
        std::string netLabel = EqualsNoCase(pin.net, nodeNet) ? pin.net : nodeNet;
        text += pin.name + " $Package.Node" + g_options.g_strNameAffix + pin.nodeId;
        if (!pinLabel.empty()) text += "!!" + pinLabel;
        if (!netLabel.empty()) text += "::" + netLabel;
        text += "\n";
        ++linked;
    }
    text += ".EndC\n";
    return linked;
}

// An empty reference takes its partner when the model has the reference's node.
void MendReferences(PinRec& pin) {
    bool pu = false, pd = false, pc = false, gc = false;
    for (const std::string& name : pin.Model().nodeNames) {
        pu |= Contains(name, "nd_pu");
        pd |= Contains(name, "nd_pd");
        pc |= Contains(name, "nd_pc");
        gc |= Contains(name, "nd_gc");
    }
    if (!pu && !pc && !pd && !gc) return;
    PinModelFields& m = pin.EditModel();
    if (pu && m.pullupRef.empty()) m.pullupRef = m.powerClampRef;
    if (pc && m.powerClampRef.empty()) m.powerClampRef = m.pullupRef;
    if (pd && m.pulldownRef.empty()) m.pulldownRef = m.gndClampRef;
    if (gc && m.gndClampRef.empty()) m.gndClampRef = m.pulldownRef;
}

PinRec* PinNamed(ComponentRec& c, const std::string& name) {
    for (PinRec& pin : c.pins)
        if (pin.name == name) return &pin;
    return nullptr;
}

// The group lines of one reference; marks a connection when the group has a linked pin
// or was written for an earlier pin.
void GroupLines(ComponentNodes& nodes, ComponentRec& c, const std::string& ref,
                base::StringMap<int>& done, std::string& lines, bool& connected) {
    if (!IsRealReference(ref)) return;
    GroupRec* group = c.groups.Find(ref);
    if (!group) return;
    if (done.Contains(ref)) {
        connected = true;
        return;
    }
    for (const std::string& name : group->pins) {
        PinRec* member = PinNamed(c, name);
        if (!member) continue;
        if (member->nodeId.empty()) nodes.AddExtraPinNode(*member, c);
        std::string line = group->name + " $Package.Node" + member->nodeId + "!!" + member->name +
                           "::" + member->net + "\n";
        bool selected =
            member->net.empty() ? g_options.g_nIncludeNoNetEtches != 0 : IsNetSelected(member->net);
        if (!selected) continue;
        lines += line;
        connected = true;
    }
    done.Set(ref, 1);
}

bool HoldsModelNodeOrGroup(const std::string& body, const ComponentRec& c) {
    for (const char* node : {"nd_pu", "nd_pd", "nd_pc", "nd_gc"})
        if (Contains(body, node)) return true;
    bool found = false;
    c.groups.ForEach([&](const std::string& name, const GroupRec&) {
        if (!found && Contains(body, name)) found = true;
    });
    return found;
}

// The active form: each signal pin's IBIS node and the power and ground groups that feed
// its model.
void ActiveConnect(FILE* out, ComponentNodes& nodes, ComponentRec& c) {
    std::string body;
    base::StringMap<int> done(base::kComponentBuckets);
    for (PinRec& pin : c.pins) {
        if (pin.pinClass != 0 || !NetTaken(pin)) continue;
        const std::string* entry = c.pinNodes.Find(pin.name);
        if (!entry) continue;
        std::string line = pin.Model().ioNode + " $Package.Node" + *entry + "!!" + pin.name;
        std::string nodeNet = NodeNetName(nodes.NodeOf(*entry));
        if (!nodeNet.empty()) line += "::" + nodeNet;
        line += "\n";
        MendReferences(pin);
        std::string groups;
        bool connected = false;
        const PinModelFields& m = pin.Model();
        for (const std::string* ref :
             {&m.pullupRef, &m.pulldownRef, &m.powerClampRef, &m.gndClampRef})
            GroupLines(nodes, c, *ref, done, groups, connected);
        if (connected) body += line + groups;
    }
    if (!HoldsModelNodeOrGroup(body, c)) return;
    std::fprintf(out, ".Connect %s %s\n%s.EndC\n", c.refDes.c_str(), c.blockName.c_str(),
                 body.c_str());
}

}  // namespace

void WriteLinkageDescription(FILE* out, FILE* log, ComponentNodes* nodes) {
    if (!g_options.g_bTranslateLinkages && !g_options.g_bWriteLinkages) return;
    std::fprintf(out, "* Linkage description line\n");
    if (log) std::fprintf(log, "\n\nComponent Linkage Info :\n\n");
    int unlinked = 0;
    if (nodes && nodes->components) {
        ModelAssignment* models = nodes->models;
        nodes->components->ForEach([&](const std::string&, ComponentRec& c) {
            TakePassiveForm(c);
            if (!c.isActive) {
                if (!g_options.g_bWriteLinkages || c.pins.empty()) return;
                std::string text;
                if (PassiveConnect(*nodes, c, text) < 2) {
                    ++unlinked;
                    if (log)
                        std::fprintf(log, "%d] Component : %s is Not Linked\n", unlinked,
                                     c.refDes.c_str());
                } else {
                    std::fputs(text.c_str(), out);
                }
            } else if (g_options.g_bTranslateLinkages && models &&
                       models->ibisParts.Contains(c.partNumber) && c.ibisError == 0 &&
                       !c.pins.empty()) {
                ActiveConnect(out, *nodes, c);
            }
        });
    }
    if (log) std::fprintf(log, "\nTotal No Of Components Not Linked = %d\n", unlinked);
    std::fprintf(out, "\n");
}
