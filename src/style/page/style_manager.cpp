#include "src/style/page/style_manager.h"

namespace zu::style {

template <class style_traits>
style_manager<style_traits>::style_manager(const std::wstring& context)
    : values_(context), ranges_(context), rules_(context) {
  connections_.push_back(mode_.selected.connect([this](std::int32_t) { mode_chosen(); }));
  simple_.on_change = [this] { changed(); };
  simple_.on_import = [this] { legend_imported(); };
  connect(values_);
  connect(ranges_);
  connect(rules_);
  mode_line_.place(mode_).set_column_stretch(1);
  pages_.place(simple_).place(values_).place(ranges_).place(rules_);
  root_.place(mode_line_).place(pages_).set_row_stretch(1);
}

template <class style_traits>
template <class page>
void style_manager<style_traits>::connect(page& p) {
  p.on_change = [this] { changed(); };
  p.on_interpolate = [this](bool on) {
    assign_interpolate(on);
    if (on_interpolate) on_interpolate(on);
  };
  connections_.push_back(p.scale().changed.connect([this] {
    if (!is_setting_) changed();
  }));
}

template <class style_traits>
void style_manager<style_traits>::set(const data::open_reference& source, Tzu_stl_mngr* mngr) {
  is_setting_ = true;
  mngr_ = mngr;
  source_ = source;
  mode_.set(mngr);
  show_page();
  simple_.set(mngr);
  const bool shows_interpolate = static_cast<bool>(on_interpolate);
  auto set_page = [&](auto& page) {
    page.show_interpolate(shows_interpolate);
    page.set(source, mngr);
  };
  set_page(values_);
  set_page(ranges_);
  set_page(rules_);
  is_setting_ = false;
}

template <class style_traits> void style_manager<style_traits>::set_enabled(std::uint32_t state) {
  const bool enabled = state != 0;
  mode_.set_enabled(enabled);
  simple_.set_enabled(enabled);
  values_.set_enabled(enabled);
  ranges_.set_enabled(enabled);
  rules_.set_enabled(enabled);
}

template <class style_traits>
void style_manager<style_traits>::assign_interpolate(bool interpolate) {
  values_.assign_interpolate(interpolate);
  ranges_.assign_interpolate(interpolate);
  rules_.assign_interpolate(interpolate);
}

template <class style_traits> void style_manager<style_traits>::show_page() {
  if (mngr_ == nullptr) return;
  pages_.assign(static_cast<std::uint32_t>(zu_stl_mngr_get_mode(mngr_)));
}

template <class style_traits> void style_manager<style_traits>::mode_chosen() {
  show_page();
  // A scale that nobody has filled yet would draw nothing.
  if (zu_stl_mngr_get_mode(mngr_) == zu_style_value) values_.fill_if_empty(ranges_.scale().field());
  if (zu_stl_mngr_get_mode(mngr_) == zu_style_range) ranges_.fill_if_empty(values_.scale().field());
  changed();
}

template <class style_traits> void style_manager<style_traits>::legend_imported() {
  set(source_, mngr_);
  mode_.selected(mode_.current());
}

template class style_manager<color_style_traits>;
template class style_manager<point_style_traits>;
template class style_manager<line_style_traits>;

}  // namespace zu::style
