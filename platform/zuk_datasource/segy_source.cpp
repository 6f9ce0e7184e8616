#include "platform/zuk_datasource/segy_source.h"

#include <algorithm>
#include <cwctype>
#include <limits>

#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_datasource/band_statistics.h"
#include "platform/zuk_datasource/cell_runs.h"
#include "platform/zuk_datasource/elements.h"
#include "platform/zuk_datasource/gdal_block.h"
#include "platform/zuk_datasource/histogram_counts.h"

namespace zu::platform {

namespace {

constexpr wchar_t values[] = L"Values";
constexpr std::int32_t net_of_two_dimensions = 3;
// Whoever reads a section in row order asks for the samples of one tile at a time: it is as many
// whole rows as can be held, so that a trace is not visited for each of its samples.
constexpr std::uint64_t most_tile_samples = std::uint64_t(1) << 22;
constexpr std::size_t traces_at_once = 64;

bool fits(std::int64_t origin, std::uint64_t size, std::uint64_t all) {
  return origin >= 0 && size > 0 && static_cast<std::uint64_t>(origin) < all &&
         size <= all - static_cast<std::uint64_t>(origin);
}

}  // namespace

bool is_segy_name(const std::wstring& name) {
  auto dot = name.rfind(L'.');
  if (dot == std::wstring::npos) return false;
  std::wstring extension = name.substr(dot + 1);
  for (wchar_t& c : extension)
    if (c >= L'A' && c <= L'Z') c += L'a' - L'A';
  return extension == L"sgy" || extension == L"segy" || extension == L"seg";
}

// --- Windows

struct segy_reader::target {
  std::byte* out;
  std::int32_t type;
  std::uint64_t column_stride, row_stride;
};

segy_reader::segy_reader(std::shared_ptr<section_file> file, std::shared_ptr<segy_pyramid> pyramid,
                         std::wstring name)
    : file_(std::move(file)), pyramid_(std::move(pyramid)), name_(std::move(name)) {}

std::int32_t segy_reader::read(const grid_window& w, void* out, std::int32_t type,
                               std::uint64_t column_stride, std::uint64_t row_stride) const {
  constexpr std::uint64_t most_samples = std::numeric_limits<int>::max();
  if (element_width(type) == 0 || out == nullptr || !fits(w.x, w.nx, columns()) ||
      !fits(w.y, w.ny, rows()) || w.sample_x == 0 || w.sample_y == 0 || w.sample_x > most_samples ||
      w.sample_y > most_samples)
    return read_impossible;
  target to{static_cast<std::byte*>(out), type, column_stride == 0 ? 1 : column_stride, row_stride};
  if (to.row_stride == 0) to.row_stride = to.column_stride * w.sample_x;
  try {
    read_samples(w, to);
    return read_done;
  } catch (const segy_failure& reason) {
    zu_problems_add(name_.c_str(), zu_problem_read, from_utf8(reason.what()).c_str());
    return read_failed;
  }
}

// Traces lie one after the other: some of them are read whole into a scratch of their own, from
// which the rows of the picture are put together.
void segy_reader::read_samples(const grid_window& w, const target& to) const {
  std::vector<std::int64_t> traces = sampled_columns(w.x, w.nx, w.sample_x);
  std::vector<std::int64_t> samples = sampled_rows(w.y, w.ny, w.sample_y);
  for (std::int64_t& sample : samples) sample = static_cast<std::int64_t>(rows()) - 1 - sample;
  std::reverse(samples.begin(), samples.end());
  const segy_pyramid::level* level = nullptr;
  if (pyramid_ != nullptr)
    level = pyramid_->best(std::min(static_cast<double>(w.nx) / static_cast<double>(w.sample_x),
                                    static_cast<double>(w.ny) / static_cast<double>(w.sample_y)));
  if (level != nullptr) {
    auto factor = static_cast<std::int64_t>(level->factor);
    for (std::int64_t& trace : traces) trace /= factor;
    for (std::int64_t& sample : samples) sample /= factor;
  }

  const std::size_t width = element_width(this->type()), height = samples.size();
  std::vector<std::byte> columns(std::min(traces_at_once, traces.size()) * height * width);
  for (std::size_t first = 0; first < traces.size(); first += traces_at_once) {
    std::size_t count = std::min(traces_at_once, traces.size() - first);
    for (std::size_t i = 0; i < count; ++i) {
      auto trace = static_cast<std::uint64_t>(traces[first + i]);
      std::byte* column = columns.data() + i * height * width;
      if (i > 0 && traces[first + i] == traces[first + i - 1])
        std::copy_n(column - height * width, height * width, column);
      else if (level != nullptr)
        pyramid_->read(*level, trace, samples, column);
      else
        file_->read(trace, samples, column);
    }
    for (std::size_t row = 0; row < height; ++row)
      convert_elements(
          columns.data() + (height - 1 - row) * width, type(), static_cast<std::ptrdiff_t>(height),
          to.out + (row * to.row_stride + first * to.column_stride) * element_width(to.type),
          to.type, static_cast<std::ptrdiff_t>(to.column_stride), count);
  }
}

// --- The block

namespace {

/// Deletes itself on release.
class segy_block final : public polymorphic<grid_block_impl> {
 public:
  explicit segy_block(segy_reader reader)
      : reader_(std::move(reader)),
        tile_x_(std::min(most_tile_samples, reader_.columns())),
        tile_y_(std::clamp(most_tile_samples / tile_x_, std::uint64_t(1), reader_.rows())) {}

