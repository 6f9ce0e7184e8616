#include "src/style/palettes/clr_palettes_dialog.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <optional>

#include "src/toolkit/dialog.h"
#include "tests/unit/src/toolkit/element_tree.h"
#include "zu/platform/zuk_msgs.h"
#include "zu/platform/zuk_xml_data.h"

namespace {

namespace fs = std::filesystem;
using namespace zu;
using style::detail::caption_of;
using list_ptr = owned<zu_clr_palettes_destroy>;
using dialog_factory = util::detail::modal_dialog_service_factory<dialog::clr_palettes>;

/// Tools by their ids, those in menus too.
struct tool_finder : tool_set_visitor_impl, tool_visitor_impl {
  explicit tool_finder(std::wstring id) : id(std::move(id)) {}
  void visit(tool_set set) override {
    call<&tool_set_impl::visit>(set, tool_visitor(handle_of<tool_visitor_impl>(*this)));
  }
  void visit(const wchar_t* found_id, handle tool) override {
    if (id == found_id) found = tool;
    if (auto menu = cast<category_tool_impl>(tool))
      call<&category_tool_impl::visit_tools>(menu,
                                             tool_visitor(handle_of<tool_visitor_impl>(*this)));
  }
  std::wstring id;
  handle found;
};

struct item_of_row : toolkit::outline_table_item_index {
  using outline_table_item_index::outline_table_item_index;
};

/// What a person says when they are asked; what they were asked is kept.
struct person {
  bool yes = true;
  std::optional<Tzu_color> color;
  std::wstring file;
  std::vector<std::wstring> asked, warned;
};

class clr_palettes : public testing::Test {
 protected:
  fs::path folder_ = fs::path(testing::TempDir()) / ("clr_palettes" + std::to_string(getpid()));
  tests::base_language russian_;
  person person_;
  list_ptr edited_{zu_clr_palettes_create()};
  std::optional<dialog::clr_palettes> dialog_;
  std::optional<toolkit::detail::dialog_docker<dialog::clr_palettes>> docker_;
  std::vector<handle> elements_;

  clr_palettes() {
    fs::create_directories(folder_);
    Tzu_message_hooks messages{
        [](const wchar_t* text, void* user) { of(user).warned.emplace_back(text); },
        [](const wchar_t* text, void* user) {
          of(user).asked.emplace_back(text);
          return of(user).yes;
        },
        &person_};
    zu_set_message_hooks(&messages);
    Tzu_asking_hooks asking{[](const wchar_t* filter, Tzu_string_adp* path, void* user) {
                              return give_file(filter, path, of(user));
                            },
                            [](const wchar_t* filter, const wchar_t*, Tzu_string_adp* path,
                               void* user) { return give_file(filter, path, of(user)); },
                            [](Tzu_color* color, void* user) {
                              if (!of(user).color) return false;
                              *color = *of(user).color;
                              return true;
                            },
                            &person_};
    zu_set_asking_hooks(&asking);
  }
  ~clr_palettes() override {
    zu_set_message_hooks(nullptr);
    zu_set_asking_hooks(nullptr);
    fs::remove_all(folder_);
  }
  static person& of(void* user) { return *static_cast<person*>(user); }
  static bool give_file(const wchar_t* filter, Tzu_string_adp* path, person& who) {
    who.asked.emplace_back(filter);
    if (who.file.empty()) return false;
    zu_string_adp_feed(path, who.file.c_str());
    return true;
  }

  void add(const wchar_t* caption, std::initializer_list<Tzu_color> colors) {
    Tzu_clr_palette* palette = zu_clr_palettes_add(edited_.get());
    zu_clr_palette_set_wcaption(palette, caption);
    for (Tzu_color each : colors) zu_clr_palette_add_color(palette, each);
  }
  void show() {
    dialog_.emplace(edited_.get());
    docker_.emplace(*dialog_);
    elements_ = tests::elements_of(handle_of<docker_impl>(*docker_));
  }
  zu::of<outline_impl> palettes() { return tests::find<outline_impl>(elements_, 0); }
  zu::of<outline_impl> colors() { return tests::find<outline_impl>(elements_, 1); }
  zu::of<action_tool_impl> tool(const wchar_t* id) {
    tool_finder finder(id);
    for (int i = 0; auto bar = tests::find<toolbar_impl>(elements_, i); ++i)
      call<&toolbar_impl::visit>(bar, tool_set_visitor(handle_of<tool_set_visitor_impl>(finder)));
    return cast<action_tool_impl>(finder.found);
  }
  void press(const wchar_t* id) {
    ASSERT_TRUE(tool(id)) << id;
    ASSERT_TRUE(call<&action_tool_impl::enabled>(tool(id))) << id;
    call<&action_tool_impl::execute>(tool(id));
  }
  bool is_enabled(const wchar_t* id) { return call<&action_tool_impl::enabled>(tool(id)); }

