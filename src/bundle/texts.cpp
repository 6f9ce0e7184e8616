#include "src/bundle/texts.h"

#include <algorithm>
#include <iterator>

#include "src/bundle/localizer_client.h"
#include "src/bundle/strings.h"
#include "zu/platform/zuk_os.h"

namespace zu {
namespace {

constexpr std::int32_t english = 50000;  // the English twin of a text stands at this distance

struct text_row {
  std::int32_t id;
  const wchar_t* base;
  const wchar_t* english;  // null where there is none
};

constexpr text_row rows[] = {
#define ZU_TEXT(id, base, english) {id, base, english},
#include "resources/texts.def"
#undef ZU_TEXT
};

const wchar_t* find(std::int32_t id) {
  bool twin = id > english;
  std::int32_t base_id = twin ? id - english : id;
  auto row = std::lower_bound(std::begin(rows), std::end(rows), base_id,
                              [](const text_row& r, std::int32_t wanted) { return r.id < wanted; });
  if (row == std::end(rows) || row->id != base_id) return nullptr;
  return twin ? row->english : row->base;
}

}  // namespace

void get_text(std::int32_t id, string_visitor visitor) {
  if (localizer host = localizer_of_host()) {
    call<&localizer_impl::get_text>(host, id, visitor);
    return;
  }
  const wchar_t* text = find(id + zu_res_get_lng());
  if (text == nullptr) text = find(id);
  if (text != nullptr) call<&string_visitor_impl::visit>(visitor, text);
}

void get_text_of_basic(std::int32_t id, string_visitor visitor) {
  if (const wchar_t* text = zu_res_get_wstr(id)) call<&string_visitor_impl::visit>(visitor, text);
}

std::wstring load_text(std::int32_t id) {
  std::wstring text;
  stdwstring_visitor visitor(text);
  string_visitor receiver(handle_of<string_visitor_impl>(visitor));
  if (id > 0)
    get_text(id, receiver);
  else
    get_text_of_basic(-id, receiver);
  return text;
}

}  // namespace zu
