#include "src/data/generic_datasource.h"

#include <algorithm>
#include <charconv>

#include "src/bundle/strings.h"
#include "src/data/grid_datasource.h"
#include "zu/platform/zuk_os.h"

namespace zu::data {
namespace {

/// Runs `ask` on a grid over the same source; nothing if it is none.
template <class function> bool by_grid(handle source, function&& ask) {
  grid_datasource grid;
  return grid.attach(source) && ask(grid);
}

class number_set_visitor : public floatings_visitor_impl {
 public:
  explicit number_set_visitor(std::set<double>& out) : out_(out) {}
  void visit(const double* numbers, std::uint64_t count) override {
    out_.insert(numbers, numbers + count);
  }

 private:
  std::set<double>& out_;
};

void set_counts(Tzu_histogramm_data* out, std::uint64_t classes, const std::int64_t* counts) {
  zu_histogramm_clear(out);
  zu_histogramm_set_params(out, classes);
  for (std::uint64_t i = 0; i < classes; ++i)
    zu_histogramm_set(out, i, static_cast<double>(counts[i]));
}

/// Shows a share of the work in a progress window; false when the person stopped it.
bool show_share(double share, void* progress) {
  constexpr std::int64_t whole = 100;
  auto* window = static_cast<Tzu_progress*>(progress);
  if (window == nullptr) return true;
  zu_progress_show64(window, static_cast<std::int64_t>(share * whole), whole);
  return !zu_progress_get_stopped(window);
}

class histogram_filler : public histogram_visitor_impl {
 public:
  explicit histogram_filler(Tzu_histogramm_data* out) : out_(out) {}
  void visit(std::uint64_t classes, const std::int64_t* counts) override {
    set_counts(out_, classes, counts);
  }

 private:
  Tzu_histogramm_data* out_;
};

}  // namespace

std::wstring number_text(double value) {
  char buffer[32];
  auto end = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 15);
  return {buffer, end.ptr};
}

generic_datasource::~generic_datasource() {
  if (owns_source_) call<&data_source_impl::release>(source_);
}

void generic_datasource::compute_basic_stat(std::int64_t field, field_statistics& record) {
  by_grid(source_, [&](grid_datasource& grid) {
    grid.compute_basic_stat(field, record);
    return true;
  });
}
void generic_datasource::compute_stddev(std::int64_t field, field_statistics& record) {
  by_grid(source_, [&](grid_datasource& grid) {
    grid.compute_stddev(field, record);
    return true;
  });
}
void generic_datasource::count_unique(std::int64_t field, field_statistics& record) {
  by_grid(source_, [&](grid_datasource& grid) {
    grid.count_unique(field, record);
    return true;
  });
}
bool generic_datasource::bind(const std::wstring&, int) { return true; }
void generic_datasource::unbind() {}
bool generic_datasource::field_values(std::int64_t field, std::vector<double>& out) {
  return by_grid(source_, [&](grid_datasource& g) { return g.field_values(field, out); });
}
bool generic_datasource::field_value_texts(std::int64_t field, std::vector<std::wstring>& out) {
  return by_grid(source_, [&](grid_datasource& g) { return g.field_value_texts(field, out); });
}
bool generic_datasource::field_groups(const std::vector<std::int64_t>& fields, std::int64_t limit,
                                      group_map& out) {
  return by_grid(source_, [&](grid_datasource& g) { return g.field_groups(fields, limit, out); });
}
bool generic_datasource::field_unique_numbers(std::int64_t field, std::int64_t limit,
                                              std::set<double>& out) {
  return by_grid(source_,
                 [&](grid_datasource& g) { return g.field_unique_numbers(field, limit, out); });
}
bool generic_datasource::field_unique_texts(std::int64_t field, std::int64_t limit,
                                            std::vector<std::wstring>& out) {
  return by_grid(source_,
                 [&](grid_datasource& g) { return g.field_unique_texts(field, limit, out); });
}

