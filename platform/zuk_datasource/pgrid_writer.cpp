#include "platform/zuk_datasource/pgrid_writer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <set>
#include <vector>

#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_datasource/band_statistics.h"
#include "platform/zuk_datasource/elements.h"
#include "platform/zuk_datasource/pgrid_source.h"
#include "zu/data_source.h"
#include "zu/platform/zuk_file_tos4.h"

namespace zu::platform {
namespace {

/// Samples that are read at once; whole tiles.
constexpr std::int64_t most_columns = 16384, rows_at_once = 256;

struct taken_text : string_visitor_impl {
  void visit(const wchar_t* given) override { text = to_utf8(given); }
  std::string text;
};

struct taken_block : grid_block_visitor_impl {
  taken_block() = default;
  taken_block(const taken_block&) = delete;
  taken_block& operator=(const taken_block&) = delete;
  ~taken_block() { call<&grid_block_impl::release>(block); }
  void visit(grid_block given) override { block = given; }
  grid_block block;
};

struct taken_palette : grid_palette_visitor_impl {
  void visit(grid_palette given) override {
    std::int64_t size = call<&grid_palette_impl::size>(given);
    for (std::int64_t i = 0; i < size && colors.size() < longest_palette; ++i) {
      std::array<std::uint8_t, 4> four{};
      call<&grid_palette_impl::color>(given, i, four.data());
      for (std::uint8_t part : four) colors.push_back(std::byte(part));
    }
    call<&grid_palette_impl::release>(given);
  }
  std::vector<std::byte> colors;
};

grid_head head_of(handle source, const Tzu_pgrid_options& options, std::size_t fields) {
  grid_source grid = cast<grid_source_impl>(source);
  grid_head head;
  std::int32_t sizes[3] = {0, 0, 0};
  std::array<double, 9> matrix{1, 0, 0, 0, 1, 0, 0, 0, 1};
  if (!call<&grid_source_impl::sizes>(grid, sizes)) throw pgrid_failure("there is no grid in it");
  call<&grid_source_impl::get_origin>(grid, head.origin.data());
  call<&grid_source_impl::get_spacing>(grid, head.spacing.data());
  call<&grid_source_impl::matrix3x3>(grid, matrix.data());
  std::copy_n(sizes, 3, head.size.begin());
  head.type = call<&grid_source_impl::grid_type>(grid);
  if (head.type == zu_tos4_one_column || head.type == zu_tos4_two_columns ||
      head.type == zu_tos4_three_columns)
    throw pgrid_failure("its nodes have coordinate columns");
  if (!place_of(matrix, head)) throw pgrid_failure("its axes are not at right angles");
  if (options.profile) {
    if (head.size[1] != 1 || head.size[2] != 1)
      throw pgrid_failure("a profile has one row of nodes");
    head.type = zu_tos4_profile;
  }
  if (options.volume) {
    if (head.size[2] != 1 || options.profile) throw pgrid_failure("its fields have slices already");
    head.type = zu_tos4_volume;
    head.size[2] = static_cast<std::int64_t>(fields);
    head.origin[2] = 0, head.spacing[2] = 1;
  }
  taken_text projection;
  call<&data_source_impl::get_projection>(of<data_source_impl>(source),
                                          handle_of<string_visitor_impl>(projection));
  head.projection = projection.text;
  return head;
}

grid_property property_of(handle source, std::int64_t field) {
  grid_source grid = cast<grid_source_impl>(source);
  grid_property out;
  taken_text name;
  call<&data_source_impl::field_name>(of<data_source_impl>(source), field,
                                      handle_of<string_visitor_impl>(name));
  out.name = name.text;
  out.type = call<&grid_source_impl::sample_type>(grid, field);
  out.role = call<&grid_source_impl::color_role>(grid, field);
  Tzu_field_info info{};
  if (!zu_datasource_get_field_info(source, field, &info))
    throw pgrid_failure("there is no such field");
  out.has_nodata = info.has_nodata, out.nodata = info.nodata;
  taken_palette palette;
  call<&grid_source_impl::palette>(grid, field, handle_of<grid_palette_visitor_impl>(palette));
  out.palette = std::move(palette.colors);
  return out;
}

bool same_nodata(const grid_property& a, const grid_property& b) {
  if (a.has_nodata != b.has_nodata) return false;
  return !a.has_nodata || a.nodata == b.nodata || (std::isnan(a.nodata) && std::isnan(b.nodata));
}

/// Bands may bear one name; properties are told apart by theirs.
void make_names_differ(std::vector<grid_property>& all) {
  std::set<std::string> taken;
  for (grid_property& each : all) {
    if (each.name.empty()) each.name = "Value";
    std::string base = each.name;
    for (int number = 2; !taken.insert(each.name).second; ++number)
      each.name = base + " (" + std::to_string(number) + ")";
  }
}

/// Copies fields of a source, slice by slice, and counts what has been read.
class grid_copy {
 public:
  grid_copy(handle source, pgrid_file& file, std::int64_t passes, bool (*progress)(double, void*),
            void* user)
      : grid_(cast<grid_source_impl>(source)),
        file_(file),
        all_(static_cast<double>(file.head().nodes()) * static_cast<double>(passes)),
        progress_(progress),
        user_(user) {}

