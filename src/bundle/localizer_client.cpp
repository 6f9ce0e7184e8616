#include "src/bundle/localizer_client.h"

namespace zu::detail {

void local_factory_impl::create(handle context, handle) {
  if (context_) return;
  context_ = bundle_context(context);
  call<&bundle_context_impl::get_registry>(context_,
                                           handle_of<service_registry_visitor_impl>(*this));
}

void local_factory_impl::visit(service_registry registry) {
  call<&service_registry_impl::find>(registry, ZU_NAMESPACE(L"/localizer"),
                                     handle_of<service_visitor_impl>(*this));
}

void local_factory_impl::visit(localizer_service service) {
  call<&localizer_service_impl::get_localizer>(service, handle_of<localizer_visitor_impl>(*this),
                                               context_);
}

void local_factory_impl::visit(localizer found) { localizer_.reset(found); }

}  // namespace zu::detail

zu::localizer zu::localizer_of_host() {
  for (basic_service_factory_impl* factory : service_factories())
    if (auto* client = dynamic_cast<detail::local_factory_impl*>(factory)) return client->current();
  return {};
}
