// The fonts of the system.

#include <pango/pangocairo.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_basic/text_of.h"
#include "platform/zuk_basic/utf8.h"
#include "zu/platform/zuk_drwc.h"

using zu::platform::guarded;

namespace {

struct released {
  void operator()(PangoContext* context) const { g_object_unref(context); }
  void operator()(PangoFont* font) const { g_object_unref(font); }
  void operator()(PangoCoverage* coverage) const { g_object_unref(coverage); }
  void operator()(PangoFontDescription* font) const { pango_font_description_free(font); }
  void operator()(PangoFontFamily** families) const { g_free(families); }
};
template <class object> using held = std::unique_ptr<object, released>;

/// The font itself, or the one that stands in for it.
held<PangoFont> font_of(const std::string& family) {
  held<PangoContext> context(pango_font_map_create_context(pango_cairo_font_map_get_default()));
  held<PangoFontDescription> wanted(pango_font_description_new());
  pango_font_description_set_family(wanted.get(), family.c_str());
  pango_font_description_set_size(wanted.get(), 10 * PANGO_SCALE);
  return held<PangoFont>(pango_context_load_font(context.get(), wanted.get()));
}

bool is_seen(gunichar c) { return g_unichar_isgraph(c) && !g_unichar_ismark(c); }

}  // namespace

void zu_fnt_type_list(Tzu_wstrings* names) {
  guarded(names, [](Tzu_wstrings& list) {
    PangoFontFamily** given = nullptr;
    int count = 0;
    pango_font_map_list_families(pango_cairo_font_map_get_default(), &given, &count);
    held<PangoFontFamily*> families(given);
    std::vector<std::wstring> found;
    found.reserve(count);
    for (int i = 0; i < count; ++i)
      found.push_back(zu::platform::from_utf8(pango_font_family_get_name(given[i])));
    std::sort(found.begin(), found.end());
    found.erase(std::unique(found.begin(), found.end()), found.end());
    for (const std::wstring& name : found) zu_wstrings_add(&list, name.c_str());
  });
}

void zu_fnt_type_list_characters(const Tzu_fnt_type* font, Tzu_ints* characters) {
  guarded(characters, [&](Tzu_ints& list) {
    std::wstring family =
        zu::platform::text_of([&](Tzu_string_adp* a) { zu_fnt_type_get_wname(font, a); });
    held<PangoFont> found = font_of(zu::platform::to_utf8(family));
    if (!found) return;
    held<PangoCoverage> coverage(
        pango_font_get_coverage(found.get(), pango_language_get_default()));
    constexpr int last = 0x10FFFF;
    for (int c = '!'; c <= last; ++c)
      if (pango_coverage_get(coverage.get(), c) == PANGO_COVERAGE_EXACT &&
          is_seen(static_cast<gunichar>(c)))
        zu_ints_add(&list, c);
  });
}
