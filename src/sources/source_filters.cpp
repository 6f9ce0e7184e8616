#include "src/sources/source_filters.h"

#include "src/bundle/texts.h"
#include "src/data/grid_datasource.h"
#include "src/sources/file_names.h"
#include "zu/platform/zuk_lr2d.h"

namespace zu {
namespace {

bool opens_as_a_grid(const wchar_t* path) {
  data::open_reference reference;
  reference.name = path;
  reference.opener = &zu_datasource_open;
  data::grid_datasource source;
  return source.open(reference, data::open_read_only);
}

bool is_tos4_file(const wchar_t* path) { return extension_of(path) == L".pgrid"; }

}  // namespace

void source_filter::get_description(string_visitor visitor) { get_text(description_, visitor); }
void source_filter::get_mask(string_visitor visitor) { get_text(mask_, visitor); }

bool source_filter::mask_holds(const std::wstring& extension) const {
  return !extension.empty() && load_text(mask_).find(extension) != std::wstring::npos;
}

Izu_layer* source_filter::add_layer(Tzu_lr_builder* builder, const wchar_t* path,
                                    const char* type) const {
  Izu_layer* layer = zu_lr_builder_add_layer(builder, path, type);
  if (layer == nullptr)
    zu_lr_builder_add_error(builder, path, load_text(failure_).c_str());
  else
    zu_lr_set_wcaption(layer, file_name_of(path).c_str());
  return layer;
}

bool gdal_source_filter_adder::accepts(const wchar_t* path) {
  std::wstring extension = extension_of(path);
  return extension.empty() ? opens_as_a_grid(path) : mask_holds(extension);
}
void gdal_source_filter_adder::add(Tzu_lr_builder* builder, const wchar_t* path) {
  add_layer(builder, path, "grid_lr2d");
}

bool rastr_source_filter_adder::accepts(const wchar_t* path) {
  return mask_holds(extension_of(path));
}
void rastr_source_filter_adder::add(Tzu_lr_builder* builder, const wchar_t* path) {
  add_layer(builder, path, "rtr_lr2d");
}

bool tos4_coord_source_filter_adder::accepts(const wchar_t* path) { return is_tos4_file(path); }
void tos4_coord_source_filter_adder::add(Tzu_lr_builder* builder, const wchar_t* path) {
  add_layer(builder, path, "tos_2crd_lr2d");
}

}  // namespace zu
