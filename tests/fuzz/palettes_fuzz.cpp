// Palette files from anybody: what is read is written, and read again it is the same; what is
// refused leaves the list as it was.

#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>

#include "platform/zuk_basic/owned.h"
#include "platform/zuk_basic/utf8.h"
#include "zu/platform/zuk_xml_data.h"

using zu::platform::from_utf8;
using zu::platform::owned;

namespace {

using list_ptr = owned<zu_clr_palettes_destroy>;

void require(bool kept) {
  if (!kept) std::abort();
}

struct file {
  std::string path = "/tmp/palettes_fuzz" + std::to_string(getpid()) + ".clrs";
  ~file() { unlink(path.c_str()); }
  std::wstring wide() const { return from_utf8(path); }
  std::string text() const {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  static const file given, written;
  std::ofstream(given.path, std::ios::binary)
      .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  owned<zu_xml_save_2d_destroy> xml(zu_xml_save_2d_create());
  list_ptr list(zu_clr_palettes_create()), again(zu_clr_palettes_create());
  for (int i = 0; i < 3; ++i) zu_clr_palettes_add(list.get());
  if (!zu_xml_data_load_clr_palettes(xml.get(), given.wide().c_str(), list.get())) {
    require(zu_clr_palettes_get_size(list.get()) == 3);
    return 0;
  }
  require(zu_xml_data_save_clr_palettes(xml.get(), written.wide().c_str(), list.get()));
  std::string once = written.text();
  require(zu_xml_data_load_clr_palettes(xml.get(), written.wide().c_str(), again.get()));
  require(zu_xml_data_save_clr_palettes(xml.get(), written.wide().c_str(), again.get()));
  require(written.text() == once);
  return 0;
}
