#pragma once
// What plot layers hold.

#include <vector>

#include "platform/zuk_lr2d/own_state.h"

namespace zu::platform {

class plot_state : public own_state {
 public:
  explicit plot_state(const char* type) : manager(zu_stl_mngr_create(type)) {}
  Tzu_stl_mngr* style_manager() override { return manager.get(); }
  bool reprojected() const override { return false; }
  // A plot is made anew by whoever shows it.
  void save(Tzu_xnode* /*node*/, void* /*context*/) const override {}
  void load(Tzu_xnode* /*node*/, void* /*context*/) override {}

  owned<zu_stl_mngr_destroy> manager;
};

class histogram_state final : public plot_state {
 public:
  histogram_state() : plot_state("pgn_mngr_style") {}

  struct bar {
    double low, high;  // values
    double height;     // of the tallest
  };
  std::vector<bar> bars;
};

class upright_lines_state final : public plot_state {
 public:
  upright_lines_state() : plot_state("pln_mngr_style") {}

  std::vector<double> places;
};

}  // namespace zu::platform
