#include "host/core/source.h"

#include "host/core/failure.h"
#include "host/core/texts.h"
#include "zu/platform/zuk_os.h"

namespace zu::host {
namespace {

/// Default styling of a larger grid takes a sample of it.
constexpr double most_cells_read_whole = 16e6;
constexpr std::uint64_t sampled_cells = 1000000;

}  // namespace

source::source(const std::string& name) : name_(name) {
  std::wstring path = wide_name(name);
  zu_problems_clear(path.c_str());
  zu_datasource_open(path.c_str(), 1, nullptr, &opened_);
  grid_ = cast<grid_source_impl>(opened_);
  if (!opened_ || !grid_) {
    std::vector<std::string> why = reasons(path, zu_problem_open);
    call<&data_source_impl::release>(opened_);
    throw failure(name, why.empty() ? "cannot be opened" : why.back());
  }
  std::int64_t count = call<&data_source_impl::field_count>(opened_);
  for (std::int64_t i = 0; i < count; ++i) {
    kept_text text;
    call<&data_source_impl::field_name>(opened_, i, text.visitor());
    field found{narrow(text.get()), call<&grid_source_impl::color_role>(grid_, i), {}};
    zu_datasource_get_field_info(opened_, i, &found.info);
    fields_.push_back(found);
  }
}

source::~source() { call<&data_source_impl::release>(opened_); }

std::optional<std::size_t> source::find(const std::string& name) const {
  for (std::size_t i = 0; i < fields_.size(); ++i)
    if (fields_[i].name == name) return i;
  for (std::size_t i = 0; i < fields_.size(); ++i)
    if (zu_os_compare_ignoring_case(wide(fields_[i].name).c_str(), wide(name).c_str()) == 0)
      return i;
  return {};
}

std::size_t source::default_field() const {
  for (std::size_t i = 0; i < fields_.size(); ++i)
    if (fields_[i].role == role_none) return i;
  return 0;
}

std::string source::projection() const {
  kept_text text;
  call<&data_source_impl::get_projection>(opened_, text.visitor());
  return narrow(text.get());
}

std::optional<Tzu_field_stat> source::limits(std::size_t field) const {
  const Tzu_field_info& info = fields_.at(field).info;
  if (info.has_stat)
    return Tzu_field_stat{info.minimum, info.maximum, info.mean, info.stddev, 0, false};
  std::int32_t sizes[3] = {0, 0, 0};
  call<&grid_source_impl::sizes>(grid_, sizes);
  bool whole = static_cast<double>(sizes[0]) * sizes[1] * sizes[2] <= most_cells_read_whole;
  Tzu_field_stat stat{};
  if (!zu_datasource_compute_stat(opened_, static_cast<std::int64_t>(field),
                                  whole ? 0 : sampled_cells, nullptr, nullptr, &stat) ||
      stat.count == 0)
    return {};
  return stat;
}

}  // namespace zu::host
