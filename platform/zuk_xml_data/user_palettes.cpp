#include "platform/zuk_xml_data/user_palettes.h"

#include <filesystem>

#include "platform/zuk_basic/owned.h"
#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_xml_data/nodes.h"
#include "zu/platform/zuk_ini_data.h"
#include "zu/platform/zuk_xml_data.h"

namespace zu::platform {
namespace {

/// Empty if there is no folder for it.
std::wstring user_file() {
  owned<zu_ini_data_destroy> data(zu_ini_data_create(L"user_palettes"));
  std::wstring folder =
      text_of([&](Tzu_string_adp* a) { zu_ini_data_get_storage_path(data.get(), a); });
  return folder.empty() ? folder : folder + L"/user_palettes.clrs";
}

}  // namespace

void read_user_palettes(const std::wstring& path, Tzu_clr_palettes* list) {
  std::error_code failed;
  if (path.empty() || !std::filesystem::exists(to_utf8(path), failed)) return;
  owned<zu_xml_save_2d_destroy> xml(zu_xml_save_2d_create());
  if (zu_xml_data_load_clr_palettes(xml.get(), path.c_str(), list)) return;
  std::wstring reason =
      text_of([&](Tzu_string_adp* a) { zu_xml_save_2d_get_reason_w(xml.get(), a); });
  zu_problems_add(path.c_str(), zu_problem_open, reason.c_str());
  std::filesystem::rename(to_utf8(path), to_utf8(path + L".broken"), failed);
}

}  // namespace zu::platform

Tzu_clr_palettes* zu_get_user_palettes() {
  using namespace zu::platform;
  static const owned<zu_clr_palettes_destroy> list = [] {
    owned<zu_clr_palettes_destroy> made(zu_clr_palettes_create());
    read_user_palettes(user_file(), made.get());
    return made;
  }();
  return list.get();
}
