#pragma once
// How a host and a bundle meet: factories, the registry and its context, the localizer, dialogs.

#include "zu/referent.h"
#include "zu/strings.h"

namespace zu {

/// Makes one service on demand. A factory that cannot serve stays silent.
struct service_factory_impl : plain_interface<service_factory_impl> {
  static constexpr char name[] = "zu_service_factory_interface_1";
  /// Hands the service to `visitor` if that answers to the visitor name of the service's
  /// interface. `owner` is counted and kept alive by a service made now; it may be empty.
  virtual void create(handle /*owner*/, handle /*visitor*/) {}
  using operations = in_order<&service_factory_impl::create>;
};
using service_factory = of<service_factory_impl>;

/// Given by the host to the bundle's enumeration of factories.
struct service_factory_receiver_impl : plain_interface<service_factory_receiver_impl> {
  static constexpr char name[] = "zu_service_factory_receiver_interface_1";
  virtual void visit(const wchar_t* /*name_space*/, service_factory) {}
  using operations = in_order<&service_factory_receiver_impl::visit>;
};
using service_factory_receiver = of<service_factory_receiver_impl>;

/// The bundle itself, as `zu_bundle_interface_to_custom_pointer` gives it.
struct bundle_impl : plain_interface<bundle_impl> {
  static constexpr char name[] = "zu_bundle_interface_1";
  virtual void enumerate_factories(service_factory_receiver) {}
  virtual void unused_2() {}
  virtual void unused_3() {}
  virtual void unused_4() {}
  virtual void unused_5() {}
  using operations =
      in_order<&bundle_impl::enumerate_factories, &bundle_impl::unused_2, &bundle_impl::unused_3,
               &bundle_impl::unused_4, &bundle_impl::unused_5>;
};
using bundle = of<bundle_impl>;

/// Finds a receiver of a service: it answers to the visitor name of the wanted interface.
struct service_visitor_impl : plain_interface<service_visitor_impl> {
  static constexpr char name[] = "zu_service_visitor_interface_0";
  using operations = in_order<>;
};
using service_visitor = of<service_visitor_impl>;

struct service_registry_impl : plain_interface<service_registry_impl> {
  static constexpr char name[] = "zu_service_registry_interface_0";
  /// Hands the services of a namespace (authority and path) to the visitor.
  virtual void find(const wchar_t* /*name_space*/, service_visitor) {}
  using operations = in_order<&service_registry_impl::find>;
};
using service_registry = of<service_registry_impl>;

struct service_registry_visitor_impl : plain_interface<service_registry_visitor_impl> {
  static constexpr char name[] = "zu_service_registry_visitor_interface_0";
  virtual void visit(service_registry) {}
  using operations = in_order<&service_registry_visitor_impl::visit>;
};
using service_registry_visitor = of<service_registry_visitor_impl>;

struct service_category_visitor_impl : plain_interface<service_category_visitor_impl> {
  static constexpr char name[] = "zu_service_category_visitor_interface_1";
  virtual void visit(const wchar_t* /*category*/) {}
  using operations = in_order<&service_category_visitor_impl::visit>;
};
using service_category_visitor = of<service_category_visitor_impl>;

/// What the host gives a client factory: the way to its registry.
struct bundle_context_impl : counted_interface<bundle_context_impl> {
  static constexpr char name[] = "zu_bundle_context_interface_1";
  virtual void get_registry(service_registry_visitor) {}
  using operations = in_order<&bundle_context_impl::get_registry>;
};
using bundle_context = of<bundle_context_impl>;

// Texts and bitmaps of the host's choice of language.

struct localizer_impl : counted_interface<localizer_impl> {
  static constexpr char name[] = "zu_localizer_interface_1";
  /// Texts of the bundle that asked; an id that it does not know gives no call.
  virtual void get_text(std::int32_t /*id*/, string_visitor) {}
  virtual void get_bitmap(std::int32_t /*id*/, bytes_visitor) {}
  virtual void get_raw_bitmap(std::int32_t /*id*/, handle /*bitmap visitor*/) {}
  using operations = in_order<&localizer_impl::get_text, &localizer_impl::get_bitmap,
                              &localizer_impl::get_raw_bitmap>;
};
using localizer = of<localizer_impl>;

struct localizer_visitor_impl : plain_interface<localizer_visitor_impl> {
  static constexpr char name[] = "zu_localizer_visitor_interface_1";
  virtual void visit(localizer) {}
  using operations = in_order<&localizer_visitor_impl::visit>;
};
using localizer_visitor = of<localizer_visitor_impl>;

struct localizer_service_impl : plain_interface<localizer_service_impl> {
  static constexpr char name[] = "zu_localizer_service_interface_1";
  /// Gives the localizer of the bundle that `context` stands for.
  virtual void get_localizer(localizer_visitor, bundle_context) {}
  using operations = in_order<&localizer_service_impl::get_localizer>;
};
using localizer_service = of<localizer_service_impl>;

struct localizer_service_visitor_impl : plain_interface<localizer_service_visitor_impl> {
  static constexpr char name[] = "zu_localizer_service_visitor_interface_1";
  virtual void visit(localizer_service) {}
  using operations = in_order<&localizer_service_visitor_impl::visit>;
};
using localizer_service_visitor = of<localizer_service_visitor_impl>;

struct localizer_client_impl : plain_interface<localizer_client_impl> {
  static constexpr char name[] = "zu_localizer_client_interface_0";
  virtual void unused_1() {}
  using operations = in_order<&localizer_client_impl::unused_1>;
};

// Modal dialogs: the host keeps a runner in each dialog; the bundle runs its dockers through it.

/// The host's: shows a docker until the person closes it.
struct modal_dialog_runner_impl : plain_interface<modal_dialog_runner_impl> {
  static constexpr char name[] = "zu_modal_dialog_runner_interface_101";
  /// Non-zero when the person accepted.
  virtual int run(handle /*docker*/) { return 0; }
  using operations = in_order<&modal_dialog_runner_impl::run>;
};
using modal_dialog_runner = of<modal_dialog_runner_impl>;

struct modal_dialog_impl : plain_interface<modal_dialog_impl> {
  static constexpr char name[] = "zu_modal_dialog_interface_101";
  virtual void attach_view(modal_dialog_runner) {}  ///< kept for the life of the service
  using operations = in_order<&modal_dialog_impl::attach_view>;
};
using modal_dialog = of<modal_dialog_impl>;

struct modal_dialog_visitor_impl : plain_interface<modal_dialog_visitor_impl> {
  static constexpr char name[] = "zu_modal_dialog_visitor_interface_101";
  virtual void visit(const wchar_t* /*id*/, modal_dialog) {}
  using operations = in_order<&modal_dialog_visitor_impl::visit>;
};
using modal_dialog_visitor = of<modal_dialog_visitor_impl>;

struct modal_dialog_service_impl : counted_interface<modal_dialog_service_impl> {
  static constexpr char name[] = "zu_modal_dialog_service_interface_102";
  virtual void get_dialog(modal_dialog_visitor) {}
  using operations = in_order<&modal_dialog_service_impl::get_dialog>;
};
using modal_dialog_service = of<modal_dialog_service_impl>;

struct modal_dialog_service_visitor_impl : plain_interface<modal_dialog_service_visitor_impl> {
  static constexpr char name[] = "zu_modal_dialog_service_visitor_interface_102";
  virtual void visit(modal_dialog_service) {}
  using operations = in_order<&modal_dialog_service_visitor_impl::visit>;
};

}  // namespace zu
