#pragma once
// Finds the host's localizer, once, when the host offers its registry.

#include "src/bundle/factory.h"
#include "zu/polymorphic.h"

namespace zu::detail {

class local_factory_impl : public custom_client_factory_impl,
                           public service_registry_visitor_impl,
                           public polymorphic<service_visitor_impl>,
                           public polymorphic<localizer_service_visitor_impl>,
                           public localizer_visitor_impl,
                           public localizer_client_impl {
 public:
  local_factory_impl() : custom_client_factory_impl(L"") {}

  /// `context` is the host's way to its registry; the first one stays.
  void create(handle context, handle visitor) override;
  void visit(service_registry) override;
  void visit(localizer_service) override;
  void visit(localizer) override;

  /// Empty while the host has none, and again when it lets go of it.
  localizer current() const { return localizer_.get(); }

 private:
  ref<localizer, 1> localizer_;
  bundle_context context_;
};

}  // namespace zu::detail

namespace zu {

/// The host's localizer, or an empty handle.
localizer localizer_of_host();

}  // namespace zu
