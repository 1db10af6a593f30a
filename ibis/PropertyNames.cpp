#include "ibis/PropertyNames.h"

#include "model/LayoutModel.h"
#include "model/TranslationOptions.h"
#include "ndd/NddTokens.h"

std::string ValuePropertyName() {
    const std::string& field = g_options.g_strValueFieldName;
    if (!field.empty() && !EqualsNoCase(field, kValueProperty)) return field;
    return kValueProperty;
}

std::string PropertyAlias(const std::string& key) {
    const std::string* alias = g_model.g_mapAliasProps.Find(key);
    return alias ? *alias : std::string(kNoAlias);
}
