#include "host/desktop/realiser/marked_part.h"

#include <algorithm>

namespace zu::desktop {
namespace {

std::uint32_t characters_before(const QString& text, int position) {
  auto wide = text.left(position).toStdU32String();
  return std::uint32_t(wide.size());
}
int position_of(const QString& text, std::uint32_t character) {
  auto wide = text.toStdU32String();
  wide.resize(std::min<std::size_t>(character, wide.size()));
  return int(QString::fromStdU32String(wide).size());
}

}  // namespace

void marked_part::tell(const QString& text, int begin, int end) {
  if (!selection_) return;
  auto first = characters_before(text, begin), last = characters_before(text, end);
  if (call<&text_selection_impl::begin>(selection_) == first &&
      call<&text_selection_impl::end>(selection_) == last)
    return;
  call<&text_selection_impl::select>(selection_, first, last);
}

std::optional<std::pair<int, int>> marked_part::asked(const QString& text) const {
  if (!selection_) return {};
  int begin = position_of(text, call<&text_selection_impl::begin>(selection_));
  int end = position_of(text, call<&text_selection_impl::end>(selection_));
  return std::minmax(begin, end);
}

}  // namespace zu::desktop
