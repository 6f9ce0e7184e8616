// Scale files from anybody: what is read under a key is written, and read again it is the same.

#include <cstdint>
#include <cstdlib>
#include <string>

#include "platform/zuk_basic/owned.h"
#include "tests/fuzz/memory_folder.h"
#include "zu/platform/zuk_xml_data.h"

namespace {

using manager_ptr = zu::platform::owned<zu_stl_mngr_destroy>;

using load_function = bool (*)(Tzu_xml_save_style*, const wchar_t*, Tzu_stl_mngr*);
using save_function = bool (*)(Tzu_xml_save_style*, const wchar_t*, const Tzu_stl_mngr*);
struct scale_kind {
  const char* extension;
  load_function load;
  save_function save;
};
constexpr scale_kind kinds[] = {
    {"._vl", &zu_xml_save_style_load_val_scale, &zu_xml_save_style_save_val_scale},
    {"._rl", &zu_xml_save_style_load_val_scale, &zu_xml_save_style_save_val_scale},
    {"._rg", &zu_xml_save_style_load_rng_scale, &zu_xml_save_style_save_rng_scale}};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  static const memory_folder folder("scale_file_fuzz");
  for (const scale_kind& kind : kinds) {
    std::string given = std::string("given") + kind.extension;
    std::string first = std::string("first") + kind.extension;
    std::string second = std::string("second") + kind.extension;
    folder.write(given, data, size);
    for (const char* type :
         {"clr_mngr_style", "pnt_mngr_style", "pln_mngr_style", "pgn_mngr_style"}) {
      manager_ptr read(zu_stl_mngr_create(type)), again(zu_stl_mngr_create(type));
      if (!kind.load(nullptr, folder.at(given).c_str(), read.get())) continue;
      if (!kind.save(nullptr, folder.at(first).c_str(), read.get()) ||
          !kind.load(nullptr, folder.at(first).c_str(), again.get()) ||
          !kind.save(nullptr, folder.at(second).c_str(), again.get()) ||
          folder.content(first) != folder.content(second))
        std::abort();
    }
  }
  return 0;
}