bool generic_datasource::open(const open_reference& reference, int mode) {
  auto open_with = [&](std::int32_t read_only) {
    handle opened;
    if (reference.opener != nullptr)
      reference.opener(reference.name.c_str(), read_only, reference.argument, &opened);
    return opened;
  };
  handle opened;
  if (mode == open_write_if_possible) {
    opened = open_with(0);
    if (!opened) opened = open_with(1);
  } else {
    opened = open_with(mode == open_read_only ? 1 : 0);
  }
  if (!opened) return false;
  source_ = data_source(opened);
  owns_source_ = true;
  stat_ = cast<stat_source_impl>(opened);
  return bind(reference.name, mode);
}

bool generic_datasource::attach(handle source) {
  source_ = data_source(source);
  stat_ = cast<stat_source_impl>(source);
  return static_cast<bool>(source);
}

std::int64_t generic_datasource::number_of_fields() const {
  return call<&data_source_impl::field_count>(source_);
}

std::wstring generic_datasource::field_name(std::int64_t index) const {
  std::wstring name;
  stdwstring_visitor visitor(name);
  call<&data_source_impl::field_name>(source_, index,
                                      string_visitor(handle_of<string_visitor_impl>(visitor)));
  return name;
}

std::int64_t generic_datasource::find_field(const std::wstring& name) const {
  if (name.empty()) return -1;
  std::int64_t index = -1;
  if (call<&data_source_impl::find_field>(source_, name.c_str(), &index)) return index;
  std::int64_t count = number_of_fields();
  for (index = 0; index < count; ++index)
    if (zu_os_compare_ignoring_case(field_name(index).c_str(), name.c_str()) == 0) return index;
  return -1;
}

bool generic_datasource::extent(Tzu_box_d2& box, bool force) const {
  double four[4] = {0, 0, 0, 0};
  bool known = call<&data_source_impl::extent>(source_, four, force);
  zu_box_d2_init_xy(&box, four[0], four[1], four[2], four[3]);
  return known;
}

std::wstring generic_datasource::projection() const {
  std::wstring text;
  stdwstring_visitor visitor(text);
  call<&data_source_impl::get_projection>(source_,
                                          string_visitor(handle_of<string_visitor_impl>(visitor)));
  return text;
}

bool generic_datasource::set_projection(const std::wstring& text) {
  return call<&data_source_impl::set_projection>(source_, text.c_str());
}

std::wstring generic_datasource::unique_field_name(const std::wstring& base) const {
  std::wstring candidate = base;
  std::int64_t count = number_of_fields();
  std::uint64_t counter = 0;
  for (std::int64_t i = 0; i < count;) {
    if (zu_os_compare_ignoring_case(field_name(i).c_str(), candidate.c_str()) == 0) {
      candidate = base + std::to_wstring(++counter);
      i = 0;
    } else {
      ++i;
    }
  }
  return candidate;
}

bool generic_datasource::show(std::uint64_t done, std::uint64_t total) {
  return progress_ == nullptr ||
         show_share(static_cast<double>(done) / static_cast<double>(total), progress_);
}

field_statistics& generic_datasource::basic(std::int64_t field) {
  field_statistics& record = dictionary_[field];
  if (!record.basic_done) compute_basic_stat(field, record);
  return record;
}

double generic_datasource::field_minimum(std::int64_t field) {
  double known = 0.0;
  return call<&stat_source_impl::minimum>(stat_, field, &known) ? known : basic(field).minimum;
}

double generic_datasource::field_maximum(std::int64_t field) {
  double known = 0.0;
  return call<&stat_source_impl::maximum>(stat_, field, &known) ? known : basic(field).maximum;
}

double generic_datasource::field_mean(std::int64_t field) {
  double known = 0.0;
  return call<&stat_source_impl::mean>(stat_, field, &known) ? known : basic(field).mean;
}

