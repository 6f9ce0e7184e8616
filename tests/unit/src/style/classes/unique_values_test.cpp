#include "src/style/classes/unique_values.h"

#include <vector>

#include "src/bundle/owned.h"
#include "src/bundle/strings.h"
#include "src/style/classes/scale_dialogs.h"
#include "tests/unit/src/made_grid.h"
#include "zu/platform/zuk_msgs.h"

namespace {

using namespace zu;
using texts = std::vector<std::wstring>;

/// A person who answers questions.
struct asked_person {
  explicit asked_person(bool yes) : yes(yes) {
    Tzu_message_hooks hooks = {nullptr,
                               [](const wchar_t* text, void* user) {
                                 auto* self = static_cast<asked_person*>(user);
                                 self->questions.emplace_back(text);
                                 return self->yes;
                               },
                               this};
    zu_set_message_hooks(&hooks);
  }
  ~asked_person() { zu_set_message_hooks(nullptr); }
  bool yes;
  texts questions;
};

class rows_of_unique_values : public testing::Test {
 protected:
  data::open_reference source(const char* name, int count, int values) {
    tests::made_grid grid(name, count, 1, GDT_Float64, 2);
    std::vector<double> cells(static_cast<std::size_t>(count)), others(cells.size());
    for (int i = 0; i < count; ++i) {
      cells[static_cast<std::size_t>(i)] = i % values;
      others[static_cast<std::size_t>(i)] = 100 + i;
    }
    grid.values(1, cells);
    grid.values(2, others);
    data::open_reference made;
    made.name = grid.close();
    made.opener = &zu_datasource_open;
    return made;
  }
  void add(const wchar_t* text, const wchar_t* caption) {
    std::uint64_t row = zu_val_scale_add(scale_) - 1;
    zu_val_scale_set_text_w(scale_, row, text);
    zu_val_scale_set_caption_w(scale_, row, caption);
  }
  texts rows() const {
    texts all;
    for (std::uint64_t i = 0; i < zu_val_scale_get_size(scale_); ++i)
      all.push_back(text_of([&](Tzu_string_adp* a) { zu_val_scale_get_text_w(scale_, i, a); }) +
                    L"=" +
                    text_of([&](Tzu_string_adp* a) { zu_val_scale_get_caption_w(scale_, i, a); }));
    return all;
  }

