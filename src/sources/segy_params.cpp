#include "src/sources/segy_params.h"

#include <charconv>

#include "src/bundle/dialogs.h"
#include "src/bundle/modal_dialog.h"
#include "src/bundle/owned.h"
#include "src/bundle/texts.h"
#include "src/data/generic_datasource.h"
#include "zu/platform/zuk_msgs.h"

namespace zu {
namespace {

constexpr std::int32_t text_no_params = 356, text_from_header = 358;

/// Items of the drop-down.
struct coord_source_item {
  std::int32_t text, value;
};
constexpr coord_source_item items[] = {{352, -1}, {353, 0}, {354, 1}, {355, 2}};

/// Units that have a text, by coefficient type.
struct known_unit {
  std::int32_t text;
  double coefficient;
};
constexpr known_unit known_units[] = {{10107, 1.0}, {10105, 0.1}, {10103, 0.01}};

/// A decimal number and nothing else but blanks about it.
bool parse(const std::wstring& text, double& out) {
  std::string narrow;
  for (wchar_t c : text) narrow += c > 0 && c < 128 ? static_cast<char>(c) : '?';
  std::size_t first = narrow.find_first_not_of(" \t"), last = narrow.find_last_not_of(" \t");
  if (first == std::string::npos) return false;
  auto [end, error] = std::from_chars(narrow.data() + first, narrow.data() + last + 1, out);
  return error == std::errc() && end == narrow.data() + last + 1;
}

/// Coefficient type of the units, and their coefficient; false if they are no number.
bool read_units(const std::wstring& units, std::int32_t& type, double& coefficient) {
  type = 0;
  for (const known_unit& unit : known_units) {
    coefficient = unit.coefficient;
    if (units == load_text(unit.text)) return true;
    ++type;
  }
  coefficient = 1.0;
  if (units == load_text(text_from_header)) return true;
  type = zu_segy_coeff_number;
  return parse(units, coefficient);
}

}  // namespace

std::vector<std::wstring> segy_params_model::coord_sources() {
  std::vector<std::wstring> texts;
  for (const coord_source_item& item : items) texts.push_back(load_text(item.text));
  return texts;
}

std::vector<std::wstring> segy_params_model::unit_suggestions() {
  return {load_text(text_from_header)};
}

void segy_params_model::fill(const Tzu_segy_prms* record) {
  coord_source = -1;
  for (int i = 0; i < static_cast<int>(std::size(items)); ++i)
    if (items[i].value == zu_segy_prms_get_coord_type(record)) coord_source = i;
  std::int32_t type = zu_segy_prms_get_coord_coeff_type(record);
  double coefficient = zu_segy_prms_get_coord_coeff(record);
  std::wstring text;
  if (type >= 0 && type < static_cast<std::int32_t>(std::size(known_units))) {
    text = load_text(known_units[type].text);
    coefficient = known_units[type].coefficient;
  } else if (type == zu_segy_coeff_header) {
    text = load_text(text_from_header);
  }
  units = text.empty() ? data::number_text(coefficient) : text;
  simplify = zu_segy_prms_get_pln_simplify_flag(record);
}

bool segy_params_model::take(Tzu_segy_prms* record) const {
  std::int32_t type = 0;
  double coefficient = 1.0;
  if (!read_units(units, type, coefficient)) return false;
  owned<zu_segy_estim_opts_destroy> options(zu_segy_estim_opts_create());
  zu_segy_estim_opts_set_allow_duplicate_points(options.get(), true);
  zu_segy_estim_opts_set_crd_coeff_type(options.get(), type);
  zu_segy_estim_opts_set_crd_coeff(options.get(), coefficient);
  bool selected = coord_source >= 0 && coord_source < static_cast<int>(std::size(items));
  std::int32_t value = selected ? items[coord_source].value : 0;
  if (value == zu_segy_coord_any) {
    const std::int32_t types[] = {0, 1, 2};
    zu_segy_estim_opts_set_crd_types(options.get(), types, std::size(types));
  } else {
    zu_segy_estim_opts_set_crd_type(options.get(), value);
  }
  bool found = zu_segy_file_estimate2d_params(path_.c_str(), options.get(), record, nullptr);
  zu_segy_prms_set_pln_simplify_flag(record, simplify);
  return found;
}

bool choose_segy_params(const wchar_t* path, Tzu_segy_prms* record) {
  using opened = owned<zu_segy_file_close>;
  if (path == nullptr || record == nullptr) return false;
  if (zu_segy_file_has_params(path))
    zu_segy_file_get_parameters(opened(zu_segy_file_open(path, 1)).get(), record);
  segy_params_model model(path);
  model.fill(record);
  segy_params_docker docker(model);
  if (util::detail::modal_dialog_service_factory<dialog::segy_params>::run(handle_of(docker)) == 0)
    return false;
  if (!model.take(record)) {
    zu_show_wmessage(load_text(text_no_params).c_str());
    return false;
  }
  zu_segy_file_set_parameters(opened(zu_segy_file_open(path, 1)).get(), record);
  return true;
}

}  // namespace zu
