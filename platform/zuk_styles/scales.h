#pragma once
// The two scales. Changing a scale ends its look-up.

#include <memory>
#include <string>
#include <vector>

#include "platform/zuk_styles/scale_lookup.h"

namespace zu::platform {

/// A row of new scales: visible, a middle gray, selected in yellow.
Tzu_scale_prm new_row();

/// Rows keep their addresses while their scale lives and no row is taken away.
using row_ptr = std::unique_ptr<Tzu_scale_prm>;
row_ptr make_row(const Tzu_scale_prm& like);

struct range_class {
  double minimum = 0.0, maximum = 0.0;
  row_ptr row = make_row(new_row());
};

struct range_scale : Tzu_rng_scale {
  range_scale();
  range_scale& operator=(const range_scale& other);
  void resize(std::size_t size);
  void begin_find();
  void end_find();
  void forget();  ///< ends all look-ups; called before a change

  std::vector<range_class> classes;
  double minimum = 0.0, maximum = 0.0;  // of the tails
  Tzu_scale_prm lower, upper, other;

 private:
  void prepare();
  scale_lookup prepared_;
  int runs_ = 0;
};

struct value_class {
  std::wstring text;
  row_ptr row = make_row(new_row());
};

struct value_scale : Tzu_val_scale {
  value_scale();
  value_scale& operator=(const value_scale& other);
  void resize(std::size_t size);
  void begin_find();
  void end_find();
  void forget();  ///< ends all look-ups; called before a change

  std::vector<value_class> classes;
  Tzu_scale_prm other;

 private:
  void prepare();
  scale_lookup prepared_;
  int runs_ = 0;
};

}  // namespace zu::platform
