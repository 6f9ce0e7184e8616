#include <gtest/gtest.h>

#include <algorithm>

#include "src/bundle/dialogs.h"
#include "src/bundle/localizer_client.h"
#include "src/bundle/modal_dialog.h"
#include "src/bundle/service_factory.h"
#include "src/bundle/texts.h"
#include "zu/layer2d.h"
#include "zu/platform/zuk_os.h"

namespace {

using namespace zu;

int lives = 0;

struct counted_service : referent<layer_2d_service_impl> {
  explicit counted_service(handle owner) : referent(owner) { ++lives; }
  ~counted_service() override { --lives; }
};
using counted_factory = util::single_service_factory<counted_service, layer_2d_service_impl,
                                                     layer_2d_service_visitor_impl>;

struct holding_visitor : layer_2d_service_visitor_impl {
  strong_ref<layer_2d_service_impl> held;
  int visits = 0;
  void visit(layer_2d_service service) override {
    ++visits;
    held.reset(service);
  }
};
struct careless_visitor : layer_2d_service_visitor_impl {
  int visits = 0;
  void visit(layer_2d_service service) override { visits += service ? 1 : 0; }
};

void create(service_factory_impl& factory, layer_2d_service_visitor_impl& visitor,
            handle owner = {}) {
  call<&service_factory_impl::create>(handle_of<service_factory_impl>(factory), owner,
                                      handle_of<layer_2d_service_visitor_impl>(visitor));
}

TEST(service_factory, gives_one_object_while_somebody_holds_it) {
  counted_factory factory(L"");
  holding_visitor first, second;
  create(factory, first);
  create(factory, second);
  EXPECT_EQ(first.held.get(), second.held.get());
  EXPECT_EQ(lives, 1);
  first.held.reset();
  EXPECT_EQ(lives, 1);
  second.held.reset();
  EXPECT_EQ(lives, 0);
}

TEST(service_factory, makes_a_new_object_for_each_visitor_that_keeps_nothing) {
  counted_factory factory(L"");
  careless_visitor visitor;
  create(factory, visitor);
  EXPECT_EQ(lives, 0);
  create(factory, visitor);
  EXPECT_EQ(lives, 0);
  EXPECT_EQ(visitor.visits, 2);
}

TEST(service_factory, makes_nothing_for_a_visitor_of_another_interface) {
  counted_factory factory(L"");
  struct : layer_2d_renderer_extension_service_visitor_impl {
    int visits = 0;
    void visit(layer_2d_renderer_extension_service) override { ++visits; }
  } other;
  call<&service_factory_impl::create>(
      handle_of<service_factory_impl>(factory), handle(),
      handle_of<layer_2d_renderer_extension_service_visitor_impl>(other));
  EXPECT_EQ(other.visits, 0);
  EXPECT_EQ(lives, 0);
}

TEST(service_factory, without_holders_serves_nobody) {
  util::service_factory<counted_service> factory(L"", {});
  holding_visitor visitor;
  create(factory, visitor);
  EXPECT_EQ(visitor.visits, 0);
  EXPECT_EQ(lives, 0);
}

TEST(service_factory, the_owner_lives_as_long_as_the_service_and_a_later_one_is_ignored) {
  counted_factory owners(L""), factory(L"");
  holding_visitor owner, late_owner, visitor;
  create(owners, owner);
  counted_factory late_owners(L"");
  create(late_owners, late_owner);
  create(factory, visitor, owner.held.get());
  EXPECT_EQ(lives, 3);
  owner.held.reset();
  EXPECT_EQ(lives, 3);
  create(factory, visitor, late_owner.held.get());
  late_owner.held.reset();
  EXPECT_EQ(lives, 2);
  visitor.held.reset();
  EXPECT_EQ(lives, 0);
}

TEST(factory_list, services_go_to_the_end_and_clients_to_the_head_and_all_leave_again) {
  auto before = service_factories();
  {
    counted_factory last(L"zugrid/x");
    EXPECT_EQ(service_factories().back(), &last);
    EXPECT_EQ(service_factories().back()->name_space(), L"zugrid/x");
    struct client : custom_client_factory_impl {
      client() : custom_client_factory_impl(nullptr) {}
    } head;
    EXPECT_EQ(service_factories().front(), &head);
    EXPECT_EQ(head.name_space(), L"");
    EXPECT_EQ(service_factories().size(), before.size() + 2);
  }
  EXPECT_EQ(service_factories(), before);
}

struct test_dialog {
  static constexpr wchar_t id[] = L"zu_test_dialog";
};
using dialog_factory = util::detail::modal_dialog_service_factory<test_dialog>;

struct runner : modal_dialog_runner_impl {
  int result = 7, runs = 0;
  int run(handle) override {
    ++runs;
    return result;
  }
};
struct dialog_visitor : modal_dialog_visitor_impl {
  runner& given;
  std::wstring id;
  explicit dialog_visitor(runner& r) : given(r) {}
  void visit(const wchar_t* dialog_id, modal_dialog dialog) override {
    id = dialog_id;
    call<&modal_dialog_impl::attach_view>(
        dialog, modal_dialog_runner(handle_of<modal_dialog_runner_impl>(given)));
  }
};
struct dialog_service_visitor : modal_dialog_service_visitor_impl {
  strong_ref<modal_dialog_service_impl> held;
  void visit(modal_dialog_service service) override { held.reset(service); }
};

TEST(modal_dialog, runs_through_the_runner_that_the_host_left_in_it) {
  dialog_factory factory;
  EXPECT_EQ(dialog_factory::run(handle()), 0) << "no service";
  dialog_service_visitor services;
  call<&service_factory_impl::create>(handle_of<service_factory_impl>(factory), handle(),
                                      handle_of<modal_dialog_service_visitor_impl>(services));
  EXPECT_EQ(dialog_factory::run(handle()), 0) << "no runner";
  runner host;
  dialog_visitor dialogs(host);
  call<&modal_dialog_service_impl::get_dialog>(
      services.held.get(), modal_dialog_visitor(handle_of<modal_dialog_visitor_impl>(dialogs)));
  EXPECT_EQ(dialogs.id, L"zu_test_dialog");
  EXPECT_EQ(dialog_factory::run(handle()), 7);
  EXPECT_EQ(host.runs, 1);
  services.held.reset();
  EXPECT_EQ(dialog_factory::run(handle()), 0) << "the service is gone";
  EXPECT_EQ(host.runs, 1);
}

// A host with a localizer that knows text 300.
struct test_localizer : referent<localizer_impl> {
  using referent::referent;
  void get_text(std::int32_t id, string_visitor visitor) override {
    if (id == 300) call<&string_visitor_impl::visit>(visitor, L"from the host");
  }
};
struct test_localizer_service : localizer_service_impl {
  strong_ref<localizer_impl> kept{handle_of<localizer_impl>(*new test_localizer)};
  handle context;
  void get_localizer(localizer_visitor visitor, bundle_context from) override {
    context = from;
    call<&localizer_visitor_impl::visit>(visitor, kept.get());
  }
};
struct test_registry : service_registry_impl {
  test_localizer_service service;
  std::wstring asked;
  void find(const wchar_t* name_space, service_visitor visitor) override {
    asked = name_space;
    call<&localizer_service_visitor_impl::visit>(
        cast<localizer_service_visitor_impl>(visitor),
        localizer_service(handle_of<localizer_service_impl>(service)));
  }
};
struct test_context : referent<bundle_context_impl> {
  test_registry registry;
  void get_registry(service_registry_visitor visitor) override {
    call<&service_registry_visitor_impl::visit>(
        visitor, service_registry(handle_of<service_registry_impl>(registry)));
  }
};

TEST(localizer_client, finds_the_localizer_once_and_falls_back_when_it_goes) {
  strong_ref<bundle_context_impl> context, second;
  auto* first_host = new test_context;
  context.reset(handle_of<bundle_context_impl>(*first_host));
  auto* second_host = new test_context;
  second.reset(handle_of<bundle_context_impl>(*second_host));

  zu::detail::local_factory_impl client;
  handle factory = handle_of<service_factory_impl>(client);
  call<&service_factory_impl::create>(factory, context.get(), handle());
  EXPECT_EQ(first_host->registry.asked, L"zugrid/localizer");
  EXPECT_EQ(first_host->registry.service.context, context.get());
  call<&service_factory_impl::create>(factory, second.get(), handle());
  EXPECT_EQ(second_host->registry.asked, L"") << "the first context stays";
  EXPECT_EQ(client.current(), first_host->registry.service.kept.get());

  EXPECT_EQ(load_text(300), L"from the host");
  EXPECT_EQ(load_text(23), L"") << "an id that the localizer does not know gives no text";
  first_host->registry.service.kept.reset();
  EXPECT_FALSE(client.current());
  zu_res_set_lng(50000);
  EXPECT_EQ(load_text(23), L"Scale");
}

}  // namespace
