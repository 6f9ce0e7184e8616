#include "host/core/bundle.h"

#include <dlfcn.h>

#include <cstdlib>
#include <filesystem>

#include "host/core/failure.h"
#include "host/core/texts.h"

namespace zu::host {
namespace {

/// Receives a service of one interface and keeps it.
template <class interface, class visitor_impl> struct receiver final : visitor_impl {
  strong_ref<interface> held;
  void visit(of<interface> service) override { held.reset(service); }
};

template <class interface, class visitor_impl>
void take(service_factory factory, handle owner, std::vector<typed_service<interface>>& services) {
  receiver<interface, visitor_impl> receiver;
  call<&service_factory_impl::create>(factory, owner, handle(handle_of<visitor_impl>(receiver)));
  if (!receiver.held) return;
  kept_text type;
  call<&interface::get_type>(receiver.held.get(), type.visitor());
  services.push_back({narrow(type.get()), receiver.held});
}

template <class interface>
of<interface> find(const std::vector<typed_service<interface>>& services, const std::string& type) {
  for (const auto& entry : services)
    if (entry.type == type) return entry.service.get();
  return {};
}

std::string bundle_path() {
  if (const char* given = std::getenv("ZU_BUNDLE")) return given;
  namespace fs = std::filesystem;
  fs::path program = fs::read_symlink("/proc/self/exe");
  return (program.parent_path().parent_path() / "lib" / "zuk_grid_layer2d.so").string();
}

}  // namespace

/// What the bundle finds of other services: a command line has none of a localizer.
struct bundle::registry final : service_registry_impl {};

struct bundle::context final : referent<bundle_context_impl> {
  void get_registry(service_registry_visitor visitor) override {
    call<&service_registry_visitor_impl::visit>(
        visitor, service_registry(handle_of<service_registry_impl>(services)));
  }
  registry services;
};

bundle::bundle() {
  std::string path = bundle_path();
  library_ = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (library_ == nullptr) throw failure(path, std::string("cannot be loaded: ") + dlerror());
  using entry = Tzu_handle (*)(void*);
  auto open = reinterpret_cast<entry>(dlsym(library_, "zu_bundle_interface_to_custom_pointer"));
  if (open == nullptr) throw failure(path, "is no bundle");
  call<&bundle_impl::enumerate_factories>(
      open(this), service_factory_receiver(handle_of<service_factory_receiver_impl>(*this)));
  offer_registry();
  take_services();
}

bundle::~bundle() {
  renderers_.clear();
  trees_.clear();
  layers_.clear();
  context_.reset();
  if (library_ != nullptr) dlclose(library_);
}

void bundle::visit(const wchar_t* name_space, service_factory factory) {
  factories_.emplace_back(name_space, factory);
}

void bundle::offer_registry() {
  context_.reset(handle_of<bundle_context_impl>(*new context));
  // The client stands at the head.
  if (!factories_.empty())
    call<&service_factory_impl::create>(factories_.front().second, handle(context_.get()),
                                        handle());
}

void bundle::take_services() {
  handle owner = context_.get();
  for (const auto& [name_space, factory] : factories_) {
    take<layer_2d_service_impl, layer_2d_service_visitor_impl>(factory, owner, layers_);
    take<layer_2d_externalization_service_impl, layer_2d_externalization_service_visitor_impl>(
        factory, owner, trees_);
    take<layer_2d_renderer_extension_service_impl,
         layer_2d_renderer_extension_service_visitor_impl>(factory, owner, renderers_);
  }
}

layer_2d_service bundle::layers(const std::string& type) const { return find(layers_, type); }
layer_2d_externalization_service bundle::externalization(const std::string& type) const {
  return find(trees_, type);
}
layer_2d_renderer_extension_service bundle::renderer(const std::string& type) const {
  return find(renderers_, type);
}

}  // namespace zu::host
