#pragma once
// Classes of scales from the data of a field, for a host without dialogs.

#include "zu/referent.h"

extern "C" {
struct Tzu_rng_scale;
struct Tzu_val_scale;
}

namespace zu {

/// How the classes of a range scale are made.
struct class_request {
  std::int32_t method = 0;    ///< 0 equal, 1 deviation, 2 logarithmic, 3 quantile, 4 natural, 5
                              ///< geometrical
  std::uint32_t count = 10;   ///< of classes; the logarithmic method has its own
  std::int32_t digits = -30;  ///< boundaries are multiples of ten to this power; -30: as they come
  double minimum = 0, maximum = 0;
  bool has_minimum = false, has_maximum = false;  ///< without one it is the field's
  double coefficient = 1;                         ///< deviations from the mean to the outer limits
  std::int32_t start = 0;  ///< index into {1, 2, 5} of the first logarithmic boundary
  std::int32_t power = 0;  ///< of ten in it
  bool has_power = false;  ///< without one it is such that the classes are about ten
  bool two_sided = false;  ///< logarithmic boundaries below zero too
  std::uint32_t seed = 0;  ///< of the sample of natural breaks
  bool has_seed = false;   ///< without one the sample is another each time
};

/// Sources are named as `zu_datasource_open` takes them; reasons of a failure are kept there.
struct class_builder_service_impl : counted_interface<class_builder_service_impl> {
  static constexpr char name[] = "zu_class_builder_service_interface_0";
  /// Boundaries and captions of the scale's rows; their styles stay. False, and nothing changed, if
  /// the source does not open, has no such field or no values in it, or the method is none of
  /// those.
  virtual bool build(Tzu_rng_scale*, const wchar_t* /*source*/, const wchar_t* /*field*/,
                     const class_request*) {
    return false;
  }
  /// A row for each value of the field, in the order of their texts, at most `limit`, with its
  /// caption. `all` says whether those are all values. False, and nothing changed, as above.
  virtual bool fill_values(Tzu_val_scale*, const wchar_t* /*source*/, const wchar_t* /*field*/,
                           std::int64_t /*limit*/, bool* /*all*/) {
    return false;
  }
  using operations =
      in_order<&class_builder_service_impl::build, &class_builder_service_impl::fill_values>;
};
using class_builder_service = of<class_builder_service_impl>;

struct class_builder_service_visitor_impl : plain_interface<class_builder_service_visitor_impl> {
  static constexpr char name[] = "zu_class_builder_service_visitor_interface_0";
  virtual void visit(class_builder_service) {}
  using operations = in_order<&class_builder_service_visitor_impl::visit>;
};

}  // namespace zu
