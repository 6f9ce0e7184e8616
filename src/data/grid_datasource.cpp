#include "src/data/grid_datasource.h"

namespace zu::data {
namespace {

/// Takes what a source delivers, in the place of what is there.
class grid_block_visitor final : public grid_block_visitor_impl {
 public:
  explicit grid_block_visitor(owned_block& out) : out_(out) {}
  void visit(grid_block block) override { out_.reset(block); }
  zu::grid_block_visitor self() {
    return zu::grid_block_visitor(handle_of<grid_block_visitor_impl>(*this));
  }

 private:
  owned_block& out_;
};

class grid_palette_visitor final : public grid_palette_visitor_impl {
 public:
  explicit grid_palette_visitor(owned_palette& out) : out_(out) {}
  void visit(grid_palette palette) override { out_.reset(palette); }
  zu::grid_palette_visitor self() {
    return zu::grid_palette_visitor(handle_of<grid_palette_visitor_impl>(*this));
  }

 private:
  owned_palette& out_;
};

}  // namespace

grid_datasource::~grid_datasource() { grid_datasource::unbind(); }

bool grid_datasource::bind(const std::wstring&, int) {
  grid_ = cast<grid_source_impl>(source_);
  return source_ && grid_;
}

void grid_datasource::unbind() { grid_ = {}; }

bool grid_datasource::attach(handle source) {
  return generic_datasource::attach(source) && bind({}, open_read_only);
}

std::int32_t grid_datasource::grid_type() const {
  return call<&grid_source_impl::grid_type>(grid_);
}

bool grid_datasource::sizes(std::int32_t* three) const {
  return call<&grid_source_impl::sizes>(grid_, three);
}

bool grid_datasource::matrix(Tzu_matrix3x3& index_to_source) const {
  return call<&grid_source_impl::matrix3x3>(grid_, &index_to_source.m[0][0]);
}

bool grid_datasource::matrix(Tzu_matrix4x4& index_to_source) const {
  if (call<&grid_source_impl::matrix4x4>(grid_, &index_to_source.m[0][0])) return true;
  Tzu_matrix3x3 plane;
  if (!matrix(plane)) return false;
  zu_matrix4x4_init_matrix3x3(&index_to_source, &plane);
  return true;
}

bool grid_datasource::get_origin(double* three) const {
  return call<&grid_source_impl::get_origin>(grid_, three);
}

bool grid_datasource::set_origin(const double* three) {
  return call<&grid_source_impl::set_origin>(grid_, three);
}

bool grid_datasource::get_spacing(double* three) const {
  if (call<&grid_source_impl::get_spacing>(grid_, three)) return true;
  three[0] = three[1] = three[2] = 1.0;
  return false;
}

bool grid_datasource::set_spacing(const double* three) {
  return call<&grid_source_impl::set_spacing>(grid_, three);
}

double grid_datasource::azimuth() const { return call<&grid_source_impl::azimuth>(grid_); }

std::int32_t grid_datasource::sample_type(std::int64_t band) const {
  return call<&grid_source_impl::sample_type>(grid_, band);
}

std::int32_t grid_datasource::color_role(std::int64_t band) const {
  return call<&grid_source_impl::color_role>(grid_, band);
}

std::int64_t grid_datasource::find_band_of_role(std::int32_t role) const {
  std::int64_t count = number_of_fields();
  for (std::int64_t band = 0; band < count; ++band)
    if (color_role(band) == role) return band;
  return -1;
}

bool grid_datasource::get_block(std::int64_t band, owned_block& out) const {
  grid_block_visitor visitor(out);
  return call<&grid_source_impl::block>(grid_, band, visitor.self()) && out.get();
}

bool grid_datasource::get_row_ids(owned_block& out) const {
  grid_block_visitor visitor(out);
  return call<&grid_source_impl::row_ids>(grid_, visitor.self()) && out.get();
}

bool grid_datasource::get_palette(std::int64_t band, owned_palette& out) const {
  grid_palette_visitor visitor(out);
  return call<&grid_source_impl::palette>(grid_, band, visitor.self()) && out.get();
}

}  // namespace zu::data
