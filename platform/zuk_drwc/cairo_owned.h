#pragma once
// Owners of Cairo's objects.

#include <cairo.h>

#include <memory>

namespace zu::platform {

struct cairo_ended {
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
  void operator()(cairo_t* context) const { cairo_destroy(context); }
};
using surface_ptr = std::unique_ptr<cairo_surface_t, cairo_ended>;
using cairo_ptr = std::unique_ptr<cairo_t, cairo_ended>;

}  // namespace zu::platform
