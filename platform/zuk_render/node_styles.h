#pragma once
// Which style of a manager a node of a coordinate layer is drawn with.

#include <cstdint>
#include <deque>
#include <vector>

#include "platform/zuk_calculator/filter.h"
#include "platform/zuk_tos_lr2d/coord_layer.h"
#include "zu/platform/zuk_styles.h"

namespace zu::platform {

/// The fields that conditions name, some nodes at a time.
class named_columns {
 public:
  explicit named_columns(data_source source) : source_(source) {}
  /// Number of a field's column; of one that is not there a column without values.
  std::size_t add(const std::wstring& field);
  void read(std::uint64_t start, std::size_t count);
  double at(std::size_t column, std::size_t node) const { return columns_[column].run[node]; }

 private:
  struct column {
    column(data_source source, const std::wstring& name);
    std::wstring field;
    node_column values;
    std::vector<double> run;
  };

  data_source source_;
  std::deque<column> columns_;
};

/// A rule whose constants are ready to be compared.
class node_rule {
 public:
  node_rule(const calc_filter& filter, named_columns& columns);
  bool holds(const named_columns& columns, std::size_t node) const;

 private:
  struct comparison {
    bool with_those_before;
    Tzu_calc_operator by;
    std::size_t column;
    std::wstring text;
    double number;  ///< NaN if the text is to be compared
  };
  static bool is_true(const comparison& c, double value);

  std::vector<comparison> comparisons_;
};

class node_styles {
 public:
  node_styles(Tzu_stl_mngr* manager, data_source source);
  ~node_styles();
  node_styles(const node_styles&) = delete;
  node_styles& operator=(const node_styles&) = delete;

  /// Makes the nodes from `start` ready; false if nothing can be styled.
  bool read(std::uint64_t start, std::size_t count);
  /// Null if the node does not show.
  Tzu_stl_prm* at(std::size_t node) const;

 private:
  struct rule_row {
    node_rule rule;
    Tzu_scale_prm* row;
  };
  Tzu_scale_prm* row_by_rule(std::size_t node) const;

  Tzu_stl_mngr* manager_;
  std::int32_t mode_;
  node_column values_;
  std::vector<double> run_;
  named_columns columns_;
  std::vector<rule_row> rules_;
};

}  // namespace zu::platform
