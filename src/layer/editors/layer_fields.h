#pragma once
// What the panels take from the source of a layer: a reference to it, and the choice of a field.

#include <string>
#include <vector>

#include "src/data/generic_datasource.h"
#include "src/toolkit/dropdown.h"
#include "src/toolkit/labeled.h"
#include "zu/platform/zuk_lr2d.h"

namespace zu::element {

/// The source of an entity; empty for null.
data::open_reference source_of(Izu_layer* layer);

/// A field of the source, or the one by which the layer is styled, which has no name.
class overlay_field : public toolkit::labeled_element<toolkit::dropdownex<std::wstring>> {
 public:
  overlay_field() : labeled_element(10651) { fill({}); }
  /// Offers the fields of a source and shows one of them; none if the source has no such field.
  void assign_field(const data::open_reference& source, const std::wstring& name);

 private:
  void fill(std::vector<std::wstring> names);

  std::vector<std::wstring> names_;
};

}  // namespace zu::element
