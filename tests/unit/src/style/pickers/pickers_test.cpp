#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "src/bundle/modal_dialog.h"
#include "src/bundle/strings.h"
#include "src/style/pickers/figure_dialog.h"
#include "src/style/pickers/figure_input.h"
#include "src/style/pickers/symbol_input.h"
#include "tests/unit/src/toolkit/element_tree.h"

namespace {

using namespace zu;

owned<zu_pnt_style_destroy> point_style() {
  return owned<zu_pnt_style_destroy>(zu_pnt_style_create());
}
Tzu_bpnt_style* point_of(const owned<zu_pnt_style_destroy>& style) {
  return zu_pnt_style_get_bpnt_style_ptr(style.get());
}

struct pixel_taker : bytes_visitor_impl {
  void visit(std::uint64_t height, std::uint64_t, std::uint64_t width, std::uint64_t, std::uint64_t,
             std::uint64_t, const std::uint8_t* pixels) override {
    all.assign(pixels, pixels + width * height * 4);
  }
  std::vector<std::uint8_t> all;
};

struct bitmap_taker : bitmap_visitor_impl {
  void visit(zu::bitmap shown) override {
    pixel_taker taker;
    call<&bitmap_impl::pixels>(shown, bytes_visitor(handle_of<bytes_visitor_impl>(taker)));
    pixels = taker.all;
  }
  bitmap_visitor visitor() { return bitmap_visitor(handle_of<bitmap_visitor_impl>(*this)); }
  std::vector<std::uint8_t> pixels;
};

/// Does something with a cell while it lives; false if there is none.
struct cell_user : grid_cell_visitor_impl {
  explicit cell_user(std::function<void(handle)> use) : use(std::move(use)) {}
  void visit(handle cell) override {
    use(cast<grid_bitmap_cell_impl>(cell));
    ++cells;
  }
  std::function<void(handle)> use;
  int cells = 0;
};

bool with_cell(handle grid, std::uint32_t column, std::uint64_t row,
               std::function<void(handle)> use) {
  cell_user user(std::move(use));
  call<&grid_impl::visit_cell>(grid, column, row,
                               grid_cell_visitor(handle_of<grid_cell_visitor_impl>(user)));
  return user.cells == 1;
}

void click(handle grid, std::uint32_t column, std::uint64_t row) {
  EXPECT_TRUE(
      with_cell(grid, column, row, [](handle c) { call<&grid_bitmap_cell_impl::click>(c); }));
}

std::wstring hint(handle grid, std::uint32_t column, std::uint64_t row) {
  std::wstring said;
  with_cell(grid, column, row, [&](handle c) {
    said = tests::text([&](auto v) { call<&grid_bitmap_cell_impl::hint>(c, v); });
  });
  return said;
}

std::vector<std::uint8_t> picture(handle grid, std::uint32_t column, std::uint64_t row) {
  bitmap_taker taker;
  with_cell(grid, column, row,
            [&](handle c) { call<&grid_bitmap_cell_impl::picture>(c, taker.visitor()); });
  return taker.pixels;
}

std::vector<handle> elements_in(handle root) {
  std::vector<handle> all;
  tests::gather(root, all);
  return all;
}

// --- Figures

TEST(figure_grid, has_a_cell_with_a_name_and_a_picture_for_each_figure) {
  tests::base_language base;
  style::figure_grid figures;
  handle shown = handle_of<grid_impl>(figures);
  ASSERT_EQ(call<&grid_impl::column_count>(shown), 8u);
  ASSERT_EQ(call<&grid_impl::row_count>(shown), 2u);
  EXPECT_EQ(hint(shown, 0, 0), L"Круг");
  EXPECT_EQ(hint(shown, 7, 1), L"Полукруг");
  std::vector<std::vector<std::uint8_t>> pictures;
  for (std::uint32_t i = 0; i < zu_figure_count; ++i)
    pictures.push_back(picture(shown, i % 8, i / 8));
  for (const auto& each : pictures) {
    EXPECT_EQ(each.size(), 24u * 24 * 4);
    EXPECT_TRUE(std::any_of(each.begin(), each.end(), [](auto byte) { return byte != 0; }));
  }
  std::sort(pictures.begin(), pictures.end());
  EXPECT_EQ(std::adjacent_find(pictures.begin(), pictures.end()), pictures.end());
}

TEST(figure_grid, a_click_and_the_keys_pick_and_assigning_tells_no_one) {
  style::figure_grid figures;
  handle shown = handle_of<grid_impl>(figures);
  int picks = 0;
  figures.on_pick = [&] { ++picks; };
  std::uint32_t column = 0;
  std::uint64_t row = 0;
  EXPECT_FALSE(call<&grid_impl::position>(shown, &column, &row));
  click(shown, 2, 1);
  EXPECT_EQ(figures.picked(), 10u);
  call<&grid_impl::move_to>(shown, 3u, std::uint64_t{1});
  EXPECT_EQ(figures.picked(), 11u);
  EXPECT_EQ(picks, 2);
  figures.assign(5);
  EXPECT_TRUE(call<&grid_impl::position>(shown, &column, &row));
  EXPECT_EQ(column, 5u);
  EXPECT_EQ(row, 0u);
  figures.assign(zu_figure_count);
  EXPECT_FALSE(figures.picked());
  EXPECT_EQ(picks, 2);
}

/// A host whose person does what a test says with the elements of a dialog.
struct person : modal_dialog_runner_impl {
  int run(handle docker) override {
    ++runs;
    std::vector<handle> shown = tests::elements_of(docker);
    act(tests::find<grid_impl>(shown));
    if (!accepts) return 0;
    return call<&button_box_impl::press>(tests::find<button_box_impl>(shown), 0) ? 1 : 0;
  }
  std::function<void(handle)> act;
  bool accepts = true;
  int runs = 0;
};

struct service_taker : modal_dialog_service_visitor_impl {
  void visit(modal_dialog_service found) override { service.reset(found); }
  strong_ref<modal_dialog_service_impl> service;
};

struct attaching : modal_dialog_visitor_impl {
  explicit attaching(modal_dialog_runner_impl& runner) : runner(runner) {}
  void visit(const wchar_t* id, modal_dialog dialog) override {
    EXPECT_STREQ(id, L"zu_common_figure_dialog");
    call<&modal_dialog_impl::attach_view>(dialog, handle_of<modal_dialog_runner_impl>(runner));
  }
  modal_dialog_runner_impl& runner;
};

struct figure_host {
  figure_host() {
    factory.create({}, handle_of<modal_dialog_service_visitor_impl>(taker));
    attaching visitor(user);
    call<&modal_dialog_service_impl::get_dialog>(taker.service.get(),
                                                 handle_of<modal_dialog_visitor_impl>(visitor));
  }
  util::detail::modal_dialog_service_factory<dialog::figure> factory;
  service_taker taker;
  person user;
};

TEST(figure_input, its_button_opens_the_dialog_and_takes_what_was_accepted) {
  figure_host host;
  style::figure_input input;
  int changes = 0;
  input.on_change = [&] { ++changes; };
  auto shown = point_style();
  zu_bpnt_style_set_figure(point_of(shown), zu_figure_star);
  input.assign(point_of(shown));
  EXPECT_EQ(input.figure(), zu_figure_star);
  auto press = [&] { call<&button_impl::press>(cast<button_impl>(input.element())); };
  std::uint32_t column = 0;
  std::uint64_t row = 0;
  host.user.act = [&](handle grid) {
    call<&grid_impl::position>(grid, &column, &row);
    click(grid, 1, 0);
  };
  host.user.accepts = false;
  press();
  EXPECT_EQ(column, 7u) << "it begins with the figure in force";
  EXPECT_EQ(input.figure(), zu_figure_star);
  EXPECT_EQ(changes, 0);
  host.user.accepts = true;
  press();
  EXPECT_EQ(input.figure(), zu_figure_square);
  EXPECT_EQ(changes, 1);
  press();
  EXPECT_EQ(changes, 1) << "the same figure again is no change";
  auto edited = point_style();
  zu_bpnt_style_set_use_figure(point_of(edited), false);
  input.apply_to(point_of(edited));
  EXPECT_TRUE(zu_bpnt_style_get_use_figure(point_of(edited)));
  EXPECT_EQ(zu_bpnt_style_get_figure(point_of(edited)), zu_figure_square);
  input.set_enabled(false);
  EXPECT_FALSE(call<&button_impl::enabled>(cast<button_impl>(input.element())));
}

TEST(figure_input, without_a_host_nothing_opens) {
  style::figure_input input;
  call<&button_impl::press>(cast<button_impl>(input.element()));
  std::int32_t number = 3;
  EXPECT_FALSE(dialog::figure::run(&number));
  EXPECT_EQ(number, 3);
}

TEST(figure_input, its_button_shows_the_figure) {
  style::figure_input input;
  auto shown = [&] {
    bitmap_taker taker;
    handle image = call<&button_impl::image>(cast<button_impl>(input.element()));
    call<&image_impl::picture>(image, taker.visitor());
    return taker.pixels;
  };
  std::vector<std::uint8_t> circle = shown();
  auto star = point_style();
  zu_bpnt_style_set_figure(point_of(star), zu_figure_star);
  input.assign(point_of(star));
  EXPECT_EQ(circle.size(), 24u * 24 * 4);
  EXPECT_NE(shown(), circle);
}

// --- Characters

struct shown_symbol {
  style::symbol_input input;
  std::vector<handle> elements = elements_in(input.element());
  handle grid = tests::find<grid_impl>(elements);
  handle fonts = tests::find<dropdown_impl>(elements);
  int changes = 0;
  shown_symbol() {
    input.on_change = [this] { ++changes; };
  }
  std::wstring current() const {
    auto output = tests::find<output_impl>(elements);
    return tests::text([&](auto v) { call<&output_impl::text>(output, v); });
  }
  std::wstring font(std::int32_t index) const {
    return tests::text(
        [&](auto v) { call<&dropdown_impl::item_text>(fonts, std::uint32_t(index), v); });
  }
  std::int32_t index_of(const std::wstring& name) const {
    auto count = static_cast<std::int32_t>(call<&dropdown_impl::count>(fonts));
    for (std::int32_t i = 0; i < count; ++i)
      if (font(i) == name) return i;
    return -1;
  }
};

std::wstring font_of(const owned<zu_pnt_style_destroy>& style) {
  return text_of([&](Tzu_string_adp* a) {
    zu_fnt_type_get_wname(zu_bpnt_style_get_fnt_type(point_of(style)), a);
  });
}

TEST(symbol_input, shows_the_characters_of_the_font_and_takes_a_click) {
  shown_symbol shown;
  EXPECT_EQ(shown.font(call<&dropdown_impl::current>(shown.fonts)), L"DejaVu Sans");
  EXPECT_EQ(hint(shown.grid, 0, 0), L"U+0021 !");
  click(shown.grid, 2, 0);
  EXPECT_EQ(shown.changes, 1);
  EXPECT_EQ(shown.current(), L"U+0023 #");
  auto edited = point_style();
  shown.input.apply_to(point_of(edited));
  EXPECT_FALSE(zu_bpnt_style_get_use_figure(point_of(edited)));
  EXPECT_EQ(zu_bpnt_style_get_symbol(point_of(edited)), U'#');
  EXPECT_EQ(font_of(edited), L"DejaVu Sans");
  EXPECT_NE(picture(shown.grid, 0, 0), picture(shown.grid, 2, 0));
}

TEST(symbol_input, another_font_keeps_the_character_and_shows_its_own) {
  shown_symbol shown;
  std::int32_t mono = shown.index_of(L"DejaVu Sans Mono");
  ASSERT_GE(mono, 0);
  std::vector<std::uint8_t> before = picture(shown.grid, 6, 3);
  call<&dropdown_impl::set_current>(shown.fonts, mono);
  EXPECT_EQ(shown.changes, 1);
  EXPECT_EQ(shown.current(), L"U+002A *");
  EXPECT_NE(picture(shown.grid, 6, 3), before);
  auto edited = point_style();
  shown.input.apply_to(point_of(edited));
  EXPECT_EQ(font_of(edited), L"DejaVu Sans Mono");
  call<&dropdown_impl::set_current>(shown.fonts, mono);
  EXPECT_EQ(shown.changes, 1) << "the same font again is no change";
}

TEST(symbol_input, shows_what_is_assigned_and_tells_no_one) {
  shown_symbol shown;
  auto given = point_style();
  owned<zu_fnt_type_destroy> font(zu_fnt_type_create());
  zu_fnt_type_set_wname(font.get(), L"dejavu SANS mono");  // whatever the case
  zu_bpnt_style_set_fnt_type(point_of(given), font.get());
  zu_bpnt_style_set_symbol(point_of(given), U'A');
  shown.input.assign(point_of(given));
  EXPECT_EQ(shown.font(call<&dropdown_impl::current>(shown.fonts)), L"DejaVu Sans Mono");
  EXPECT_EQ(shown.current(), L"U+0041 A");
  std::uint32_t column = 0;
  std::uint64_t row = 0;
  ASSERT_TRUE(call<&grid_impl::position>(shown.grid, &column, &row));
  EXPECT_EQ(hint(shown.grid, column, row), L"U+0041 A");
  EXPECT_EQ(shown.changes, 0);
}

TEST(symbol_input, a_font_and_a_character_that_are_not_there_stay) {
  shown_symbol shown;
  auto given = point_style();
  owned<zu_fnt_type_destroy> font(zu_fnt_type_create());
  zu_fnt_type_set_wname(font.get(), L"No Such Font");
  zu_bpnt_style_set_fnt_type(point_of(given), font.get());
  zu_bpnt_style_set_symbol(point_of(given), 0x10FFFD);
  shown.input.assign(point_of(given));
  EXPECT_EQ(shown.font(call<&dropdown_impl::current>(shown.fonts)), L"No Such Font");
  auto edited = point_style();
  shown.input.apply_to(point_of(edited));
  EXPECT_EQ(font_of(edited), L"No Such Font");
  EXPECT_EQ(zu_bpnt_style_get_symbol(point_of(edited)), 0x10FFFDu);
}

TEST(symbol_input, disabled_it_disables_all_its_parts) {
  shown_symbol shown;
  shown.input.set_enabled(false);
  EXPECT_FALSE(call<&grid_impl::enabled>(shown.grid));
  EXPECT_FALSE(call<&dropdown_impl::enabled>(shown.fonts));
}

}  // namespace
