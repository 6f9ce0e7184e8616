#pragma once
// A data source opened for a look at what it holds.

#include <optional>
#include <string>
#include <vector>

#include "zu/data_source.h"
#include "zu/platform/zuk_datasource.h"

namespace zu::host {

struct field {
  std::string name;
  std::int32_t role;
  Tzu_field_info info;
};

class source {
 public:
  /// Throws `failure` with the platform's reason if it will not open.
  explicit source(const std::string& name);
  ~source();
  source(const source&) = delete;
  source& operator=(const source&) = delete;

  handle get() const { return opened_; }
  grid_source grid() const { return grid_; }
  const std::string& name() const { return name_; }
  const std::vector<field>& fields() const { return fields_; }
  /// Index of a field by its exact name, else of the first that differs in case alone; nothing if
  /// there is none.
  std::optional<std::size_t> find(const std::string& name) const;
  /// The field that is coloured where none is named: the first without a colour role, else the
  /// first.
  std::size_t default_field() const;
  std::string projection() const;

  /// Least and greatest value of a field: stored, else read; of a large grid an estimate.
  /// Nothing if there is no value.
  std::optional<Tzu_field_stat> limits(std::size_t field) const;

 private:
  std::string name_;
  handle opened_;
  grid_source grid_;
  std::vector<field> fields_;
};

}  // namespace zu::host