  void release() override { delete this; }
  std::int32_t type() override { return reader_.type(); }
  bool tile_size(std::uint64_t* three) override {
    three[0] = tile_x_, three[1] = tile_y_, three[2] = 1;
    return true;
  }
  std::int32_t read_linear(std::uint64_t start, std::uint64_t count, void* buffer,
                           std::int32_t type) override {
    if (!is_run(start, count, reader_.columns(), reader_.rows())) return read_impossible;
    return for_rows_of_run(start, count, reader_.columns(), static_cast<std::byte*>(buffer),
                           element_width(type), [&](const grid_window& window, void* out) {
                             return reader_.read(window, out, type, 0, 0);
                           });
  }
  std::int32_t read_window(const std::int64_t* origin, const std::uint64_t* size, void* buffer,
                           const std::uint64_t* sample, std::int32_t type,
                           const std::uint64_t* strides) override {
    return reader_.read({origin[0], origin[1], size[0], size[1], sample[0], sample[1]}, buffer,
                        type, stride_of(strides, 0), stride_of(strides, 1));
  }
  std::int32_t read_window_3d(const std::int64_t* origin, const std::uint64_t* size, void* buffer,
                              const std::uint64_t* sample, std::int32_t type,
                              const std::uint64_t* strides) override {
    return origin[2] == 0 ? read_window(origin, size, buffer, sample, type, strides) : 0;
  }
  std::int32_t read_tile(std::uint64_t column, std::uint64_t row, void* buffer) override;

