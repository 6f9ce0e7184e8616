#include "src/style/class_dialogs/value_scale_dialog.h"

#include <memory>
#include <vector>

#include "src/bundle/owned.h"
#include "src/bundle/texts.h"
#include "src/style/classes/scale_dialogs.h"
#include "src/toolkit/dockers.h"
#include "tests/unit/src/made_grid.h"
#include "tests/unit/src/toolkit/element_tree.h"

namespace {

using namespace zu;
using texts = std::vector<std::wstring>;

class value_scale_dialog : public testing::Test {
 protected:
  void open() {
    tests::made_grid grid("value_dialog.tif", 4, 1, GDT_Float64, 2);
    grid.values(1, {3, 1, 3, 2});
    grid.values(2, {30, 10, 31, 20});
    grid.band(1)->SetDescription("kind");
    grid.band(2)->SetDescription("name");
    source_.name = grid.close();
    source_.opener = &zu_datasource_open;
    show();
  }
  void show() {
    dialog_ = std::make_unique<dialog::value_scale>(scale_, source_, L"KIND");
    docker_ = std::make_unique<toolkit::detail::dialog_docker<dialog::value_scale>>(*dialog_);
    shown_ = tests::elements_of(handle_of<docker_impl>(*docker_));
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
  of<checkbox_impl> check(int n) { return tests::find<checkbox_impl>(shown_, n); }
  std::uint32_t listed() {
    return call<&outline_impl::item_count>(tests::find<outline_impl>(shown_), outline_item());
  }
  bool says(const std::wstring& line) {
    for (handle element : shown_)
      if (auto label = cast<label_impl>(element); label && tests::text([&](string_visitor v) {
                                                             call<&label_impl::text>(label, v);
                                                           }) == line)
        return true;
    return false;
  }
  void modify() { call<&radiobutton_impl::press>(tests::find<radiobutton_impl>(shown_, 1)); }
  bool accept() { return call<&button_box_impl::press>(tests::find<button_box_impl>(shown_), 0); }

  owned<zu_stl_mngr_destroy> manager_{zu_clr_stl_mngr_create()};
  Tzu_val_scale* scale_ = zu_stl_mngr_get_val_scale_ptr(manager_.get());
  data::open_reference source_;
  std::unique_ptr<dialog::value_scale> dialog_;
  std::unique_ptr<toolkit::detail::dialog_docker<dialog::value_scale>> docker_;
  std::vector<handle> shown_;
};

TEST_F(value_scale_dialog, lists_and_counts_the_values_of_the_field) {
  open();
  EXPECT_EQ(listed(), 3u);
  std::wstring line = load_text(10461);
  line.replace(line.find(L"%d"), 2, L"3");
  EXPECT_TRUE(says(line)) << "the count";
  auto fields = tests::find<dropdown_impl>(shown_);
  EXPECT_EQ(call<&dropdown_impl::current>(fields), 0) << "the field, in whatever case it is named";
  call<&dropdown_impl::set_current>(fields, 1);
  EXPECT_EQ(listed(), 4u);
}

TEST_F(value_scale_dialog, rebuilds_unless_told_otherwise) {
  add(L"9", L"old");
  open();
  EXPECT_EQ(rows(), (texts{L"9=old"})) << "not before it is accepted";
  EXPECT_TRUE(accept());
  EXPECT_EQ(rows(), (texts{L"1=1", L"2=2", L"3=3"}));
}

TEST_F(value_scale_dialog, has_parameters_of_a_change_alone) {
  open();
  for (int i = 0; i < 3; ++i) EXPECT_FALSE(call<&checkbox_impl::enabled>(check(i))) << i;
  auto captions = tests::find<dropdown_impl>(shown_, 1);
  EXPECT_FALSE(call<&dropdown_impl::enabled>(captions));
  modify();
  for (int i = 0; i < 3; ++i) EXPECT_TRUE(call<&checkbox_impl::enabled>(check(i))) << i;
  EXPECT_TRUE(call<&dropdown_impl::enabled>(captions));
}

TEST_F(value_scale_dialog, adds_removes_and_captions_as_it_is_told) {
  add(L"9", L"gone"), add(L"3", L"three");
  open();
  modify();
  call<&checkbox_impl::set_checked>(check(0), false);
  call<&checkbox_impl::set_checked>(check(1), false);
  EXPECT_TRUE(accept());
  EXPECT_EQ(rows(), (texts{L"9=gone", L"3=three"}));
  call<&checkbox_impl::set_checked>(check(0), true);
  EXPECT_TRUE(accept());
  EXPECT_EQ(rows(), (texts{L"9=gone", L"3=three", L"1=1", L"2=2"}));
  call<&checkbox_impl::set_checked>(check(1), true);
  call<&checkbox_impl::set_checked>(check(2), true);
  call<&dropdown_impl::set_current>(tests::find<dropdown_impl>(shown_, 1), 1);
  EXPECT_TRUE(accept());
  EXPECT_EQ(rows(), (texts{L"3=30", L"1=10", L"2=20"}));
}

TEST_F(value_scale_dialog, opens_without_a_source_with_no_values) {
  show();
  EXPECT_EQ(listed(), 0u);
  EXPECT_TRUE(accept());
  EXPECT_TRUE(rows().empty());
}

TEST_F(value_scale_dialog, is_not_run_without_a_host_or_without_the_field) {
  open();
  EXPECT_FALSE(style::run_value_scale_dialog(scale_, source_, L"kind"));
  EXPECT_FALSE(style::run_value_scale_dialog(scale_, source_, L"no such field"));
  EXPECT_FALSE(style::run_value_scale_dialog(nullptr, source_, L"kind"));
}

}  // namespace
