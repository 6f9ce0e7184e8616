// The two exports of the module.

#include "src/bundle/factory.h"
#include "zu/platform/zuk_api.h"

extern "C" ZU_EXPORT void scary_vcl_bug_crashes_everything_on_unloading() {}

namespace {

using zu::handle;
using zu::slot;

// The instance of the bundle's handle is the host's own pointer and never looked at, so these are
// plain functions and not shims.

void query_nothing(const void*, void*, const char*, const void** table, void** instance) {
  *table = nullptr, *instance = nullptr;
}

handle to_polymorphic(const void*, void* instance) {
  static const slot table[] = {reinterpret_cast<slot>(&query_nothing)};
  handle h;
  h.table = table, h.instance = instance;
  return h;
}

void enumerate_factories(const void*, void*, zu::service_factory_receiver receiver) {
  for (zu::basic_service_factory_impl* factory : zu::service_factories())
    zu::call<&zu::service_factory_receiver_impl::visit>(
        receiver, factory->name_space().c_str(), zu::handle_of<zu::service_factory_impl>(*factory));
}

}  // namespace

extern "C" ZU_EXPORT Tzu_handle zu_bundle_interface_to_custom_pointer(void* instance) {
  static const slot table[] = {
      reinterpret_cast<slot>(&to_polymorphic),
      reinterpret_cast<slot>(&enumerate_factories),
      &scary_vcl_bug_crashes_everything_on_unloading,
      &scary_vcl_bug_crashes_everything_on_unloading,
      &scary_vcl_bug_crashes_everything_on_unloading,
      &scary_vcl_bug_crashes_everything_on_unloading,
  };
  handle h;
  h.table = table, h.instance = instance;
  return h;
}
