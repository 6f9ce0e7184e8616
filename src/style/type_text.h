#pragma once
// Names of types as texts.

#include <string>
#include <typeinfo>

namespace zu::style {

/// The name of a type as it stands in the code, with all namespaces.
std::wstring type_text(const std::type_info& type);

}  // namespace zu::style
