#pragma once
// The common front of every data source: its fields and what is known of them. A source is asked
// first; what it does not know is computed by reading all rows, and remembered for the life of the
// object, whatever happens to the data.

#include <map>
#include <set>
#include <string>
#include <vector>

#include "zu/data_source.h"
#include "zu/platform/zuk_datasource.h"
#include "zu/platform/zuk_msgs.h"
#include "zu/platform/zuk_prg.h"
#include "zu/platform/zuk_stat.h"

namespace zu::data {

/// What the rest of the system hands around to mean a source.
struct open_reference {
  std::wstring name;
  void* word = nullptr;  ///< of the one who made the reference
  Tzu_datasource_opener opener = nullptr;
  void* argument = nullptr;  ///< for the opener
};

enum open_mode { open_read_only = 0, open_read_write = 1, open_write_if_possible = 2 };

/// What was computed of a field.
struct field_statistics {
  double minimum = 0.0, maximum = 0.0, mean = 0.0, stddev = 0.0;
  std::uint64_t count = 0;     ///< valid values
  std::uint64_t distinct = 0;  ///< distinct valid values
  bool basic_done = false, stddev_done = false, distinct_done = false;
};

/// Texts of the first field, each with the texts of the others.
using group_map = std::map<std::wstring, std::vector<std::wstring>>;

class generic_datasource {
 public:
  generic_datasource() = default;
  generic_datasource(const generic_datasource&) = delete;
  generic_datasource& operator=(const generic_datasource&) = delete;

  // By kind of source; here a grid on the same source answers, if it is one.
  virtual ~generic_datasource();
  virtual void compute_basic_stat(std::int64_t field, field_statistics& record);
  virtual void compute_stddev(std::int64_t field, field_statistics& record);
  virtual void count_unique(std::int64_t field, field_statistics& record);
  virtual bool bind(const std::wstring& name, int mode);
  virtual void unbind();
  virtual bool field_values(std::int64_t field, std::vector<double>& out);
  virtual bool field_value_texts(std::int64_t field, std::vector<std::wstring>& out);
  virtual bool field_groups(const std::vector<std::int64_t>& fields, std::int64_t limit,
                            group_map& out);
  /// `limit` -1: none. A reader may overshoot it.
  virtual bool field_unique_numbers(std::int64_t field, std::int64_t limit, std::set<double>& out);
  virtual bool field_unique_texts(std::int64_t field, std::int64_t limit,
                                  std::vector<std::wstring>& out);

  /// Opens and binds; the object then owns the source.
  bool open(const open_reference& reference, int mode);
  /// Takes a source that somebody else opened and will release, and binds it.
  virtual bool attach(handle source);

  std::int64_t number_of_fields() const;
  std::wstring field_name(std::int64_t index) const;
  /// By the exact name, else by the first that agrees ignoring case; -1 if there is none.
  std::int64_t find_field(const std::wstring& name) const;
  bool extent(Tzu_box_d2& box, bool force) const;
  std::wstring projection() const;
  bool set_projection(const std::wstring& text);
  /// The base, or with a counter behind it if a field has that name.
  std::wstring unique_field_name(const std::wstring& base) const;

  double field_minimum(std::int64_t field);
  double field_maximum(std::int64_t field);
  double field_mean(std::int64_t field);
  double field_stddev(std::int64_t field);
  std::uint64_t field_count(std::int64_t field);  ///< valid values
  /// Whether the source keeps least, greatest value, mean and deviation itself.
  bool knows_statistics(std::int64_t field) const;
  /// Has the platform read a field in one pass, so that the five above know it: all of it, or, if
  /// it has more than `most` cells (0: no limit), a sample. The window of `progress`, which may be
  /// null, shows it. False if it was stopped, or if the source is none of the platform's.
  bool read_statistics(std::int64_t field, std::uint64_t most, Tzu_progress* progress);
  void fill_stat(Tzu_stat* stat, std::int64_t field);
  bool field_histogram(std::int64_t field, Tzu_histogramm_data* out);
  /// With the field's limits; valid if the source gives one.
  void fill_histogram(Tzu_stat* stat, std::int64_t field);
  /// The same by one pass of the platform's, with a window; false as above.
  bool read_histogram(Tzu_stat* stat, std::int64_t field, Tzu_progress* progress);
  bool field_unique_values(std::int64_t field, std::int64_t limit, std::set<double>& out);
  bool field_unique_values(std::int64_t field, std::int64_t limit, std::vector<std::wstring>& out);

  /// The window that shows how far a reading of all rows is, from now on; null is none. A reading
  /// that a person stops there fails.
  void show_in(Tzu_progress* progress) { progress_ = progress; }

 protected:
  /// Shows a share of such a reading; false when the person stopped it.
  bool show(std::uint64_t done, std::uint64_t total);

  data_source source_;
  stat_source stat_;

 private:
  using known_value = bool (stat_source_impl::*)(std::int64_t, double*);
  field_statistics& basic(std::int64_t field);

  bool owns_source_ = false;
  Tzu_progress* progress_ = nullptr;
  std::map<std::int64_t, field_statistics> dictionary_;
};

/// A progress window for readings of a source, for the time of its life.
class shown_reading {
 public:
  explicit shown_reading(generic_datasource& source)
      : source_(source), progress_(zu_progress_create(1)) {
    source_.show_in(progress_);
  }
  ~shown_reading() {
    source_.show_in(nullptr);
    zu_progress_destroy(progress_);
  }
  shown_reading(const shown_reading&) = delete;
  shown_reading& operator=(const shown_reading&) = delete;

 private:
  generic_datasource& source_;
  Tzu_progress* progress_;
};

/// A number as the texts of fields have it: "%.15lg", with a point in every locale.
std::wstring number_text(double value);

}  // namespace zu::data
