#include "src/style/scale_file.h"

#include "src/bundle/strings.h"
#include "src/style/classes/builders.h"
#include "src/style/classes/scale_dialogs.h"
#include "src/style/scale_traits.h"
#include "zu/platform/zuk_os.h"

namespace zu::style {
namespace {

std::wstring place_of_user(const std::wstring& path, bool make) {
  return text_of([&](Tzu_string_adp* a) { zu_os_get_user_place_w(path.c_str(), make, a); });
}

bool save_range_scale(const std::wstring& path, const Tzu_stl_mngr* manager) {
  return range_scale_traits::save(path, manager, zu_stl_mngr_get_style_type(manager));
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

bool load_scale_file(const std::wstring& path, Tzu_stl_mngr* manager, const char* key,
                     bool (*read)(const std::wstring& path, Tzu_stl_mngr*, const char* key)) {
  if (path.empty()) return false;
  auto loaded = [&](const std::wstring& place) {
    return zu_os_file_exists(place.c_str()) && read(place, manager, key);
  };
  return loaded(path) || loaded(place_of_user(path, false));
}

bool set_up_range_scale(Tzu_stl_mngr* manager, const data::open_reference& source,
                        const std::wstring& field) {
  std::wstring path = scale_file_path(source.name, field, range_scale_extension);
  if (load_scale_file(path, manager, zu_stl_mngr_get_style_type(manager),
                      &range_scale_traits::load)) {
    zu_stl_mngr_set_rng_prop_name_w(manager, field.c_str());  // the file's own may be another
    return true;
  }
  Tzu_rng_scale* scale = zu_stl_mngr_get_rng_scale_ptr(manager);
  if (!fill_from_data(scale, source, field)) return false;
  spread_colors(scale, default_colors);
  if (!path.empty() && !save_range_scale(path, manager))
    save_range_scale(place_of_user(path, true), manager);
  return true;
}

}  // namespace zu::style
