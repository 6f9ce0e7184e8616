#include "src/toolkit/dockers.h"

#include <gtest/gtest.h>

#include "src/toolkit/dialog.h"
#include "src/toolkit/layouts.h"
#include "src/toolkit/numbers.h"
#include "src/toolkit/reattachable.h"
#include "src/toolkit/tabs.h"
#include "src/toolkit/tools.h"
#include "tests/unit/src/toolkit/fake_views.h"

namespace zu::toolkit {
namespace {

using tests::text;

/// Counts the objects that are there.
template <class T> class counted : public T {
 public:
  using T::T;
  counted(const counted&) = delete;
  counted& operator=(const counted&) = delete;
  ~counted() override { --alive; }
  static inline int alive = 0;
  counted& born() {
    ++alive;
    return *this;
  }
};

template <class made> void expect_to_end(made* object) {
  using view = typename made::view_type;
  object->born();
  tests::fake_view<element_view_impl> shown;
  object->attach_view(view(handle_of<element_view_impl>(shown)));
  EXPECT_EQ(made::alive, 1);
  object->attach_view(view());
  EXPECT_EQ(made::alive, 0);
}

TEST(reattachable, is_gone_after_an_empty_view) {
  expect_to_end(new reattachable<counted<label>, element_view>(55));
  expect_to_end(new reattachable<counted<integer_input>, integer_view>);
  expect_to_end(new reattachable<counted<action_tool>, element_view>(55));
}

TEST(docker, shows_its_content_under_one_id) {
  tests::base_language base;
  docker<grid_layout<1, 1>> panel(101);
  label inside(1);
  panel.content().place(inside);
  EXPECT_EQ(panel.mode(), 1U);
  EXPECT_EQ(panel.preferred_size(), -1);
  EXPECT_EQ(text([&](auto v) { panel.visit_caption(v); }), L"Редактор структуры");
  tests::element_taker taker;
  panel.visit_element(taker.visitor());
  EXPECT_EQ(taker.only().instance, handle_of_element(panel.content()).instance);
  EXPECT_TRUE(cast<grid_layout_impl>(taker.only()));
}

TEST(panel_docker, answers_to_two_names_and_tells_when_it_comes_or_goes) {
  panel_docker<label> panel(101, 20, 30, 55);
  handle h = handle_of_element(panel);
  auto as_panel = cast<panel_impl>(h);
  ASSERT_TRUE(as_panel);
  EXPECT_TRUE(cast<docker_impl>(as_panel));
  EXPECT_FALSE(cast<label_impl>(h));
  EXPECT_EQ(call<&panel_impl::width>(as_panel), 20U);
  EXPECT_EQ(call<&panel_impl::height>(as_panel), 30U);
  EXPECT_TRUE(call<&panel_impl::enabled>(as_panel));

  struct observer : panel_observer_impl {
    void enabled_changed() override { ++calls; }
    int calls = 0;
  } heard;
  panel.set_enabled(false);
  call<&panel_impl::attach_observer>(as_panel,
                                     panel_observer(handle_of<panel_observer_impl>(heard)));
  panel.set_enabled(false);
  EXPECT_EQ(heard.calls, 0);
  panel.set_enabled(true);
  EXPECT_EQ(heard.calls, 1);
}

/// Keeps the dockers of tabs under their ids.
struct tab_taker : docker_visitor_impl {
  void visit(const wchar_t* id, zu::docker docker) override {
    ids.emplace_back(id);
    last = docker;
  }
  docker_visitor visitor() { return docker_visitor(handle_of<docker_visitor_impl>(*this)); }
  std::vector<std::wstring> ids;
  zu::docker last;
};

TEST(tab_layout, a_tab_is_a_docker_under_an_id) {
  tests::base_language base;
  label a(1), b(2);
  tab_layout<2> tabs;
  tabs.place(L"one", 55, a).place(L"two", 67, b).place(L"three", 1, b);
  EXPECT_EQ(tabs.count(), 2U);
  tab_taker taker;
  for (std::uint32_t i : {0U, 1U, 2U}) tabs.visit_tab(i, taker.visitor());
  EXPECT_EQ(taker.ids, (std::vector<std::wstring>{L"one", L"two"}));
  EXPECT_EQ(text([&](auto v) { call<&docker_impl::visit_caption>(taker.last, v); }), L"Шаг Z");
  tests::element_taker inside;
  call<&docker_impl::visit_element>(taker.last, inside.visitor());
  EXPECT_EQ(inside.only().instance, handle_of_element(b).instance);

  std::vector<int> heard;
  tabs.on_tab_changed = [&](int i) { heard.push_back(i); };
  tabs.set_current(1);
  EXPECT_EQ(tabs.current(), 1);
  tabs.assign(0);
  EXPECT_EQ(heard, std::vector<int>{1});
}

TEST(tab_layout, a_tab_that_was_let_go_may_be_shown_again) {
  label a(1);
  tab_layout<1> tabs;
  tabs.place(L"one", 55, a);
  for (int round = 0; round < 2; ++round) {
    tab_taker taker;
    tabs.visit_tab(0, taker.visitor());
    tests::fake_view<element_view_impl> view;
    call<&docker_impl::attach_view>(taker.last, element_view(handle_of<element_view_impl>(view)));
    zu::docker first = taker.last;
    tabs.visit_tab(0, taker.visitor());
    EXPECT_EQ(taker.last.instance, first.instance) << "one docker as long as it is shown";
    call<&docker_impl::attach_view>(first, element_view());  // gone: the sanitizers watch
  }
}

struct question : with_element {
  static constexpr wchar_t id[] = L"zu_test_question_dialog";
  static constexpr std::int32_t caption = -740;
  handle element() override { return handle_of_element(text); }
  label text{55};
};

struct asked : modal_dialog_runner_impl {
  int run(handle docker) override {
    title = text([&](auto v) { call<&docker_impl::visit_caption>(cast<docker_impl>(docker), v); });
    tests::element_taker taker;
    call<&docker_impl::visit_element>(cast<docker_impl>(docker), taker.visitor());
    shown = cast<label_impl>(taker.only());
    return answer;
  }
  std::wstring title;
  handle shown;
  int answer = 1;
};

struct service_taker : modal_dialog_service_visitor_impl {
  void visit(modal_dialog_service found) override { service.reset(found); }
  strong_ref<modal_dialog_service_impl> service;
};
struct attaching : modal_dialog_visitor_impl {
  explicit attaching(modal_dialog_runner_impl& runner) : runner(runner) {}
  void visit(const wchar_t* id, modal_dialog dialog) override {
    found = id;
    call<&modal_dialog_impl::attach_view>(
        dialog, modal_dialog_runner(handle_of<modal_dialog_runner_impl>(runner)));
  }
  std::wstring found;
  modal_dialog_runner_impl& runner;
};

TEST(dialog, is_run_by_the_host_that_offered_to_and_refused_without_one) {
  tests::base_language base;
  question content;
  EXPECT_FALSE(run_dialog(content));
  util::detail::modal_dialog_service_factory<question> factory;
  EXPECT_FALSE(run_dialog(content));
  service_taker taker;
  factory.create({}, handle_of<modal_dialog_service_visitor_impl>(taker));
  EXPECT_FALSE(run_dialog(content)) << "a service, but no runner";
  asked host;
  attaching visitor(host);
  call<&modal_dialog_service_impl::get_dialog>(
      taker.service.get(), modal_dialog_visitor(handle_of<modal_dialog_visitor_impl>(visitor)));
  EXPECT_EQ(visitor.found, question::id);
  EXPECT_TRUE(run_dialog(content));
  EXPECT_EQ(host.title, L"Калькулятор свойств");
  EXPECT_EQ(host.shown.instance, handle_of_element(content.text).instance);
  host.answer = 0;
  EXPECT_FALSE(run_dialog(content));
}

}  // namespace
}  // namespace zu::toolkit
