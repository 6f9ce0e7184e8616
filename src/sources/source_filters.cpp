#include "src/sources/source_filters.h"

#include "src/bundle/owned.h"
#include "src/bundle/strings.h"
#include "src/bundle/texts.h"
#include "src/data/grid_datasource.h"
#include "src/layer/grid_layer2d.h"
#include "src/sources/file_names.h"
#include "src/sources/segy_layer_setup.h"
#include "src/sources/segy_params.h"
#include "src/style/scale_file.h"
#include "zu/platform/zuk_file_tos4.h"
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

constexpr std::int32_t wrong_type_text = 214;

/// What decides on the layer of a file; of a file that does not open it is a type of no layer.
struct tos4_grid {
  std::int32_t type = zu_tos4_not_placed;
  std::wstring first_property;

  explicit tos4_grid(const wchar_t* path) {
    owned<zu_tos4_file_close> file(zu_tos4_file_open_w(path, 1));
    if (!file) return;
    type = zu_tos4_get_grid_type(file.get());
    if (zu_tos4_get_prop_count(file.get()) > 0)
      first_property =
          text_of([&](Tzu_string_adp* a) { zu_tos4_get_prop_name_w(file.get(), 0, a); });
  }
  /// Null for a type that has none.
  const char* layer_type() const {
    switch (type) {
      case zu_tos4_profile:
        return "tos_grid_lr1d";
      case zu_tos4_plane:
        return "tos_grid_lr2d";
      case zu_tos4_two_columns:
        return "tos_2crd_lr2d";
      case zu_tos4_volume:
        return "tos_slice_lr2d";
      default:
        return nullptr;
    }
  }
  bool is_plane_or_volume() const { return type == zu_tos4_plane || type == zu_tos4_volume; }
};

/// Colours the layer by a range scale of a property: the one beside the source, or a new one.
void show_property(Izu_layer* layer, const std::wstring& name) {
  Tzu_stl_mngr* manager = zu_lr_get_style_mngr_ptr(layer);
  if (manager == nullptr) return;
  data::open_reference source;
  source.name = text_of([&](Tzu_string_adp* a) { zu_lr2d_get_wsource(layer, a); });
  source.word = zu_lr2d_get_data_ptr(layer);
  source.opener = &zu_datasource_open;
  zu_stl_mngr_set_mode(manager, zu_style_range);
  zu_stl_mngr_set_rng_prop_name_w(manager, name.c_str());
  style::set_up_range_scale(manager, source, name);
}

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

bool tos4_grid_source_filter_adder::accepts(const wchar_t* path) { return is_tos4_file(path); }
void tos4_grid_source_filter_adder::add(Tzu_lr_builder* builder, const wchar_t* path) {
  tos4_grid grid(path);
  const char* type = grid.layer_type();
  if (type == nullptr) {
    zu_lr_builder_add_error(builder, path, load_text(wrong_type_text).c_str());
    return;
  }
  Izu_layer* layer = add_layer(builder, path, type);
  if (layer != nullptr && grid.is_plane_or_volume()) show_property(layer, grid.first_property);
}

bool tos4_coord_source_filter_adder::accepts(const wchar_t* path) { return is_tos4_file(path); }
void tos4_coord_source_filter_adder::add(Tzu_lr_builder* builder, const wchar_t* path) {
  add_layer(builder, path, "tos_2crd_lr2d");
}

bool segy_source_filter_adder::accepts(const wchar_t* path) {
  return mask_holds(extension_of(path));
}
void segy_source_filter_adder::add(Tzu_lr_builder* builder, const wchar_t* path) {
  owned<zu_segy_prms_destroy> record(zu_segy_prms_create());
  if (!choose_segy_params(path, record.get())) return;
  Izu_layer* layer = add_layer(builder, path, "grid_lr2d");
  if (layer == nullptr) return;
  zu_lr_set_lr_subtype(layer, L"segy_sub_lr2d");
  // A section has no map projection.
  if (grid_layer2d* object = grid_layer_of_entity(layer)) object->clear_has_proj();
  set_up_segy_layer(layer, record.get());
}

}  // namespace zu