  /// `slices` slices of a field, from its first, into a property from slice `z` on. False if
  /// stopped.
  bool field(std::int64_t field, std::size_t property, std::int64_t z, std::int64_t slices,
             partial_statistics& sum) {
    taken_block taken;
    call<&grid_source_impl::block>(grid_, field, handle_of<grid_block_visitor_impl>(taken));
    if (!taken.block) throw pgrid_failure("a field cannot be read");
    const auto& size = file_.head().size;
    for (std::int64_t slice = 0; slice < slices; ++slice)
      for (std::int64_t y = 0; y < size[1]; y += rows_at_once)
        for (std::int64_t x = 0; x < size[0]; x += columns_at_once()) {
          node_box box{x, y, std::min(columns_at_once(), size[0] - x),
                       std::min(rows_at_once, size[1] - y), z + slice};
          piece(taken.block, property, box, slice, sum);
          done_ += static_cast<double>(box.nx * box.ny);
          if (progress_ != nullptr && !progress_(std::min(1.0, done_ / all_), user_)) return false;
        }
    return true;
  }

 private:
  // A grid of few rows is read in longer ones.
  std::int64_t columns_at_once() const {
    return file_.head().size[1] == 1 ? most_columns * rows_at_once : most_columns;
  }

  void piece(grid_block block, std::size_t property, const node_box& box, std::int64_t slice,
             partial_statistics& sum) {
    const grid_property& p = file_.properties()[property];
    auto count = static_cast<std::size_t>(box.nx * box.ny);
    samples_.resize(count * element_width(p.type));
    const std::int64_t origin[] = {box.x, box.y, slice};
    const std::uint64_t size[] = {static_cast<std::uint64_t>(box.nx),
                                  static_cast<std::uint64_t>(box.ny), 1};
    // A source in two dimensions need not know the read with a slice.
    auto read = [&](auto... given) {
      return slice == 0 ? call<&grid_block_impl::read_window>(block, given...)
                        : call<&grid_block_impl::read_window_3d>(block, given...);
    };
    std::int32_t result = read(&origin[0], &size[0], samples_.data(), &size[0], p.type, nullptr);
    if (result != 1) throw pgrid_failure("a field cannot be read");
    file_.write(property, box, samples_.data());
    valid_cells valid{p.has_nodata && std::isfinite(p.nodata), p.has_nodata ? p.nodata : 0};
    sum.add(statistics_of_run(samples_.data(), p.type, count, valid));
  }

  grid_source grid_;
  pgrid_file& file_;
  double all_, done_ = 0;
  bool (*progress_)(double, void*);
  void* user_;
  std::vector<std::byte> samples_;
};

void store_statistics(pgrid_file& file, std::size_t index, const partial_statistics& sum) {
  Tzu_field_stat stat = summary(sum, false);
  grid_property p = file.properties()[index];
  p.has_stat = std::isfinite(stat.mean) && std::isfinite(stat.stddev);
  p.minimum = stat.minimum, p.maximum = stat.maximum;
  p.mean = stat.mean, p.stddev = stat.stddev;
  p.count = static_cast<std::int64_t>(stat.count);
  file.set_property(index, p);
}

bool copy_fields(const std::vector<std::int64_t>& fields, std::vector<grid_property>& made,
                 pgrid_file& file, grid_copy& copy, bool volume) {
  std::size_t index = 0;
  partial_statistics sum;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (i == 0 || !volume) {
      index = file.add_property(made[i]);
      sum = {};
    }
    std::int64_t z = volume ? static_cast<std::int64_t>(i) : 0;
    if (!copy.field(fields[i], index, z, volume ? 1 : file.head().size[2], sum)) return false;
    if (!volume || i + 1 == fields.size()) store_statistics(file, index, sum);
  }
  return true;
}

}  // namespace

bool write_pgrid(handle source, const std::wstring& path, const Tzu_pgrid_options& options,
                 bool (*progress)(double, void*), void* user) {
  std::vector<std::int64_t> fields;
  std::int64_t there = call<&data_source_impl::field_count>(of<data_source_impl>(source));
  if (options.fields != nullptr)
    fields.assign(options.fields, options.fields + options.field_count);
  else
    for (std::int64_t i = 0; i < there; ++i) fields.push_back(i);
  if (fields.empty()) throw pgrid_failure("there is no field to write");
  std::vector<grid_property> made;
  made.reserve(fields.size());
  for (std::int64_t field : fields) made.push_back(property_of(source, field));
  if (options.volume) {
    for (const grid_property& each : made)
      if (each.type != made[0].type || !same_nodata(each, made[0]))
        throw pgrid_failure("slices of different types or NoData cannot stand in one volume");
    made[0].name = to_utf8(options.volume_name);
    made[0].role = role_none, made[0].palette.clear();
  }
  make_names_differ(made);
  pgrid_file file(to_utf8(path), head_of(source, options, fields.size()));
  auto passes = static_cast<std::int64_t>(options.volume ? 1 : fields.size());
  grid_copy copy(source, file, passes, progress, user);
  if (!copy_fields(fields, made, file, copy, options.volume)) return false;
  file.commit();
  return true;
}

}  // namespace zu::platform
