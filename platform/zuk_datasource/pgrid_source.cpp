#include "platform/zuk_datasource/pgrid_source.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_datasource/band_statistics.h"
#include "platform/zuk_datasource/gdal_block.h"
#include "platform/zuk_datasource/histogram_counts.h"
#include "zu/platform/zuk_basic.h"
#include "zu/platform/zuk_file_tos4.h"

namespace zu::platform {
namespace {

void tell(string_visitor visitor, const std::string& text) {
  call<&string_visitor_impl::visit>(visitor, from_utf8(text).c_str());
}

// Quarter turns without what is left of a rounded pi.
void turn_of(double degrees, double& cosine, double& sine) {
  double turn = std::fmod(degrees, 360);
  if (turn < 0) turn += 360;
  double quarters = turn / 90;
  if (quarters == std::floor(quarters)) {
    static constexpr double exact[] = {1, 0, -1, 0, 1};
    auto quarter = static_cast<std::size_t>(quarters) % 4;
    cosine = exact[quarter], sine = exact[(quarter + 3) % 4];
    return;
  }
  double radians = turn * std::numbers::pi / 180;
  cosine = std::cos(radians), sine = std::sin(radians);
}

}  // namespace

std::array<double, 9> matrix_of(const grid_head& head) {
  double c = 1, s = 0;
  turn_of(head.azimuth, c, s);
  return {head.spacing[0] * c,
          -head.spacing[1] * s,
          head.origin[0],
          head.spacing[0] * s,
          head.spacing[1] * c,
          head.origin[1],
          0,
          0,
          1};
}

bool place_of(const std::array<double, 9>& m, grid_head& head) {
  double across = std::hypot(m[0], m[3]), up = std::hypot(m[1], m[4]);
  if (!(across > 0) || !(up > 0) || std::fabs(m[0] * m[1] + m[3] * m[4]) > 1e-9 * across * up)
    return false;
  bool mirrored = m[0] * m[4] - m[1] * m[3] < 0;
  head.origin[0] = m[2], head.origin[1] = m[5];
  head.spacing[0] = across, head.spacing[1] = mirrored ? -up : up;
  head.azimuth = std::atan2(m[3], m[0]) * 180 / std::numbers::pi;
  return true;
}

pgrid_source::pgrid_source(pgrid_ptr file, std::wstring name)
    : file_(std::move(file)), name_(std::move(name)) {}

const grid_property* pgrid_source::property(std::int64_t field) {
  return field >= 0 && field < field_count() ? &file_->properties()[static_cast<std::size_t>(field)]
                                             : nullptr;
}

// --- Fields

bool pgrid_source::extent(double* box, bool) {
  std::array<double, 9> m = matrix_of(file_->head());
  const auto& size = file_->head().size;
  for (int corner = 0; corner < 4; ++corner) {
    double i = (corner & 1) == 0 ? -0.5 : static_cast<double>(size[0]) - 0.5;
    double j = (corner & 2) == 0 ? -0.5 : static_cast<double>(size[1]) - 0.5;
    double x = m[0] * i + m[1] * j + m[2], y = m[3] * i + m[4] * j + m[5];
    box[0] = corner == 0 ? x : std::min(box[0], x), box[1] = corner == 0 ? y : std::min(box[1], y);
    box[2] = corner == 0 ? x : std::max(box[2], x), box[3] = corner == 0 ? y : std::max(box[3], y);
  }
  return true;
}

std::int64_t pgrid_source::field_count() {
  return static_cast<std::int64_t>(file_->properties().size());
}

void pgrid_source::field_name(std::int64_t field, string_visitor visitor) {
  if (auto* found = property(field)) tell(visitor, found->name);
}

bool pgrid_source::find_field(const wchar_t* name, std::int64_t* index) {
  if (name == nullptr) return false;
  std::string wanted = to_utf8(name);
  for (std::int64_t field = 0; field < field_count(); ++field)
    if (property(field)->name == wanted) return *index = field, true;
  return false;
}

void pgrid_source::get_projection(string_visitor visitor) {
  if (!file_->head().projection.empty()) tell(visitor, file_->head().projection);
}

bool pgrid_source::set_projection(const wchar_t* text) {
  if (text == nullptr) return false;
  grid_head head = file_->head();
  head.projection = to_utf8(text);
  return store(head, zu_problem_projection);
}

// --- Stored statistics

bool pgrid_source::minimum(std::int64_t field, double* out) {
  auto* found = property(field);
  return found != nullptr && found->has_stat && (*out = found->minimum, true);
}
bool pgrid_source::maximum(std::int64_t field, double* out) {
  auto* found = property(field);
  return found != nullptr && found->has_stat && (*out = found->maximum, true);
}
bool pgrid_source::mean(std::int64_t field, double* out) {
  auto* found = property(field);
  return found != nullptr && found->has_stat && (*out = found->mean, true);
}
bool pgrid_source::stddev(std::int64_t field, double* out) {
  auto* found = property(field);
  return found != nullptr && found->has_stat && (*out = found->stddev, true);
}

// --- Grid

bool pgrid_source::sizes(std::int32_t* three) {
  for (int axis = 0; axis < 3; ++axis)
    three[axis] = static_cast<std::int32_t>(file_->head().size[static_cast<std::size_t>(axis)]);
  return true;
}

bool pgrid_source::matrix3x3(double* nine) {
  std::array<double, 9> m = matrix_of(file_->head());
  std::copy(m.begin(), m.end(), nine);
  return true;
}

bool pgrid_source::matrix4x4(double* sixteen) {
  std::array<double, 9> m = matrix_of(file_->head());
  const grid_head& head = file_->head();
  const double lifted[] = {
      m[0], m[1], 0, m[2], m[3], m[4], 0, m[5], 0, 0, head.spacing[2], head.origin[2], 0, 0, 0, 1};
  std::copy(std::begin(lifted), std::end(lifted), sixteen);
  return true;
}

bool pgrid_source::get_origin(double* three) {
  std::copy_n(file_->head().origin.begin(), 3, three);
  return true;
}

bool pgrid_source::get_spacing(double* three) {
  std::copy_n(file_->head().spacing.begin(), 3, three);
  return true;
}

bool pgrid_source::store(const grid_head& head, std::int32_t kind) {
  try {
    file_->set_head(head);
    return true;
  } catch (const std::exception& failure) {
    zu_problems_add(name_.c_str(), kind, from_utf8(failure.what()).c_str());
    return false;
  }
}

bool pgrid_source::set_origin(const double* three) {
  grid_head head = file_->head();
  std::copy_n(three, 3, head.origin.begin());
  return store(head, zu_problem_write);
}

bool pgrid_source::set_spacing(const double* three) {
  grid_head head = file_->head();
  std::copy_n(three, 3, head.spacing.begin());
  return store(head, zu_problem_write);
}

std::int32_t pgrid_source::sample_type(std::int64_t field) {
  auto* found = property(field);
  return found == nullptr ? std::int32_t(element_none) : found->type;
}

std::int32_t pgrid_source::color_role(std::int64_t field) {
  auto* found = property(field);
  return found == nullptr ? std::int32_t(role_none) : found->role;
}

bool pgrid_source::palette(std::int64_t field, grid_palette_visitor visitor) {
  auto* found = property(field);
  if (found == nullptr || found->palette.empty() || !visitor) return false;
  auto* made = new pgrid_palette(found->palette);
  call<&grid_palette_visitor_impl::visit>(visitor, handle_of<grid_palette_impl>(*made));
  return true;
}

bool pgrid_source::block(std::int64_t field, grid_block_visitor visitor) {
  if (property(field) == nullptr || !visitor) return false;
  auto* made = new pgrid_block(file_, static_cast<std::size_t>(field), name_);
  call<&grid_block_visitor_impl::visit>(visitor, handle_of<grid_block_impl>(*made));
  return true;
}

bool pgrid_source::row_ids(grid_block_visitor visitor) {
  if (!visitor) return false;
  const auto& size = file_->head().size;
  auto* made =
      new row_id_block(static_cast<std::uint64_t>(size[0]), static_cast<std::uint64_t>(size[1]),
                       static_cast<std::uint64_t>(size[2]));
  call<&grid_block_visitor_impl::visit>(visitor, handle_of<grid_block_impl>(*made));
  return true;
}

// --- Details

bool pgrid_source::field_info(std::int64_t field, Tzu_field_info* out) {
  auto* found = property(field);
  if (found == nullptr) return false;
  *out = {found->type,    found->has_nodata, found->nodata, found->has_stat,
          found->minimum, found->maximum,    found->mean,   found->stddev};
  return true;
}

void pgrid_source::driver(string_visitor visitor) { tell(visitor, "pgrid"); }

void pgrid_source::georeference_text(string_visitor visitor) {
  tell(visitor, file_->head().type == zu_tos4_not_placed ? "none" : "geotransform");
}

bool pgrid_source::compute_stat(std::int64_t field, std::uint64_t most,
                                bool (*progress)(double, void*), void* user, Tzu_field_stat* out) {
  auto* found = property(field);
  if (found == nullptr) return false;
  auto index = static_cast<std::size_t>(field);
  valid_cells valid{found->has_nodata && std::isfinite(found->nodata),
                    found->has_nodata ? found->nodata : 0};
  try {
    pgrid_file::reading state(*file_);
    // The first level with few enough samples is a sample of the grid.
    int level = 0;
    auto samples = [&](int number) {
      const tile_level& l = file_->plan().level(number);
      return l.size[0] * l.size[1] * file_->head().size[2];
    };
    while (most > 0 && static_cast<std::uint64_t>(samples(level)) > most &&
           level + 1 < file_->plan().levels())
      ++level;
    std::int64_t missing = samples(level);
    partial_statistics all;
    std::vector<std::byte> nothing = empty_sample(*found);
    std::size_t pitch = static_cast<std::size_t>(file_->head().tile[0]) * nothing.size();
    bool whole = file_->for_tiles(index, level, [&](const pgrid_file::seen_tile& tile) {
      missing -= tile.nx * tile.ny;
      for (std::int64_t y = 0; y < tile.ny; ++y)
        all.add(statistics_of_run(tile.samples + static_cast<std::size_t>(y) * pitch, found->type,
                                  static_cast<std::size_t>(tile.nx), valid));
      return progress == nullptr || progress(tile.share, user);
    });
    if (!whole) return false;
    // Tiles that are not there are all of one value, which may count.
    partial_statistics rest = statistics_of_run(nothing.data(), found->type, 1, valid);
    rest.count *= static_cast<std::uint64_t>(missing);
    all.add(rest);
    *out = summary(all, level > 0);
    return true;
  } catch (const std::exception& failure) {
    zu_problems_add(name_.c_str(), zu_problem_read, from_utf8(failure.what()).c_str());
    return false;
  }
}

bool pgrid_source::histogram(std::int64_t field, histogram_visitor visitor) {
  return visit_histogram(*this, field, visitor);
}

bool pgrid_source::compute_histogram(std::int64_t field, std::uint64_t classes, double minimum,
                                     double maximum, bool (*progress)(double, void*), void* user,
                                     std::int64_t* counts) {
  auto* found = property(field);
  if (found == nullptr) return false;
  valid_cells valid{found->has_nodata && std::isfinite(found->nodata),
                    found->has_nodata ? found->nodata : 0};
  try {
    pgrid_file::reading state(*file_);
    const tile_level& whole_grid = file_->plan().level(0);
    std::int64_t missing = whole_grid.size[0] * whole_grid.size[1] * file_->head().size[2];
    histogram_counts all({minimum, maximum, classes});
    std::vector<std::byte> nothing = empty_sample(*found);
    std::size_t pitch = static_cast<std::size_t>(file_->head().tile[0]) * nothing.size();
    bool whole = file_->for_tiles(
        static_cast<std::size_t>(field), 0, [&](const pgrid_file::seen_tile& tile) {
          missing -= tile.nx * tile.ny;
          for (std::int64_t y = 0; y < tile.ny; ++y)
            all.add(tile.samples + static_cast<std::size_t>(y) * pitch, found->type,
                    static_cast<std::size_t>(tile.nx), valid);
          return progress == nullptr || progress(tile.share, user);
        });
    if (!whole) return false;
    all.add_repeated(nothing.data(), found->type, missing, valid);
    all.add_to(counts);
    return true;
  } catch (const std::exception& failure) {
    zu_problems_add(name_.c_str(), zu_problem_read, from_utf8(failure.what()).c_str());
    return false;
  }
}

}  // namespace zu::platform