  owned<zu_stl_mngr_destroy> manager_{zu_clr_stl_mngr_create()};
  Tzu_val_scale* scale_ = zu_stl_mngr_get_val_scale_ptr(manager_.get());
};

TEST_F(rows_of_unique_values, come_in_the_order_of_their_texts) {
  style::unique_texts values;
  bool all = false;
  ASSERT_TRUE(style::read_unique_values(source("few.tif", 24, 12), L"Band 1", values, &all));
  EXPECT_EQ(texts(values.begin(), values.end()),
            (texts{L"0", L"1", L"10", L"11", L"2", L"3", L"4", L"5", L"6", L"7", L"8", L"9"}));
  EXPECT_TRUE(all);
}

TEST_F(rows_of_unique_values, of_a_thousand_or_more_are_asked_about) {
  style::unique_texts values;
  bool all = true;
  {
    asked_person person(false);
    data::open_reference many = source("many.tif", 1500, 1200);
    ASSERT_TRUE(style::read_unique_values(many, L"Band 1", values, &all));
    EXPECT_EQ(values.size(), 1000u);
    EXPECT_FALSE(all);
    ASSERT_EQ(person.questions.size(), 1u);
    EXPECT_NE(person.questions[0].find(L"1000"), std::wstring::npos);
    person.yes = true;
    ASSERT_TRUE(style::read_unique_values(many, L"Band 1", values, &all));
    EXPECT_EQ(values.size(), 1200u);
    EXPECT_TRUE(all);
  }
  asked_person person(false);
  style::read_unique_values(source("below.tif", 1500, 999), L"Band 1", values, &all);
  EXPECT_TRUE(person.questions.empty());
  EXPECT_EQ(values.size(), 999u);
}

TEST_F(rows_of_unique_values, are_not_read_where_a_person_stops_it) {
  data::open_reference made = source("stopped.tif", 24, 12);
  Tzu_progress_hooks hooks = {};
  hooks.stopped = [](void*, void*) { return true; };
  zu_progress_set_hooks(&hooks);
  style::unique_texts values{L"kept"};
  EXPECT_FALSE(style::read_unique_values(made, L"Band 1", values, nullptr));
  EXPECT_FALSE(style::change_captions(scale_, made, L"Band 1", L"Band 2"));
  zu_progress_set_hooks(nullptr);
  EXPECT_EQ(values, style::unique_texts{L"kept"});
}

TEST_F(rows_of_unique_values, lose_white_space_at_their_ends_alone) {
  EXPECT_EQ(style::trimmed(L" \t a b\n"), L"a b");
  EXPECT_EQ(style::trimmed(L"  "), L"");
  EXPECT_EQ(style::trimmed(L""), L"");
}

TEST_F(rows_of_unique_values, make_the_rows_anew_with_captions) {
  add(L"old", L"old caption");
  style::rebuild(scale_, {L"b ", L"a"});
  EXPECT_EQ(rows(), (texts{L"a=a", L"b=b"}));
}

TEST_F(rows_of_unique_values, are_added_where_no_row_has_them) {
  add(L" a ", L"first");
  style::add_new_values(scale_, {L"a", L"c", L"b"});
  EXPECT_EQ(rows(), (texts{L" a =first", L"b=b", L"c=c"}));
}

TEST_F(rows_of_unique_values, keep_their_rows_and_the_others_are_removed) {
  add(L"a", L"1"), add(L" b", L"2"), add(L"c", L"3");
  style::remove_missing_values(scale_, {L"b", L"x"});
  EXPECT_EQ(rows(), (texts{L" b=2"}));
}

TEST_F(rows_of_unique_values, take_captions_from_the_first_record_that_has_them) {
  add(L"1", L"x"), add(L" 2 ", L"y"), add(L"77", L"z");
  EXPECT_TRUE(style::change_captions(scale_, source("captions.tif", 8, 4), L"Band 1", L"Band 2"));
  EXPECT_EQ(rows(), (texts{L"1=101", L" 2 =102", L"77=z"}));
  EXPECT_FALSE(style::change_captions(scale_, source("lost.tif", 8, 4), L"Band 1", L"no such"));
  EXPECT_EQ(rows()[0], L"1=101");
}

TEST_F(rows_of_unique_values, fill_a_scale) {
  EXPECT_TRUE(style::fill_from_data(scale_, source("fill.tif", 6, 3), L"Band 1"));
  EXPECT_EQ(rows(), (texts{L"0=0", L"1=1", L"2=2"}));
  EXPECT_FALSE(style::fill_from_data(scale_, source("fill2.tif", 6, 3), L"no such field"));
  EXPECT_EQ(rows().size(), 3u);
}

TEST_F(rows_of_unique_values, are_shown_as_a_table) {
  style::value_scale_cache_outline table;
  ASSERT_TRUE(table.load(source("table.tif", 24, 12), L"Band 1"));
  ASSERT_EQ(table.row_count(), 12u);
  struct taker final : outline_column_visitor_impl {
    void visit(handle given) override { column = given; }
    handle column;
  } taken;
  table.visit_column(0, outline_column_visitor(handle_of<outline_column_visitor_impl>(taken)));
  auto column = cast<string_outline_column_impl>(taken.column);
  auto text = [&](std::uint32_t row) {
    std::wstring found;
    stdwstring_visitor visitor(found);
    toolkit::outline_table_item_index item(row);
    call<&string_outline_column_impl::text>(
        column, item.item(), string_visitor(handle_of<string_visitor_impl>(visitor)));
    return found;
  };
  EXPECT_EQ(text(11), L"9");
  EXPECT_EQ(text(2), L"10");
  EXPECT_EQ(text(3), L"11");
  EXPECT_EQ(text(0), L"0");
  EXPECT_EQ(text(12), L"");
}

}  // namespace
