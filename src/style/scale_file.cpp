#include "src/style/scale_file.h"

#include "src/bundle/owned.h"
#include "src/bundle/strings.h"
#include "src/style/classes/builders.h"
#include "src/style/classes/scale_dialogs.h"
#include "zu/platform/zuk_os.h"
#include "zu/platform/zuk_xml_data.h"

namespace zu::style {
namespace {

constexpr std::int32_t first_colors = 5;  // from blue through white to red

std::wstring place_of_user(const std::wstring& path, bool make) {
  return text_of([&](Tzu_string_adp* a) { zu_os_get_user_place_w(path.c_str(), make, a); });
}

bool load_range_scale(const std::wstring& path, Tzu_stl_mngr* manager) {
  if (!zu_os_file_exists(path.c_str())) return false;
  owned<zu_xml_save_2d_destroy> xml(zu_xml_save_2d_create());
  return zu_xml_data_load_rng_scale_w(xml.get(), path.c_str(), manager,
                                      zu_stl_mngr_get_style_type(manager));
}

bool save_range_scale(const std::wstring& path, const Tzu_stl_mngr* manager) {
  owned<zu_xml_save_2d_destroy> xml(zu_xml_save_2d_create());
  return zu_xml_data_save_rng_scale_w(xml.get(), path.c_str(), manager,
                                      zu_stl_mngr_get_style_type(manager));
}

}  // namespace

std::wstring scale_file_path(const std::wstring& source, const std::wstring& field,
                             const wchar_t* extension) {
  if (source.empty() || source.front() == L'*' || field.empty()) return {};
  std::size_t separator = source.find_last_of(L"\\/");
  std::size_t name = separator == std::wstring::npos ? 0 : separator + 1;
  std::size_t point = source.rfind(L'.');
  // A point at the head of a name begins no extension.
  bool has_extension = point != std::wstring::npos && point > name;
  std::wstring part = field;
  for (wchar_t& letter : part)
    if (letter == L'\\' || letter == L'/') letter = L'_';
  return source.substr(0, has_extension ? point : source.size()) + L"." + part + extension;
}

bool set_up_range_scale(Tzu_stl_mngr* manager, const data::open_reference& source,
                        const std::wstring& field) {
  std::wstring path = scale_file_path(source.name, field, range_scale_extension);
  bool has_place = !path.empty();
  if (has_place &&
      (load_range_scale(path, manager) || load_range_scale(place_of_user(path, false), manager))) {
    zu_stl_mngr_set_rng_prop_name_w(manager, field.c_str());  // the file's own may be another
    return true;
  }
  Tzu_rng_scale* scale = zu_stl_mngr_get_rng_scale_ptr(manager);
  if (!fill_from_data(scale, source, field)) return false;
  spread_colors(scale, first_colors);
  if (has_place && !save_range_scale(path, manager))
    save_range_scale(place_of_user(path, true), manager);
  return true;
}

}  // namespace zu::style
