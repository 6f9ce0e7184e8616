#pragma once
// The file in which a scale of a field lies beside the data.

#include <string>

namespace zu::style {

inline constexpr wchar_t value_scale_extension[] = L"._vl";
inline constexpr wchar_t range_scale_extension[] = L"._rg";

/// "/data/a.z._rg" for the field "z" of "/data/a.grd". Empty for a source in memory, whose name
/// begins with "*", and without source or field. What would lead out of the folder in a field's
/// name is replaced by "_".
std::wstring scale_file_path(const std::wstring& source, const std::wstring& field,
                             const wchar_t* extension);

}  // namespace zu::style
