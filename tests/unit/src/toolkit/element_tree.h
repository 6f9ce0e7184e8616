#pragma once
// A dialog as a host sees it: the elements of a docker, in the order of their cells.

#include "tests/unit/src/toolkit/fake_views.h"

namespace tests {

using namespace zu;

inline void gather(handle element, std::vector<handle>& all) {
  auto layout = cast<grid_layout_impl>(element);
  if (auto frame = cast<groupbox_impl>(element))
    layout = cast<grid_layout_impl>(call<&groupbox_impl::layout>(frame));
  if (!layout) {
    all.push_back(element);
    return;
  }
  for (std::uint32_t row = 0; row < call<&grid_layout_impl::row_count>(layout); ++row)
    for (std::uint32_t column = 0; column < call<&grid_layout_impl::column_count>(layout);
         ++column) {
      element_taker taker;
      call<&grid_layout_impl::visit_cell>(layout, column, row, taker.visitor());
      if (taker.only()) gather(taker.only(), all);
    }
}

/// All but layouts, from a docker.
inline std::vector<handle> elements_of(handle shown) {
  element_taker taker;
  call<&docker_impl::visit_element>(cast<docker_impl>(shown), taker.visitor());
  std::vector<handle> all;
  if (taker.only()) gather(taker.only(), all);
  return all;
}

/// The n-th element of interface `impl`, from 0; empty if there are fewer.
template <class impl> of<impl> find(const std::vector<handle>& elements, int n = 0) {
  for (handle element : elements)
    if (auto found = cast<impl>(element); found && n-- == 0) return found;
  return {};
}

}  // namespace tests
