#pragma once
// Options that say how classes are made of the values of a field.

#include <CLI/CLI.hpp>

#include <cstdint>
#include <optional>
#include <string>

#include "zu/classes.h"

namespace zu::cli {

/// The options as they are written.
struct class_texts {
  std::string method, coefficient, start, minimum, maximum;
  std::optional<std::uint32_t> count, seed;
  std::optional<std::int32_t> digits, power;
  bool two_sided = false;

  bool any_but_method() const {
    return count || seed || digits || power || two_sided || !coefficient.empty() ||
           !start.empty() || !minimum.empty() || !maximum.empty();
  }
};

/// Adds them; `method` is the name of the option of the method. Gives that option.
CLI::Option* add_class_options(CLI::App& options, const std::string& method, class_texts& given);

/// Throws `usage_error` for numbers that are none and for what does not go with the method.
class_request request_of(const class_texts& given);

}  // namespace zu::cli
