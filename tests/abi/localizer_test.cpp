// The localizer client at the head of the list finds the host's localizer by itself.

#include "tests/abi/bundle_module.h"

namespace plain {
namespace {

/// A host's context, registry, localizer service and localizer, which note what is asked of them.
struct localizing_host {
  std::vector<std::string> steps;
  std::vector<std::wstring> namespaces;
  Tzu_handle context_given;  ///< what the localizer service was told
  counted localizer;
  counted context;

  Tzu_handle handle_of(const address* table) {
    Tzu_handle h;
    h.table = table, h.instance = this;
    return h;
  }
  Tzu_handle context_handle() { return handle_of(context_table); }
  static localizing_host& host(void* instance) { return *static_cast<localizing_host*>(instance); }

  static Tzu_handle no_names(const void*, void*) { return {}; }
  static Tzu_handle context_referent(const void*, void* instance) {
    return host(instance).context.referent();
  }
  static Tzu_handle localizer_referent(const void*, void* instance) {
    return host(instance).localizer.referent();
  }

  static void get_registry(const void*, void* instance, Tzu_handle visitor) {
    host(instance).steps.push_back("get_registry");
    call<void>(visitor, 1, host(instance).handle_of(registry_table));
  }
  static void find(const void*, void* instance, const wchar_t* name_space, Tzu_handle visitor) {
    host(instance).steps.push_back("find");
    host(instance).namespaces.emplace_back(name_space);
    EXPECT_FALSE(is_empty(query(visitor, "zu_service_visitor_interface_0")));
    EXPECT_TRUE(is_empty(query(visitor, "zu_localizer_service_visitor_interface_2")));
    Tzu_handle receiver = query(visitor, "zu_localizer_service_visitor_interface_1");
    ASSERT_FALSE(is_empty(receiver));
    call<void>(receiver, 1, host(instance).handle_of(service_table));
  }
  static void get_localizer(const void*, void* instance, Tzu_handle visitor, Tzu_handle context) {
    host(instance).steps.push_back("get_localizer");
    host(instance).context_given = context;
    call<void>(visitor, 1, host(instance).handle_of(localizer_table));
  }
  static void nothing(const void*, void*) {}

  static const address context_table[], registry_table[], service_table[], localizer_table[];
};

const address localizing_host::context_table[] = {reinterpret_cast<address>(&no_names),
                                                  reinterpret_cast<address>(&context_referent),
                                                  reinterpret_cast<address>(&get_registry)};
const address localizing_host::registry_table[] = {reinterpret_cast<address>(&no_names),
                                                   reinterpret_cast<address>(&find)};
const address localizing_host::service_table[] = {reinterpret_cast<address>(&no_names),
                                                  reinterpret_cast<address>(&get_localizer)};
const address localizing_host::localizer_table[] = {
    reinterpret_cast<address>(&no_names), reinterpret_cast<address>(&localizer_referent),
    reinterpret_cast<address>(&nothing), reinterpret_cast<address>(&nothing),
    reinterpret_cast<address>(&nothing)};

using localizer_client = bundle_module;

TEST_F(localizer_client, finds_the_hosts_localizer_through_the_registry) {
  localizing_host host;
  call<void>(factory(0), 1, host.context_handle(), Tzu_handle());
  EXPECT_EQ(host.steps, (std::vector<std::string>{"get_registry", "find", "get_localizer"}));
  EXPECT_EQ(host.namespaces, std::vector<std::wstring>{L"zugrid/localizer"});
  EXPECT_EQ(host.context_given, host.context_handle());
  ASSERT_EQ(host.localizer.referrers.size(), 1u);
  EXPECT_FALSE(call<bool>(host.localizer.referrers[0], 2)) << "the localizer is the host's to end";
  host.localizer.announce_end();
}

TEST_F(localizer_client, keeps_its_first_context) {
  localizing_host first, second;
  call<void>(factory(0), 1, first.context_handle(), Tzu_handle());
  call<void>(factory(0), 1, second.context_handle(), Tzu_handle());
  EXPECT_EQ(first.steps.size(), 3u);
  EXPECT_TRUE(second.steps.empty());
  EXPECT_EQ(second.localizer.attached, 0);
  first.localizer.announce_end();
}

TEST_F(localizer_client, goes_on_waiting_after_an_empty_context) {
  localizing_host host;
  call<void>(factory(0), 1, Tzu_handle(), Tzu_handle());
  call<void>(factory(0), 1, host.context_handle(), Tzu_handle());
  EXPECT_EQ(host.steps.size(), 3u);
  host.localizer.announce_end();
}

// The bundle lets go of a localizer that outlives it, while the module is unloaded.
TEST_F(localizer_client, leaves_the_localizer_at_unloading) {
  localizing_host host;
  call<void>(factory(0), 1, host.context_handle(), Tzu_handle());
  ASSERT_EQ(host.localizer.referrers.size(), 1u);
  bundle_module::TearDown();
  module_ = nullptr;
  EXPECT_TRUE(host.localizer.referrers.empty());
}

}  // namespace
}  // namespace plain
