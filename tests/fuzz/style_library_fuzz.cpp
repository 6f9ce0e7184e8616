// Libraries of styles from anybody: what is read is written, and read again it is the same; merged
// with itself it does not grow.

#include <cstdint>
#include <cstdlib>

#include "platform/zuk_basic/owned.h"
#include "tests/fuzz/memory_folder.h"
#include "zu/platform/zuk_xml_data.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  static const memory_folder folder("style_library_fuzz");
  zu::platform::owned<zu_style_lib_destroy> first(zu_style_lib_create()),
      second(zu_style_lib_create());
  folder.write("given._ls", data, size);
  if (!zu_xml_data_load_style_lib_file(folder.at("given._ls").c_str(), first.get())) return 0;
  if (!zu_xml_data_save_style_lib_file(folder.at("first._ls").c_str(), first.get()) ||
      !zu_xml_data_load_style_lib_file(folder.at("first._ls").c_str(), second.get()) ||
      !zu_xml_data_save_style_lib_file(folder.at("second._ls").c_str(), second.get()) ||
      folder.content("first._ls") != folder.content("second._ls"))
    std::abort();
  std::uint64_t points = zu_style_list_get_size(zu_style_lib_get_pnt_list_ptr(first.get()));
  zu_style_lib_merge(first.get(), second.get());
  if (zu_style_list_get_size(zu_style_lib_get_pnt_list_ptr(first.get())) != points) std::abort();
  return 0;
}
