// Colour tables from anybody: what is read gives a scale, and the scale's own table can be read.
// The first byte chooses the format.

#include <cmath>
#include <cstdlib>
#include <memory>
#include <string>

#include "host/core/color_tables.h"
#include "host/core/failure.h"

using namespace zu::host;

namespace {

void require(bool kept) {
  if (!kept) std::abort();
}

void try_text(std::string_view text, table_format format) {
  color_table table;
  try {
    table = parse_color_table("table", text, format);
  } catch (const failure&) {
    return;
  }
  require(table.parts.empty() != table.values.empty());
  std::unique_ptr<Tzu_stl_mngr, void (*)(Tzu_stl_mngr*)> manager(
      zu_stl_mngr_create("clr_mngr_style"), &zu_stl_mngr_destroy);
  apply_color_table(table, {0, 100}, manager.get());
  Tzu_rng_scale* scale = zu_stl_mngr_get_rng_scale_ptr(manager.get());
  if (table.parts.empty()) return;
  require(zu_rng_scale_get_size(scale) >= table.parts.size());
  for (auto to : {table_format::gmt, table_format::qgis, table_format::gdal})
    require(!text_of_scale(scale, to).empty());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  constexpr table_format formats[] = {table_format::gmt, table_format::qgis, table_format::gdal};
  try_text({reinterpret_cast<const char*>(data) + 1, size - 1}, formats[data[0] % 3]);
  return 0;
}
