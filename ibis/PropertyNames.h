#pragma once
// The component properties the gate and placement passes look for. The design may call a
// property by a name of its own; the alias table maps the fixed name to it.
#include <string>

constexpr char kValueProperty[] = "ICX_VALUE";
constexpr char kRefDesProperty[] = "ICX_REF_DES";
constexpr char kPartNumberProperty[] = "ICX_PART_NUMBER";
constexpr char kPinNumberProperty[] = "ICX_PIN_NUMBER";
constexpr char kNoAlias[] = "NULL_VALUE";

// "ICX_VALUE", or the user's value field name when that is set and differs from it.
std::string ValuePropertyName();
// The design's own name for a fixed property name, or "NULL_VALUE" when it has none.
std::string PropertyAlias(const std::string& key);