  /// Marks these rows alone and makes the first the current one.
  static void mark(zu::of<outline_impl> table, std::initializer_list<std::uint32_t> rows) {
    for (std::uint32_t row = 0; row < call<&outline_impl::item_count>(table, outline_item());
         ++row) {
      item_of_row index(row);
      bool wanted = std::find(rows.begin(), rows.end(), row) != rows.end();
      call<&outline_impl::set_marked>(table, index.item(), wanted);
    }
    if (rows.size() == 0) return;
    item_of_row first(*rows.begin());
    call<&outline_impl::set_current>(table, first.item());
  }
  static void drag(zu::of<outline_impl> table, std::uint32_t to, bool behind) {
    item_of_row target(to);
    call<&outline_impl::move_marked>(table, target.item(), behind);
  }

  std::wstring captions() const {
    std::wstring all;
    auto* list = const_cast<Tzu_clr_palettes*>(dialog_->list());
    for (std::uint64_t i = 0; i < zu_clr_palettes_get_size(list); ++i)
      all += (i > 0 ? L"|" : L"") + caption_of(zu_clr_palettes_get_ptr(list, i));
    return all;
  }
  std::vector<int> reds(std::uint64_t palette) const {
    std::vector<int> all;
    auto* list = const_cast<Tzu_clr_palettes*>(dialog_->list());
    Tzu_clr_palette* of_it = zu_clr_palettes_get_ptr(list, palette);
    for (std::uint64_t i = 0; i < zu_clr_palette_get_size(of_it); ++i)
      all.push_back(zu_clr_palette_get_color(of_it, i).r);
    return all;
  }
  /// Text of a cell in the first column.
  static std::wstring cell(zu::of<outline_impl> table, std::uint32_t row) {
    struct first_column : outline_column_visitor_impl {
      void visit(handle given) override { column = cast<string_outline_column_impl>(given); }
      zu::of<string_outline_column_impl> column;
    } first;
    call<&outline_impl::visit_column>(
        table, 0u, outline_column_visitor(handle_of<outline_column_visitor_impl>(first)));
    item_of_row item(row);
    return tests::text(
        [&](auto v) { call<&string_outline_column_impl::text>(first.column, item.item(), v); });
  }
};

TEST_F(clr_palettes, edits_a_copy) {
  add(L"a", {});
  show();
  EXPECT_FALSE(dialog_->is_changed());
  press(L"zu_clr_palettes_tool_add");
  EXPECT_TRUE(dialog_->is_changed());
  EXPECT_EQ(captions(), L"a|Пользовательская палитра 2");
  EXPECT_EQ(zu_clr_palettes_get_size(edited_.get()), 1U);
}

TEST_F(clr_palettes, names_a_new_palette_as_no_other_is_named) {
  show();
  EXPECT_FALSE(is_enabled(L"zu_clr_palettes_tool_remove"));
  press(L"zu_clr_palettes_tool_add");
  press(L"zu_clr_palettes_tool_add");
  mark(palettes(), {0});
  press(L"zu_clr_palettes_tool_remove");
  press(L"zu_clr_palettes_tool_add");
  EXPECT_EQ(captions(), L"Пользовательская палитра 2|Пользовательская палитра 3");
}

TEST_F(clr_palettes, deletes_what_is_marked_once_the_person_says_yes) {
  for (const wchar_t* caption : {L"a", L"b", L"c"}) add(caption, {});
  show();
  mark(palettes(), {0, 2});
  person_.yes = false;
  press(L"zu_clr_palettes_tool_remove");
  EXPECT_EQ(person_.asked.back(), L"Удалить выбранные палитры (2)?");
  EXPECT_EQ(captions(), L"a|b|c");
  EXPECT_FALSE(dialog_->is_changed());
  person_.yes = true;
  press(L"zu_clr_palettes_tool_remove");
  EXPECT_EQ(captions(), L"b");
  EXPECT_TRUE(is_enabled(L"zu_clr_palettes_tool_remove")) << "the next one is chosen";
  press(L"zu_clr_palettes_tool_remove");
  EXPECT_EQ(captions(), L"");
  EXPECT_FALSE(is_enabled(L"zu_clr_palettes_tool_remove"));
  EXPECT_FALSE(is_enabled(L"zu_clr_palettes_tool_add_color"));
}

TEST_F(clr_palettes, shows_the_colours_of_the_current_palette) {
  add(L"a", {{1, 2, 3, 0}});
  add(L"b", {{4, 5, 6, 255}, {7, 8, 9, 55}});
  show();
  EXPECT_EQ(cell(palettes(), 1), L"b");
  EXPECT_EQ(cell(colors(), 0), L"RGBA = {1, 2, 3, 255}") << "an opacity";
  mark(palettes(), {1});
  EXPECT_EQ(call<&outline_impl::item_count>(colors(), outline_item()), 2U);
  EXPECT_EQ(cell(colors(), 1), L"RGBA = {7, 8, 9, 200}");
}

TEST_F(clr_palettes, adds_edits_and_deletes_colours_that_the_person_chooses) {
  add(L"Sea", {{1, 0, 0, 0}});
  show();
  press(L"zu_clr_palettes_tool_add_color");
  EXPECT_EQ(reds(0), std::vector{1}) << "nothing was chosen";
  person_.color = Tzu_color{50, 0, 0, 0};
  press(L"zu_clr_palettes_tool_add_color");
  person_.color = Tzu_color{60, 0, 0, 0};
  press(L"zu_clr_palettes_tool_add_color");
  EXPECT_EQ(reds(0), (std::vector{1, 50, 60}));
  person_.color = Tzu_color{9, 0, 0, 0};
  item_of_row first(0);
  call<&outline_impl::activate>(colors(), first.item());
  EXPECT_EQ(reds(0), (std::vector{9, 50, 60}));
  mark(colors(), {0, 1});
  press(L"zu_clr_palettes_tool_remove_color");
  EXPECT_EQ(person_.asked.back(), L"Удалить выбранные цвета (2) из палитры Sea?");
  EXPECT_EQ(reds(0), std::vector{60});
}

TEST_F(clr_palettes, takes_the_colours_of_an_array_and_turns_them_round) {
  add(L"a", {{1, 0, 0, 0}});
  show();
  press(L"zu_common_style_tool_blue_white_red_grad_import");
  EXPECT_EQ(reds(0), (std::vector{0, 255, 255}));
  press(L"zu_clr_palettes_tool_invert");
  EXPECT_EQ(reds(0), (std::vector{255, 255, 0}));
  EXPECT_TRUE(dialog_->is_changed());
  for (const wchar_t* id :
       {L"zu_common_style_tool_mineral_palette_import", L"zu_clr_palettes_tool_tidal_import"})
    EXPECT_TRUE(tool(id)) << id;
}

TEST_F(clr_palettes, lets_rows_be_dragged_and_keeps_them_marked) {
  for (const wchar_t* caption : {L"a", L"b", L"c", L"d"})
    add(caption, {{1, 0, 0, 0}, {2, 0, 0, 0}, {3, 0, 0, 0}});
  show();
  EXPECT_TRUE(call<&outline_impl::can_move_marked>(palettes()));
  mark(palettes(), {0, 2});
  drag(palettes(), 3, true);
  EXPECT_EQ(captions(), L"b|d|a|c");
  for (std::uint32_t row = 0; row < 4; ++row) {
    item_of_row item(row);
    EXPECT_EQ(call<&outline_impl::is_marked>(palettes(), item.item()), row >= 2) << row;
  }
  mark(colors(), {2});
  drag(colors(), 0, false);
  EXPECT_EQ(reds(2), (std::vector{3, 1, 2})) << "of the palette that was dragged";
}

TEST_F(clr_palettes, saves_the_marked_ones_and_loads_them_behind_the_others) {
  for (const wchar_t* caption : {L"a", L"b", L"c"}) add(caption, {{5, 0, 0, 0}});
  show();
  mark(palettes(), {0, 2});
  press(L"zu_clr_palettes_tool_save");
  EXPECT_EQ(person_.asked.back(), L"Файл пользовательских палитр (*.clrs)|*.clrs");
  EXPECT_TRUE(fs::is_empty(folder_)) << "no file was chosen";
  person_.file = (folder_ / "two.clrs").wstring();
  press(L"zu_clr_palettes_tool_save");
  EXPECT_FALSE(dialog_->is_changed());
  press(L"zu_clr_palettes_tool_load");
  EXPECT_EQ(captions(), L"a|b|c|a|c");
  EXPECT_TRUE(dialog_->is_changed());
  EXPECT_TRUE(person_.warned.empty());
}

TEST_F(clr_palettes, says_why_a_file_cannot_be_read_or_written_and_stays_as_it_was) {
  add(L"a", {});
  show();
  person_.file = (folder_ / "none" / "a.clrs").wstring();
  press(L"zu_clr_palettes_tool_load");
  press(L"zu_clr_palettes_tool_save");
  ASSERT_EQ(person_.warned.size(), 2U);
  EXPECT_EQ(person_.warned[0].find(person_.file), 0U);
  EXPECT_EQ(captions(), L"a");
  EXPECT_FALSE(dialog_->is_changed());
}

TEST_F(clr_palettes, renames_a_palette_where_it_stands) {
  add(L"a", {});
  show();
  struct first_column : outline_column_visitor_impl {
    void visit(handle given) override { column = cast<string_outline_column_impl>(given); }
    zu::of<string_outline_column_impl> column;
  } first;
  call<&outline_impl::visit_column>(
      palettes(), 0u, outline_column_visitor(handle_of<outline_column_visitor_impl>(first)));
  item_of_row item(0);
  EXPECT_TRUE(call<&string_outline_column_impl::is_editable>(first.column, item.item()));
  EXPECT_TRUE(call<&string_outline_column_impl::set_text>(first.column, item.item(), L"Море"));
  EXPECT_EQ(captions(), L"Море");
  EXPECT_TRUE(dialog_->is_changed());
}

/// A host whose person does as a test says and accepts or refuses.
struct runner : modal_dialog_runner_impl {
  int run(handle docker) override {
    elements = tests::elements_of(docker);
    tool_finder finder(L"zu_clr_palettes_tool_add");
    call<&toolbar_impl::visit>(tests::find<toolbar_impl>(elements),
                               tool_set_visitor(handle_of<tool_set_visitor_impl>(finder)));
    call<&action_tool_impl::execute>(cast<action_tool_impl>(finder.found));
    return answer;
  }
  std::vector<handle> elements;
  int answer = 1;
};

struct dialog_taker : modal_dialog_service_visitor_impl {
  void visit(modal_dialog_service found) override { service.reset(found); }
  strong_ref<modal_dialog_service_impl> service;
};
struct attaching : modal_dialog_visitor_impl {
  explicit attaching(modal_dialog_runner_impl& host) : host(host) {}
  void visit(const wchar_t*, modal_dialog dialog) override {
    call<&modal_dialog_impl::attach_view>(dialog, handle_of<modal_dialog_runner_impl>(host));
  }
  modal_dialog_runner_impl& host;
};

TEST_F(clr_palettes, that_are_accepted_become_the_persons_own_and_go_to_their_file) {
  std::optional<std::string> kept;
  if (const char* before = std::getenv("XDG_DATA_HOME")) kept = before;
  setenv("XDG_DATA_HOME", folder_.c_str(), 1);
  list_ptr former(zu_clr_palettes_create());
  zu_clr_palettes_assign(former.get(), zu_get_user_palettes());
  runner host;
  dialog_factory factory;
  dialog_taker taker;
  factory.create({}, handle_of<modal_dialog_service_visitor_impl>(taker));
  attaching attach(host);
  call<&modal_dialog_service_impl::get_dialog>(taker.service.get(),
                                               handle_of<modal_dialog_visitor_impl>(attach));
  host.answer = 0;
  EXPECT_FALSE(run_clr_palettes_dialog());
  EXPECT_EQ(zu_clr_palettes_get_size(zu_get_user_palettes()),
            zu_clr_palettes_get_size(former.get()));
  fs::path file = folder_ / "zugrid" / "user_palettes" / "user_palettes.clrs";
  EXPECT_FALSE(fs::exists(file));
  host.answer = 1;
  EXPECT_TRUE(run_clr_palettes_dialog());
  std::uint64_t size = zu_clr_palettes_get_size(former.get()) + 1;
  EXPECT_EQ(zu_clr_palettes_get_size(zu_get_user_palettes()), size);
  list_ptr read(zu_clr_palettes_create());
  owned<zu_xml_save_2d_destroy> xml(zu_xml_save_2d_create());
  EXPECT_TRUE(zu_xml_data_load_clr_palettes(xml.get(), file.wstring().c_str(), read.get()));
  EXPECT_EQ(zu_clr_palettes_get_size(read.get()), size);
  zu_clr_palettes_assign(zu_get_user_palettes(), former.get());
  kept ? setenv("XDG_DATA_HOME", kept->c_str(), 1) : unsetenv("XDG_DATA_HOME");
}

}  // namespace
