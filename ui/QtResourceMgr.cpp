#include "ui/QtResourceMgr.h"

namespace {

IQtResourceMgr* g_pResourceMgr = nullptr;

}  // namespace

void RegisterResourceMgr(IQtResourceMgr* manager) {
    g_pResourceMgr = manager;
}

IQtResourceMgr* RegisteredResourceMgr() {
    return g_pResourceMgr;
}
