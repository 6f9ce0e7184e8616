// Texts of styles from the clipboard: what is read is written, and read again it is the same.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/zuk_basic/owned.h"
#include "platform/zuk_basic/text_of.h"
#include "zu/platform/zuk_xml_data.h"

namespace {

using zu::platform::owned;
using zu::platform::text_of;

template <class load, class save, class style>
void check(const std::wstring& text, load l, save s, const style& first, const style& second) {
  if (!l(nullptr, text.c_str(), first.get())) return;
  std::wstring written = text_of([&](Tzu_string_adp* a) { s(nullptr, first.get(), a); });
  if (!l(nullptr, written.c_str(), second.get())) std::abort();
  if (text_of([&](Tzu_string_adp* a) { s(nullptr, second.get(), a); }) != written) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  std::wstring text =
      zu::platform::from_utf8(std::string_view(reinterpret_cast<const char*>(data), size));
  owned<zu_pnt_style_destroy> point(zu_pnt_style_create()), points(zu_pnt_style_create());
  owned<zu_pln_style_destroy> line(zu_pln_style_create()), lines(zu_pln_style_create());
  owned<zu_pgn_style_destroy> polygon(zu_pgn_style_create()), polygons(zu_pgn_style_create());
  check(text, &zu_xml_save_style_load_style_pnt_str, &zu_xml_save_style_save_style_pnt_str, point,
        points);
  check(text, &zu_xml_save_style_load_style_pln_str, &zu_xml_save_style_save_style_pln_str, line,
        lines);
  check(text, &zu_xml_save_style_load_style_pgn_str, &zu_xml_save_style_save_style_pgn_str, polygon,
        polygons);
  return 0;
}
