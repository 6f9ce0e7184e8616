#include "src/bundle/factory.h"

#include <algorithm>

namespace zu {
namespace {

void remove_first(basic_service_factory_impl* factory) {
  auto& all = service_factories();
  auto entry = std::find(all.begin(), all.end(), factory);
  if (entry != all.end()) all.erase(entry);
}

}  // namespace

std::list<basic_service_factory_impl*>& service_factories() {
  static std::list<basic_service_factory_impl*> all;
  return all;
}

custom_service_factory_impl::custom_service_factory_impl(const wchar_t* name_space)
    : basic_service_factory_impl(name_space) {
  service_factories().push_back(this);
}
custom_service_factory_impl::~custom_service_factory_impl() { remove_first(this); }

custom_client_factory_impl::custom_client_factory_impl(const wchar_t* name_space)
    : basic_service_factory_impl(name_space) {
  service_factories().push_front(this);
}
custom_client_factory_impl::~custom_client_factory_impl() { remove_first(this); }

}  // namespace zu
