#include "src/sources/segy_params.h"

#include <charconv>

#include "src/bundle/owned.h"
#include "src/bundle/texts.h"
#include "src/data/generic_datasource.h"
#include "src/toolkit/dialog.h"
#include "zu/platform/zuk_msgs.h"

namespace zu {
namespace {

constexpr std::int32_t text_no_params = 356, text_from_header = 358;
constexpr std::uint32_t path_width = 48;

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

namespace dialog {

segy_params::segy_params(std::wstring path) {
  file_.assign(std::move(path));
  file_.set_width(path_width);
  coord_source_.add(352, 0, zu_segy_coord_any).add(353, 0, 0).add(354, 0, 1).add(355, 0, 2);
  units_.suggest(text_from_header);
  for (const known_unit& unit : known_units) units_.suggest(unit.text);
  simplify_.assign(false);
  fields_.place(file_).place(coord_source_).place(units_).skip().place(simplify_);
  fields_.set_column_stretch(1);
  root_.place(fields_).skip().place(buttons_).set_row_stretch(1);
}

void segy_params::fill(const Tzu_segy_prms* record) {
  coord_source_.assign_value(zu_segy_prms_get_coord_type(record));
  std::int32_t type = zu_segy_prms_get_coord_coeff_type(record);
  double coefficient = zu_segy_prms_get_coord_coeff(record);
  std::wstring text;
  if (type >= 0 && type < static_cast<std::int32_t>(std::size(known_units))) {
    text = load_text(known_units[type].text);
    coefficient = known_units[type].coefficient;
  } else if (type == zu_segy_coeff_header) {
    text = load_text(text_from_header);
  }
  units_.assign(text.empty() ? data::number_text(coefficient) : text);
  simplify_.assign(zu_segy_prms_get_pln_simplify_flag(record));
}

bool segy_params::take(Tzu_segy_prms* record) {
  std::int32_t type = 0;
  double coefficient = 1.0;
  if (!read_units(units_.value(), type, coefficient)) return false;
  owned<zu_segy_estim_opts_destroy> options(zu_segy_estim_opts_create());
  zu_segy_estim_opts_set_allow_duplicate_points(options.get(), true);
  zu_segy_estim_opts_set_crd_coeff_type(options.get(), type);
  zu_segy_estim_opts_set_crd_coeff(options.get(), coefficient);
  if (coord_source_.value() == zu_segy_coord_any) {
    const std::int32_t types[] = {0, 1, 2};
    zu_segy_estim_opts_set_crd_types(options.get(), types, std::size(types));
  } else {
    zu_segy_estim_opts_set_crd_type(options.get(), coord_source_.value());
  }
  const std::wstring& path = file_.value();
  bool found = zu_segy_file_estimate2d_params(path.c_str(), options.get(), record, nullptr);
  zu_segy_prms_set_pln_simplify_flag(record, simplify_.is_checked());
  return found;
}

}  // namespace dialog

bool choose_segy_params(const wchar_t* path, Tzu_segy_prms* record) {
  using opened = owned<zu_segy_file_close>;
  if (path == nullptr || record == nullptr) return false;
  if (zu_segy_file_has_params(path))
    zu_segy_file_get_parameters(opened(zu_segy_file_open(path, 1)).get(), record);
  dialog::segy_params dialog(path);
  dialog.fill(record);
  if (!toolkit::run_dialog(dialog)) return false;
  if (!dialog.take(record)) {
    zu_show_wmessage(load_text(text_no_params).c_str());
    return false;
  }
  zu_segy_file_set_parameters(opened(zu_segy_file_open(path, 1)).get(), record);
  return true;
}

}  // namespace zu