 private:
  segy_reader reader_;
  std::uint64_t tile_x_, tile_y_;
};

std::int32_t segy_block::read_tile(std::uint64_t column, std::uint64_t row, void* buffer) {
  if (column > (reader_.columns() - 1) / tile_x_ || row > (reader_.rows() - 1) / tile_y_)
    return read_impossible;
  std::uint64_t x = column * tile_x_, y = row * tile_y_;
  std::uint64_t nx = std::min(tile_x_, reader_.columns() - x);
  std::uint64_t ny = std::min(tile_y_, reader_.rows() - y);
  std::fill_n(static_cast<std::byte*>(buffer), tile_x_ * tile_y_ * element_width(type()),
              std::byte());
  return reader_.read({static_cast<std::int64_t>(x), static_cast<std::int64_t>(y), nx, ny, nx, ny},
                      buffer, type(), 0, tile_x_);
}

}  // namespace

// --- The source

segy_source::segy_source(std::wstring name)
    : name_(std::move(name)),
      file_(std::make_shared<section_file>(to_utf8(name_))),
      pyramid_(segy_pyramid::open(to_utf8(name_), *file_)) {}

double segy_source::lowest() const {
  return -(file_->delay() + static_cast<double>(file_->samples() - 1) * file_->interval());
}

bool segy_source::extent(double* box, bool) {
  double half = file_->interval() / 2;
  box[0] = 0.5, box[1] = lowest() - half;
  box[2] = static_cast<double>(file_->traces()) + 0.5, box[3] = -file_->delay() + half;
  return true;
}

void segy_source::field_name(std::int64_t field, string_visitor visitor) {
  if (field == 0) call<&string_visitor_impl::visit>(visitor, values);
}

bool segy_source::find_field(const wchar_t* name, std::int64_t* index) {
  if (name == nullptr || std::wstring(name) != values) return false;
  *index = 0;
  return true;
}

std::int32_t segy_source::grid_type() { return net_of_two_dimensions; }

bool segy_source::sizes(std::int32_t* three) {
  three[0] = static_cast<std::int32_t>(file_->traces());
  three[1] = static_cast<std::int32_t>(file_->samples());
  three[2] = 1;
  return true;
}

bool segy_source::matrix3x3(double* nine) {
  const double m[] = {1, 0, 1, 0, file_->interval(), lowest(), 0, 0, 1};
  std::copy(std::begin(m), std::end(m), nine);
  return true;
}

bool segy_source::matrix4x4(double* sixteen) {
  const double m[] = {1, 0, 0, 1, 0, file_->interval(), 0, lowest(), 0, 0, 1, 0, 0, 0, 0, 1};
  std::copy(std::begin(m), std::end(m), sixteen);
  return true;
}

bool segy_source::get_origin(double* three) {
  three[0] = 1, three[1] = lowest(), three[2] = 0;
  return true;
}

bool segy_source::get_spacing(double* three) {
  three[0] = 1, three[1] = file_->interval(), three[2] = 1;
  return true;
}

std::int32_t segy_source::sample_type(std::int64_t band) {
  return band == 0 ? file_->format().element : element_none;
}

bool segy_source::block(std::int64_t band, grid_block_visitor visitor) {
  if (band != 0 || !visitor) return false;
  auto* made = new segy_block({file_, pyramid_, name_});
  call<&grid_block_visitor_impl::visit>(visitor, handle_of<grid_block_impl>(*made));
  return true;
}

bool segy_source::row_ids(grid_block_visitor visitor) {
  if (!visitor) return false;
  auto* made = new row_id_block(file_->traces(), file_->samples());
  call<&grid_block_visitor_impl::visit>(visitor, handle_of<grid_block_impl>(*made));
  return true;
}

bool segy_source::field_info(std::int64_t field, Tzu_field_info* out) {
  if (field != 0) return false;
  *out = {};
  out->type = file_->format().element;
  return true;
}

void segy_source::driver(string_visitor visitor) {
  call<&string_visitor_impl::visit>(visitor, L"SEG-Y");
}

void segy_source::georeference_text(string_visitor visitor) {
  call<&string_visitor_impl::visit>(visitor, L"traces and times");
}

bool segy_source::compute_stat(std::int64_t field, std::uint64_t most,
                               bool (*progress)(double, void*), void* user, Tzu_field_stat* out) {
  if (field != 0) return false;
  segy_reader reader(file_, pyramid_, name_);
  std::uint64_t columns = reader.columns(), rows = reader.rows();
  std::uint64_t sample_x = columns, sample_y = rows;
  bool estimate = most > 0 && columns * rows > most;
  if (estimate) {
    sample_y = std::clamp(most / columns, std::uint64_t(1), rows);
    sample_x = std::min(columns, most / sample_y);
  }
  constexpr std::uint64_t at_once = 256;
  partial_statistics all;
  std::vector<std::byte> cells(std::min(at_once, sample_x) * sample_y *
                               element_width(reader.type()));
  for (std::uint64_t first = 0; first < sample_x; first += at_once) {
    std::uint64_t count = std::min(at_once, sample_x - first);
    std::uint64_t x = first * columns / sample_x, end = (first + count) * columns / sample_x;
    grid_window window{static_cast<std::int64_t>(x), 0, end - x, rows, count, sample_y};
    if (reader.read(window, cells.data(), reader.type(), 0, 0) != read_done) return false;
    all.add(statistics_of_run(cells.data(), reader.type(), count * sample_y, {}));
    double share = static_cast<double>(first + count) / static_cast<double>(sample_x);
    if (progress != nullptr && !progress(share, user)) return false;
  }
  *out = summary(all, estimate);
  return all.count > 0;
}

bool segy_source::histogram(std::int64_t field, histogram_visitor visitor) {
  return visit_histogram(*this, field, visitor);
}

bool segy_source::compute_histogram(std::int64_t field, std::uint64_t classes, double minimum,
                                    double maximum, bool (*progress)(double, void*), void* user,
                                    std::int64_t* counts) {
  if (field != 0) return false;
  segy_reader reader(file_, pyramid_, name_);
  constexpr std::uint64_t at_once = 256;
  std::uint64_t columns = reader.columns(), rows = reader.rows();
  histogram_counts all({minimum, maximum, classes});
  std::vector<std::byte> cells(std::min(at_once, columns) * rows * element_width(reader.type()));
  for (std::uint64_t first = 0; first < columns; first += at_once) {
    std::uint64_t count = std::min(at_once, columns - first);
    grid_window window{static_cast<std::int64_t>(first), 0, count, rows, count, rows};
    if (reader.read(window, cells.data(), reader.type(), 0, 0) != read_done) return false;
    all.add(cells.data(), reader.type(), count * rows, {});
    double share = static_cast<double>(first + count) / static_cast<double>(columns);
    if (progress != nullptr && !progress(share, user)) return false;
  }
  all.add_to(counts);
  return true;
}

}  // namespace zu::platform
