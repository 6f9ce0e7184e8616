#pragma once
// The record of a scene's profile.

#include "platform/zuk_prg/vertices.h"

struct Tzu_prf_data {
  bool is_profile = false;
  double axes_scale = 1;
  Tzu_pv_d2 line;
  struct corner {
    double x = 0, y = 0, z = 0;
  } low, high;
};
