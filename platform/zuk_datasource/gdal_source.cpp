#include "platform/zuk_datasource/gdal_source.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <cpl_conv.h>
#include <cpl_string.h>

#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_datasource/band_statistics.h"
#include "platform/zuk_datasource/gdal_block.h"
#include "platform/zuk_datasource/gdal_messages.h"
#include "platform/zuk_datasource/histogram_counts.h"

namespace zu::platform {

namespace {

enum grid_kind : std::int32_t { not_placed = 0, net_of_two_dimensions = 3 };

void tell(string_visitor visitor, const std::string& text) {
  call<&string_visitor_impl::visit>(visitor, from_utf8(text).c_str());
}

}  // namespace

gdal_source::gdal_source(dataset_ptr dataset, std::wstring name)
    : dataset_(std::move(dataset)), name_(std::move(name)) {}

GDALRasterBand* gdal_source::band(std::int64_t field) {
  if (field < 0 || field >= dataset_->gdal().GetRasterCount()) return nullptr;
  return dataset_->gdal().GetRasterBand(static_cast<int>(field) + 1);
}

band_reader gdal_source::reader_of(std::int64_t field) {
  return {dataset_, static_cast<int>(field) + 1, place().rows_run_south, name_};
}

// --- Fields

bool gdal_source::extent(double* box, bool) {
  std::copy(place().box.begin(), place().box.end(), box);
  return true;
}

std::int64_t gdal_source::field_count() { return dataset_->gdal().GetRasterCount(); }

std::string gdal_source::name_of(std::int64_t field) {
  std::string text = band(field)->GetDescription();
  return text.empty() ? "Band " + std::to_string(field + 1) : text;
}

void gdal_source::field_name(std::int64_t field, string_visitor visitor) {
  if (band(field) != nullptr) tell(visitor, name_of(field));
}

bool gdal_source::find_field(const wchar_t* name, std::int64_t* index) {
  if (name == nullptr) return false;
  std::string wanted = to_utf8(name);
  for (std::int64_t field = 0; field < field_count(); ++field)
    if (name_of(field) == wanted) return *index = field, true;
  return false;
}

void gdal_source::get_projection(string_visitor visitor) {
  if (!place().wkt.empty()) tell(visitor, place().wkt);
}

bool gdal_source::set_projection(const wchar_t* text) {
  if (text == nullptr || dataset_->read_only()) return false;
  gdal_messages said;
  OGRSpatialReference system;
  system.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
  bool done = system.SetFromUserInput(to_utf8(text).c_str()) == OGRERR_NONE &&
              dataset_->gdal().SetSpatialRef(&system) == CE_None;
  if (done) {
    dataset_->gdal().FlushCache(false);
    dataset_->forget_place();
  } else {
    std::string reason = said.reason(dataset_->path(), "the projection cannot be stored");
    zu_problems_add(name_.c_str(), zu_problem_projection, from_utf8(reason).c_str());
  }
  return done;
}

// --- Stored statistics

bool gdal_source::stored(std::int64_t field, const char* item, double* out) {
  GDALRasterBand* found = band(field);
  if (found == nullptr) return false;
  const char* approximate = found->GetMetadataItem("STATISTICS_APPROXIMATE");
  const char* text = found->GetMetadataItem(item);
  if (text == nullptr || (approximate != nullptr && EQUAL(approximate, "YES"))) return false;
  *out = CPLAtof(text);
  return true;
}

bool gdal_source::minimum(std::int64_t field, double* out) {
  return stored(field, "STATISTICS_MINIMUM", out);
}
bool gdal_source::maximum(std::int64_t field, double* out) {
  return stored(field, "STATISTICS_MAXIMUM", out);
}
bool gdal_source::mean(std::int64_t field, double* out) {
  return stored(field, "STATISTICS_MEAN", out);
}
bool gdal_source::stddev(std::int64_t field, double* out) {
  return stored(field, "STATISTICS_STDDEV", out);
}

// --- Grid

std::int32_t gdal_source::grid_type() {
  return place().kind == georeference_kind::none ? not_placed : net_of_two_dimensions;
}

bool gdal_source::sizes(std::int32_t* three) {
  three[0] = dataset_->gdal().GetRasterXSize();
  three[1] = dataset_->gdal().GetRasterYSize();
  three[2] = 1;
  return true;
}

bool gdal_source::matrix3x3(double* nine) {
  std::copy(place().matrix.begin(), place().matrix.end(), nine);
  return true;
}

bool gdal_source::matrix4x4(double* sixteen) {
  const auto& m = place().matrix;
  const double lifted[] = {m[0], m[1], 0, m[2], m[3], m[4], 0, m[5], 0, 0, 1, 0, 0, 0, 0, 1};
  std::copy(std::begin(lifted), std::end(lifted), sixteen);
  return true;
}

bool gdal_source::get_origin(double* three) {
  three[0] = place().matrix[2], three[1] = place().matrix[5], three[2] = 0;
  return true;
}

bool gdal_source::move_to(const std::array<double, 9>& matrix) {
  if (dataset_->read_only()) return false;
  gdal_messages said;
  std::array<double, 6> g =
      geotransform_of(matrix, place().rows_run_south, dataset_->gdal().GetRasterYSize());
  if (dataset_->gdal().SetGeoTransform(g.data()) != CE_None) return false;
  dataset_->forget_place();
  return true;
}

bool gdal_source::set_origin(const double* three) {
  std::array<double, 9> m = place().matrix;
  m[2] = three[0], m[5] = three[1];
  return move_to(m);
}

bool gdal_source::get_spacing(double* three) {
  const auto& m = place().matrix;
  three[0] = std::hypot(m[0], m[3]), three[1] = std::hypot(m[1], m[4]), three[2] = 1;
  return true;
}

bool gdal_source::set_spacing(const double* three) {
  double now[3];
  get_spacing(now);
  if (!(three[0] > 0) || !(three[1] > 0)) return false;
  std::array<double, 9> m = place().matrix;
  m[0] *= three[0] / now[0], m[3] *= three[0] / now[0];
  m[1] *= three[1] / now[1], m[4] *= three[1] / now[1];
  return move_to(m);
}

// Of the x axis, counter-clockwise.
double gdal_source::azimuth() {
  return std::atan2(place().matrix[3], place().matrix[0]) * 180 / std::numbers::pi;
}

std::int32_t gdal_source::sample_type(std::int64_t field) {
  GDALRasterBand* found = band(field);
  return found == nullptr ? element_none : element_type_of(*found);
}

std::int32_t gdal_source::color_role(std::int64_t field) {
  GDALRasterBand* found = band(field);
  switch (found == nullptr ? GCI_Undefined : found->GetColorInterpretation()) {
    case GCI_RedBand:
      return role_red;
    case GCI_GreenBand:
      return role_green;
    case GCI_BlueBand:
      return role_blue;
    case GCI_AlphaBand:
      return role_alpha;
    case GCI_GrayIndex:
      return role_gray;
    case GCI_PaletteIndex:
      return role_palette;
    default:
      return role_none;
  }
}

bool gdal_source::palette(std::int64_t field, grid_palette_visitor visitor) {
  GDALRasterBand* found = band(field);
  if (found == nullptr || found->GetColorTable() == nullptr || !visitor) return false;
  auto* made = new gdal_palette(*found);
  call<&grid_palette_visitor_impl::visit>(visitor, handle_of<grid_palette_impl>(*made));
  return true;
}

bool gdal_source::block(std::int64_t field, grid_block_visitor visitor) {
  if (sample_type(field) == element_none || !visitor) return false;
  auto* made = new gdal_block(reader_of(field));
  call<&grid_block_visitor_impl::visit>(visitor, handle_of<grid_block_impl>(*made));
  return true;
}

bool gdal_source::row_ids(grid_block_visitor visitor) {
  if (!visitor) return false;
  auto* made = new row_id_block(static_cast<std::uint64_t>(dataset_->gdal().GetRasterXSize()),
                                static_cast<std::uint64_t>(dataset_->gdal().GetRasterYSize()));
  call<&grid_block_visitor_impl::visit>(visitor, handle_of<grid_block_impl>(*made));
  return true;
}

// --- Details

bool gdal_source::field_info(std::int64_t field, Tzu_field_info* out) {
  GDALRasterBand* found = band(field);
  if (found == nullptr) return false;
  *out = {};
  out->type = element_type_of(*found);
  out->has_nodata = nodata_of(*found, out->nodata);
  out->has_stat = minimum(field, &out->minimum) && maximum(field, &out->maximum) &&
                  mean(field, &out->mean) && stddev(field, &out->stddev);
  return true;
}

void gdal_source::driver(string_visitor visitor) {
  tell(visitor, dataset_->gdal().GetDriverName());
}

void gdal_source::georeference_text(string_visitor visitor) {
  static const char* const words[] = {"none", "geotransform", "ground control points"};
  tell(visitor, words[static_cast<int>(place().kind)]);
}

void gdal_source::georeference_file(string_visitor visitor) {
  if (place().kind == georeference_kind::none) return;
  tell(visitor, georeference_file_of(dataset_->gdal()).c_str());
}

std::uint32_t gdal_source::part_count() {
  return static_cast<std::uint32_t>(CSLCount(dataset_->gdal().GetMetadata("SUBDATASETS")) / 2);
}

void gdal_source::part(std::uint32_t index, string_visitor name, string_visitor description) {
  char** items = dataset_->gdal().GetMetadata("SUBDATASETS");
  std::string head = "SUBDATASET_" + std::to_string(index + 1);
  if (const char* text = CSLFetchNameValue(items, (head + "_NAME").c_str())) tell(name, text);
  if (const char* text = CSLFetchNameValue(items, (head + "_DESC").c_str()))
    tell(description, text);
}

bool gdal_source::compute_stat(std::int64_t field, std::uint64_t most,
                               bool (*progress)(double, void*), void* user, Tzu_field_stat* out) {
  if (band(field) == nullptr || sample_type(field) == element_none) return false;
  band_reader reader = reader_of(field);
  gdal_messages quiet;
  bool sampled = most > 0 && reader.columns() * reader.rows() > most;
  if (sampled) return sample_statistics(reader, most, *out);
  return exact_statistics(*dataset_, static_cast<int>(field) + 1, name_, progress, user, *out);
}

bool gdal_source::histogram(std::int64_t field, histogram_visitor visitor) {
  return visit_histogram(*this, field, visitor);
}

bool gdal_source::compute_histogram(std::int64_t field, std::uint64_t classes, double minimum,
                                    double maximum, bool (*progress)(double, void*), void* user,
                                    std::int64_t* counts) {
  if (band(field) == nullptr || sample_type(field) == element_none) return false;
  return exact_histogram(*dataset_, static_cast<int>(field) + 1, name_, {minimum, maximum, classes},
                         progress, user, counts);
}

}  // namespace zu::platform
