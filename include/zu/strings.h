#pragma once
// Texts and raw bytes across the border: the callee calls a visitor of the caller. What a visitor
// gets lives only during the call.

#include <cstdint>

#include "zu/handle.h"

namespace zu {

struct string_visitor_impl : plain_interface<string_visitor_impl> {
  static constexpr char name[] = "zu_string_visitor_interface_0";
  virtual void visit(const wchar_t* /*text*/) {}
  using operations = in_order<&string_visitor_impl::visit>;
};
using string_visitor = of<string_visitor_impl>;

/// Receives a picture: `height` rows of `row_bytes` bytes, `channels` of them interleaved.
struct bytes_visitor_impl : plain_interface<bytes_visitor_impl> {
  static constexpr char name[] = "zu_thrice_interleaved_bytes_visitor_interface_0";
  virtual void visit(std::uint64_t /*height*/, std::uint64_t /*row_bytes*/, std::uint64_t /*width*/,
                     std::uint64_t /*bytes_per_pixel*/, std::uint64_t /*channels*/,
                     std::uint64_t /*interleave*/, const std::uint8_t* /*pixels*/) {}
  using operations = in_order<&bytes_visitor_impl::visit>;
};
using bytes_visitor = of<bytes_visitor_impl>;

}  // namespace zu
