#include "src/sources/segy_params.h"

#include <gtest/gtest.h>

#include <functional>

#include "src/bundle/modal_dialog.h"
#include "src/bundle/owned.h"
#include "src/toolkit/dockers.h"
#include "tests/unit/platform/zuk_file_segy/made_section.h"
#include "tests/unit/src/toolkit/element_tree.h"
#include "zu/platform/zuk_msgs.h"
#include "zu/platform/zuk_os.h"

namespace {

using namespace zu;
using segy_dialog_factory = util::detail::modal_dialog_service_factory<dialog::segy_params>;

/// The dialog as a person meets it: through the docker alone.
class shown_dialog {
 public:
  explicit shown_dialog(handle docker)
      : docker_(cast<docker_impl>(docker)), elements_(tests::elements_of(docker)) {}

  std::wstring title() const {
    return tests::text([&](auto v) { call<&docker_impl::visit_caption>(docker_, v); });
  }
  std::vector<std::wstring> labels() const {
    std::vector<std::wstring> all;
    for (int i = 0; auto label = tests::find<label_impl>(elements_, i); ++i)
      all.push_back(tests::text([&](auto v) { call<&label_impl::text>(label, v); }));
    return all;
  }
  std::wstring path() const {
    auto file = tests::find<output_impl>(elements_);
    return tests::text([&](auto v) { call<&output_impl::text>(file, v); });
  }
  std::vector<std::wstring> coord_sources() const {
    std::vector<std::wstring> all;
    for (std::uint32_t i = 0; i < call<&dropdown_impl::count>(sources()); ++i)
      all.push_back(tests::text([&](auto v) { call<&dropdown_impl::item_text>(sources(), i, v); }));
    return all;
  }
  std::int32_t coord_source() const { return call<&dropdown_impl::current>(sources()); }
  void choose_source(std::int32_t index) { call<&dropdown_impl::set_current>(sources(), index); }
  std::wstring units() const {
    return tests::text([&](auto v) { call<&assisted_input_impl::text>(input(), v); });
  }
  std::vector<std::wstring> unit_suggestions() const {
    return tests::texts([&](auto v) { call<&assisted_input_impl::visit_suggestions>(input(), v); });
  }
  void type_units(const wchar_t* text) {
    EXPECT_TRUE(call<&assisted_input_impl::set_text>(input(), text));
    call<&assisted_input_impl::commit>(input());
  }
  bool simplify() const { return call<&checkbox_impl::is_checked>(mark()); }
  void tick_simplify(bool on) { call<&checkbox_impl::set_checked>(mark(), on); }
  of<button_box_impl> buttons() const { return tests::find<button_box_impl>(elements_); }

 private:
  of<dropdown_impl> sources() const { return tests::find<dropdown_impl>(elements_); }
  of<assisted_input_impl> input() const { return tests::find<assisted_input_impl>(elements_); }
  of<checkbox_impl> mark() const { return tests::find<checkbox_impl>(elements_); }

  of<docker_impl> docker_;
  std::vector<handle> elements_;
};

/// A host whose person sets what a test says and then accepts or refuses.
class person : public modal_dialog_runner_impl {
 public:
  int run(handle docker) override {
    ++runs;
    shown_dialog shown(docker);
    act(shown);
    return answer;
  }
  std::function<void(shown_dialog&)> act = [](shown_dialog&) {};
  int answer = 1, runs = 0;
};

struct dialog_taker : modal_dialog_service_visitor_impl {
  void visit(modal_dialog_service found) override { service.reset(found); }
  strong_ref<modal_dialog_service_impl> service;
};

struct attaching : modal_dialog_visitor_impl {
  explicit attaching(modal_dialog_runner_impl& runner) : runner(runner) {}
  void visit(const wchar_t*, modal_dialog dialog) override {
    call<&modal_dialog_impl::attach_view>(dialog, handle_of<modal_dialog_runner_impl>(runner));
  }
  modal_dialog_runner_impl& runner;
};

class choosing_segy_params : public testing::Test {
 protected:
  void SetUp() override {
    language_ = zu_res_get_lng();
    zu_res_set_lng(0);
    zu_set_message_sink(
        [](const wchar_t* text, void* user) {
          static_cast<std::vector<std::wstring>*>(user)->emplace_back(text);
        },
        &messages_);
    tests::made_section section(8, 1);
    section.trace({"a"}).field(73, 4, 100).field(77, 4, 200).field(71, 2, -100);
    section.trace({"a"}).field(73, 4, 300).field(77, 4, 200).field(71, 2, -100);
    section.save(folder_ / "a.sgy");
    std::string narrow = folder_ / "a.sgy";
    path_.assign(narrow.begin(), narrow.end());
  }
  void TearDown() override {
    zu_set_message_sink(nullptr, nullptr);
    zu_res_set_lng(language_);
  }
  /// With a host that shows the dialog.
  bool choose() {
    segy_dialog_factory factory;
    dialog_taker taker;
    factory.create({}, handle_of<modal_dialog_service_visitor_impl>(taker));
    attaching visitor(person_);
    call<&modal_dialog_service_impl::get_dialog>(taker.service.get(),
                                                 handle_of<modal_dialog_visitor_impl>(visitor));
    return choose_segy_params(path_.c_str(), record_.get());
  }
  void expect(std::int32_t coord, std::int32_t coeff_type, double coeff, bool simplify) {
    EXPECT_EQ(zu_segy_prms_get_coord_type(record_.get()), coord);
    EXPECT_EQ(zu_segy_prms_get_coord_coeff_type(record_.get()), coeff_type);
    EXPECT_EQ(zu_segy_prms_get_coord_coeff(record_.get()), coeff);
    EXPECT_EQ(zu_segy_prms_get_pln_simplify_flag(record_.get()), simplify);
  }

