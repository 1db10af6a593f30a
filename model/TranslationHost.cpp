#include "model/TranslationHost.h"

#include "model/BatchHost.h"

namespace {

BatchHost g_batchHost;
TranslationHost* g_pHost = nullptr;

}  // namespace

TranslationHost& CurrentHost() {
    return g_pHost ? *g_pHost : g_batchHost;
}

HostScope::HostScope(TranslationHost& host) : previous_(g_pHost) {
    g_pHost = &host;
}

HostScope::~HostScope() {
    g_pHost = previous_;
}
