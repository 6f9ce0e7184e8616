#pragma once
// The file in which a scale of a field lies beside the data.

#include <string>

#include "src/data/generic_datasource.h"
#include "zu/platform/zuk_styles.h"

namespace zu::style {

inline constexpr wchar_t value_scale_extension[] = L"._vl";
inline constexpr wchar_t range_scale_extension[] = L"._rg";

/// "/data/a.z._rg" for the field "z" of "/data/a.grd". Empty for a source in memory, whose name
/// begins with "*", and without source or field. What would lead out of the folder in a field's
/// name is replaced by "_".
std::wstring scale_file_path(const std::wstring& source, const std::wstring& field,
                             const wchar_t* extension);

/// Reads a file of a scale by `read`, or, where that cannot be had, the file of the same name in
/// the user's own place. False if there is neither, or the last one cannot be read. `key` as in
/// `zu_xml_data_load_rng_scale_w`.
bool load_scale_file(const std::wstring& path, Tzu_stl_mngr* manager, const char* key,
                     bool (*read)(const std::wstring& path, Tzu_stl_mngr*, const char* key));

/// The range scale of a field for a manager: from the file beside the data, or, where that cannot
/// be read, ten equal classes, which are then written there. A folder of data that cannot be
/// written has its place in the user's own. False if there is neither file nor field; the scale is
/// then as it was. The manager's mode is the caller's; its field becomes this one.
bool set_up_range_scale(Tzu_stl_mngr* manager, const data::open_reference& source,
                        const std::wstring& field);

}  // namespace zu::style
