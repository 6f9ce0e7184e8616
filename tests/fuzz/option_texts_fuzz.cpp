// Any text as the value of an option: refused as bad usage, or read into what the option promises.
// The first byte chooses the option.

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "host/cli/commands.h"
#include "host/cli/option_texts.h"

using namespace zu::cli;

namespace {

void require(bool kept) {
  if (!kept) std::abort();
}

void expect_rising(const std::vector<double>& numbers, std::size_t least) {
  require(numbers.size() >= least);
  for (std::size_t i = 0; i < numbers.size(); ++i)
    require(std::isfinite(numbers[i]) && (i == 0 || numbers[i - 1] < numbers[i]));
}

void read(unsigned option, const std::string& text) {
  switch (option % 10) {
    case 0:
      return require(std::isfinite(number_of("--option", text)));
    case 1:
      for (double number : numbers_of("--option", text)) require(std::isfinite(number));
      return;
    case 2:
      return require(!colors_of("--colors", text).empty());
    case 3: {
      auto [width, height] = size_of("--size", text);
      return require(width >= 1 && width <= 32767 && height >= 1 && height <= 32767);
    }
    case 4: {
      Tzu_box_d2 box = box_of("--extent", text);
      return require(box.x0 < box.x1 && box.y0 < box.y1);
    }
    case 5: {
      auto [low, high] = limits_of("--limits", text);
      return require(low < high);
    }
    case 6:
      return expect_rising(breaks_of("--breaks", text), 2);
    case 7:
      for (const auto& [value, color] : values_of("--values", text))
        require(std::isfinite(number_of("--values", value)));
      return;
    case 8:
      hillshade_of("--hillshade", text);
      return;
    default:
      isolines_of("--isolines", text);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  try {
    read(data[0], std::string(reinterpret_cast<const char*>(data) + 1, size - 1));
  } catch (const usage_error& refused) {
    require(*refused.what() != '\0');
  }
  return 0;
}