  tests::section_folder folder_;
  std::wstring path_;
  owned<zu_segy_prms_destroy> record_{zu_segy_prms_create()};
  person person_;
  std::vector<std::wstring> messages_;
  std::int32_t language_ = 0;
};

TEST_F(choosing_segy_params, begins_automatically_with_units_from_the_headers) {
  person_.act = [&](shown_dialog& shown) {
    EXPECT_EQ(shown.title(), L"Параметры загрузки Segy");
    EXPECT_EQ(shown.labels(),
              (std::vector<std::wstring>{L"Файл:", L"Координаты трасс", L"Единицы измерения"}));
    EXPECT_EQ(shown.path(), path_);
    EXPECT_EQ(shown.coord_source(), 0);
    EXPECT_EQ(shown.units(), L"Брать из заголовка трассы");
    EXPECT_FALSE(shown.simplify());
    EXPECT_EQ(call<&button_box_impl::count>(shown.buttons()), 2U);
    EXPECT_EQ(shown.coord_sources(),
              (std::vector<std::wstring>{L"Автоматический", L"ПП", L"ПВ", L"ОГТ"}));
    EXPECT_EQ(shown.unit_suggestions(),
              (std::vector<std::wstring>{L"Брать из заголовка трассы", L"Метры", L"Дециметры",
                                         L"Сантиметры"}));
  };
  EXPECT_TRUE(choose());
  expect(1, 3, 1.0, false);
  EXPECT_TRUE(messages_.empty());
}

TEST_F(choosing_segy_params, what_was_chosen_is_where_the_next_time_begins) {
  person_.act = [](shown_dialog& shown) {
    shown.choose_source(2);
    shown.type_units(L"0.3048");
    shown.tick_simplify(true);
  };
  EXPECT_TRUE(choose());
  expect(1, 4, 0.3048, true);
  EXPECT_TRUE(zu_segy_file_has_params(path_.c_str()));

  record_.reset(zu_segy_prms_create());
  person_.answer = 0;
  person_.act = [](shown_dialog& shown) {
    EXPECT_EQ(shown.coord_source(), 2);
    EXPECT_EQ(shown.units(), L"0.3048");
    EXPECT_TRUE(shown.simplify());
  };
  EXPECT_FALSE(choose());
  EXPECT_EQ(person_.runs, 2);
}

TEST_F(choosing_segy_params, refused_or_without_a_host_changes_nothing) {
  person_.answer = 0;
  EXPECT_FALSE(choose());
  EXPECT_FALSE(choose_segy_params(path_.c_str(), record_.get())) << "no host";
  EXPECT_FALSE(zu_segy_file_has_params(path_.c_str()));
  EXPECT_TRUE(messages_.empty());
  expect(-1, 3, 1.0, false);
}

TEST_F(choosing_segy_params, letters_for_units_show_a_message) {
  for (const wchar_t* units : {L"abc", L"", L"1x", L"1,5", L"метры"}) {
    messages_.clear();
    person_.act = [&](shown_dialog& shown) { shown.type_units(units); };
    EXPECT_FALSE(choose());
    EXPECT_EQ(messages_, std::vector<std::wstring>{L"Не удалось подобрать параметры загрузки"});
  }
  EXPECT_FALSE(zu_segy_file_has_params(path_.c_str()));
}

TEST_F(choosing_segy_params, a_source_without_coordinates_shows_the_message_too) {
  person_.act = [](shown_dialog& shown) { shown.choose_source(3); };
  EXPECT_FALSE(choose());
  EXPECT_EQ(messages_.size(), 1U);
  messages_.clear();
  zu_segy_prms_set_coord_type(record_.get(), 9);
  person_.act = [](shown_dialog& shown) { EXPECT_EQ(shown.coord_source(), -1); };
  EXPECT_FALSE(choose()) << "without a selection it is the receivers";
  EXPECT_EQ(messages_.size(), 1U);
}

struct unit_case {
  const wchar_t* text;
  std::int32_t type;
  double coefficient;
};
const unit_case units[] = {{L"Метры", 0, 1.0},       {L"Дециметры", 1, 0.1},
                           {L"Сантиметры", 2, 0.01}, {L"Брать из заголовка трассы", 3, 1.0},
                           {L"2.5", 4, 2.5},         {L" 1e-3 ", 4, 0.001}};

TEST_F(choosing_segy_params, texts_of_units_have_their_types) {
  for (const unit_case& unit : units) {
    person_.act = [&](shown_dialog& shown) { shown.type_units(unit.text); };
    EXPECT_TRUE(choose());
    expect(1, unit.type, unit.coefficient, false);
  }
}

TEST_F(choosing_segy_params, filling_shows_the_text_of_a_type_or_the_number) {
  struct filled {
    std::int32_t type;
    double coefficient;
    const wchar_t* text;
  };
  for (const filled& f :
       {filled{0, 7, L"Метры"}, filled{1, 7, L"Дециметры"}, filled{2, 7, L"Сантиметры"},
        filled{3, 7, L"Брать из заголовка трассы"}, filled{4, 7, L"7"}, filled{5, 0.25, L"0.25"}}) {
    zu_segy_prms_set_coord_coeff_type(record_.get(), f.type);
    zu_segy_prms_set_coord_coeff(record_.get(), f.coefficient);
    dialog::segy_params dialog(L"a");
    dialog.fill(record_.get());
    toolkit::detail::dialog_docker<dialog::segy_params> docker(dialog);
    EXPECT_EQ(shown_dialog(handle_of<docker_impl>(docker)).units(), f.text);
  }
}

}  // namespace
