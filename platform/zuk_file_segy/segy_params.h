#pragma once
// Where the traces of a section lie, and where that is kept.

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/zuk_file_segy/section_file.h"
#include "zu/platform/zuk_file_segy.h"

struct Tzu_segy_prms {
  std::int32_t coord_type = zu_segy_coord_any;
  std::int32_t coeff_type = zu_segy_coeff_header;
  double coeff = 1;
  bool simplify = false;
};

struct Tzu_segy_estim_opts {
  bool allow_duplicates = true;
  std::int32_t coeff_type = zu_segy_coeff_header;
  double coeff = 1;
  std::vector<std::int32_t> types = {zu_segy_coord_receiver, zu_segy_coord_source,
                                     zu_segy_coord_cdp};
};

namespace zu::platform {

/// The side file of parameters: UTF-8 lines "name=value" with the names coord_type,
/// coord_coeff_type, coord_coeff and pln_simplify; other lines are passed over. Nothing if one of
/// them is missing or makes no sense.
std::optional<Tzu_segy_prms> read_segy_params(const std::string& text);
std::string segy_params_text(const Tzu_segy_prms& params);

/// Gets shares of 1; false stops the work.
using share_taker = std::function<bool(double)>;

/// Points of the traces; empty if stopped. A trace whose words are both 0 has none.
std::vector<Tzu_vtx_d2> segy_points(const section_file& file, std::int32_t coord_type,
                                    std::int32_t coeff_type, double coeff,
                                    const share_taker& progress);
/// As `zu_segy_file_estimate2d_params`.
bool estimate_segy_params(const section_file& file, const Tzu_segy_estim_opts& options,
                          Tzu_segy_prms& params, const share_taker& progress);

}  // namespace zu::platform