std::uint64_t generic_datasource::field_count(std::int64_t field) { return basic(field).count; }

double generic_datasource::field_stddev(std::int64_t field) {
  double known = 0.0;
  if (call<&stat_source_impl::stddev>(stat_, field, &known)) return known;
  field_statistics& record = basic(field);
  if (!record.stddev_done) compute_stddev(field, record);
  return record.stddev;
}

bool generic_datasource::knows_statistics(std::int64_t field) const {
  double value = 0.0;
  return call<&stat_source_impl::minimum>(stat_, field, &value) &&
         call<&stat_source_impl::maximum>(stat_, field, &value) &&
         call<&stat_source_impl::mean>(stat_, field, &value) &&
         call<&stat_source_impl::stddev>(stat_, field, &value);
}

bool generic_datasource::read_statistics(std::int64_t field, std::uint64_t most,
                                         Tzu_progress* progress) {
  Tzu_field_stat read = {};
  if (!zu_datasource_compute_stat(source_, field, most, &show_share, progress, &read)) return false;
  field_statistics& record = dictionary_[field];
  record.minimum = read.minimum, record.maximum = read.maximum;
  record.mean = read.mean, record.stddev = read.stddev;
  record.count = read.count;
  record.basic_done = record.stddev_done = true;
  return true;
}

void generic_datasource::fill_stat(Tzu_stat* stat, std::int64_t field) {
  zu_stat_set_minimum(stat, field_minimum(field));
  zu_stat_set_maximum(stat, field_maximum(field));
  zu_stat_set_average(stat, field_mean(field));
  zu_stat_set_stddev(stat, field_stddev(field));
}

bool generic_datasource::field_histogram(std::int64_t field, Tzu_histogramm_data* out) {
  histogram_filler visitor(out);
  return call<&stat_source_impl::histogram>(
      stat_, field, histogram_visitor(handle_of<histogram_visitor_impl>(visitor)));
}

void generic_datasource::fill_histogram(Tzu_stat* stat, std::int64_t field) {
  Tzu_histogramm_data* histogram = zu_stat_get_histogramm(stat, nullptr);
  bool given = field_histogram(field, histogram);
  if (given) zu_histogramm_set_limits(histogram, field_minimum(field), field_maximum(field));
  zu_stat_set_histogramm(stat, given);
}

bool generic_datasource::read_histogram(Tzu_stat* stat, std::int64_t field,
                                        Tzu_progress* progress) {
  double minimum = field_minimum(field), maximum = field_maximum(field);
  std::vector<std::int64_t> counts(
      zu_datasource_get_histogram_classes(source_, field, minimum, maximum));
  bool read = zu_datasource_compute_histogram(source_, field, counts.size(), minimum, maximum,
                                              &show_share, progress, counts.data());
  Tzu_histogramm_data* histogram = zu_stat_get_histogramm(stat, nullptr);
  if (read) {
    zu_histogramm_set_limits(histogram, minimum, maximum);
    set_counts(histogram, counts.size(), counts.data());
  }
  zu_stat_set_histogramm(stat, read);
  return read;
}

bool generic_datasource::field_unique_values(std::int64_t field, std::int64_t limit,
                                             std::set<double>& out) {
  number_set_visitor visitor(out);
  return call<&stat_source_impl::unique_numbers>(
             stat_, field, limit, floatings_visitor(handle_of<floatings_visitor_impl>(visitor))) ||
         field_unique_numbers(field, limit, out);
}

bool generic_datasource::field_unique_values(std::int64_t field, std::int64_t limit,
                                             std::vector<std::wstring>& out) {
  out.clear();
  stdwstring_list_visitor visitor(out);
  return call<&stat_source_impl::unique_texts>(
             stat_, field, limit, string_visitor(handle_of<string_visitor_impl>(visitor))) ||
         field_unique_texts(field, limit, out);
}

}  // namespace zu::data
