// Any text as the stored text of a filter: refused, or a filter whose own text is read as the same
// filter. A text that begins with a 1 is the field and the constant of a condition instead.

#include <cstdint>
#include <cstdlib>
#include <string>

#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_calculator/filter.h"

using zu::platform::calc_filter;

namespace {

void require(bool kept) {
  if (!kept) std::abort();
}

void expect_same_again(const calc_filter& filter) {
  auto again = calc_filter::from_stored_text(filter.stored_text());
  require(again.has_value());
  require(again->stored_text() == filter.stored_text());
  require(again->readable_text() == filter.readable_text());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  std::string bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
  std::wstring text = zu::platform::from_utf8(bytes.c_str());
  if (data[0] == '1') {
    calc_filter filter;
    filter.add({true, true, text, zu_calc_less, zu_calc_text, text});
    filter.add({false, true, L"z", zu_calc_equal, zu_calc_number, text});
    expect_same_again(filter);
  } else if (auto filter = calc_filter::from_stored_text(text)) {
    expect_same_again(*filter);
  }
  return 0;
}
