#include "src/sources/segy_params.h"

#include <gtest/gtest.h>

#include <functional>

#include "src/bundle/dialogs.h"
#include "src/bundle/modal_dialog.h"
#include "src/bundle/owned.h"
#include "tests/unit/platform/zuk_file_segy/made_section.h"
#include "zu/platform/zuk_msgs.h"
#include "zu/platform/zuk_os.h"

namespace {

using namespace zu;
using segy_dialog_factory = util::detail::modal_dialog_service_factory<dialog::segy_params>;

/// A host whose person sets what a test says and then accepts or refuses.
class person : public modal_dialog_runner_impl {
 public:
  int run(handle docker) override {
    ++runs;
    // Both sides are of this program here.
    act(static_cast<segy_params_docker*>(docker.instance)->model);
    return answer;
  }
  std::function<void(segy_params_model&)> act = [](segy_params_model&) {};
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
  person_.act = [&](segy_params_model& model) {
    EXPECT_EQ(model.path(), path_);
    EXPECT_EQ(model.coord_source, 0);
    EXPECT_EQ(model.units, L"Брать из заголовка трассы");
    EXPECT_FALSE(model.simplify);
    EXPECT_EQ(model.coord_sources(),
              (std::vector<std::wstring>{L"Автоматический", L"ПП", L"ПВ", L"ОГТ"}));
    EXPECT_EQ(model.unit_suggestions(), std::vector<std::wstring>{L"Брать из заголовка трассы"});
  };
  EXPECT_TRUE(choose());
  expect(1, 3, 1.0, false);
  EXPECT_TRUE(messages_.empty());
}

TEST_F(choosing_segy_params, what_was_chosen_is_where_the_next_time_begins) {
  person_.act = [](segy_params_model& model) {
    model.coord_source = 2;
    model.units = L"0.3048";
    model.simplify = true;
  };
  EXPECT_TRUE(choose());
  expect(1, 4, 0.3048, true);
  EXPECT_TRUE(zu_segy_file_has_params(path_.c_str()));

  record_.reset(zu_segy_prms_create());
  person_.answer = 0;
  person_.act = [](segy_params_model& model) {
    EXPECT_EQ(model.coord_source, 2);
    EXPECT_EQ(model.units, L"0.3048");
    EXPECT_TRUE(model.simplify);
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
    person_.act = [&](segy_params_model& model) { model.units = units; };
    EXPECT_FALSE(choose());
    EXPECT_EQ(messages_, std::vector<std::wstring>{L"Не удалось подобрать параметры загрузки"});
  }
  EXPECT_FALSE(zu_segy_file_has_params(path_.c_str()));
}

TEST_F(choosing_segy_params, a_source_without_coordinates_shows_the_message_too) {
  person_.act = [](segy_params_model& model) { model.coord_source = 3; };
  EXPECT_FALSE(choose());
  EXPECT_EQ(messages_.size(), 1U);
  messages_.clear();
  person_.act = [](segy_params_model& model) { model.coord_source = -1; };
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
    person_.act = [&](segy_params_model& model) { model.units = unit.text; };
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
    segy_params_model model(L"a");
    model.fill(record_.get());
    EXPECT_EQ(model.units, f.text);
  }
  zu_segy_prms_set_coord_type(record_.get(), 9);
  segy_params_model model(L"a");
  model.fill(record_.get());
  EXPECT_EQ(model.coord_source, -1);
}

TEST_F(choosing_segy_params, the_docker_answers_to_no_interface) {
  segy_params_model model(L"a");
  segy_params_docker docker(model);
  EXPECT_EQ(cast<modal_dialog_runner_impl>(handle_of(docker)).instance, nullptr);
  EXPECT_EQ(cast<segy_params_docker>(handle_of(docker)).instance, nullptr);
}

}  // namespace
