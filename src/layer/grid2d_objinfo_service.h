#pragma once
// What a grid layer has at a point: the cell whose low corner is the node below the point.

#include <string>
#include <utility>
#include <vector>

#include "zu/objinfo.h"

namespace zu {

namespace toolkit {

/// Names and values of one object, kept by whoever asked.
class objinfo_object_values : public objinfo_object_impl {
 public:
  using pairs = std::vector<std::pair<std::wstring, std::wstring>>;
  explicit objinfo_object_values(const pairs& values) : values_(values) {}
  void get_values(objinfo_values_visitor visitor) override;

 private:
  const pairs& values_;
};

}  // namespace toolkit

class grid2d_objinfo_service : public referent<objinfo_service_impl> {
 public:
  using referent::referent;
  void get_object_info(Izu_layer* layer, double x, double y, void* context,
                       objinfo_visitor visitor) override;
};

}  // namespace zu
