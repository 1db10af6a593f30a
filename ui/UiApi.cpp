#include "ui/UiApi.h"

#include "ui/QtApi.h"

namespace {

CQtApi g_qtApi;
IUiApi* g_pUiApi = nullptr;

}  // namespace

IUiApi& UiApi() {
    return g_pUiApi ? *g_pUiApi : g_qtApi;
}

void SetUiApi(IUiApi* api) {
    g_pUiApi = api;
}
