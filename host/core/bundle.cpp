#include "host/core/bundle.h"

#include <dlfcn.h>

#include <algorithm>
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
void take_untyped(service_factory factory, handle owner,
                  std::vector<strong_ref<interface>>& services) {
  receiver<interface, visitor_impl> receiver;
  call<&service_factory_impl::create>(factory, owner, handle(handle_of<visitor_impl>(receiver)));
  if (receiver.held) services.push_back(receiver.held);
}

template <class interface, class visitor_impl>
void take(service_factory factory, handle owner, std::vector<typed_service<interface>>& services) {
  receiver<interface, visitor_impl> receiver;
  call<&service_factory_impl::create>(factory, owner, handle(handle_of<visitor_impl>(receiver)));
  if (!receiver.held) return;
  kept_text type;
  call<&interface::get_type>(receiver.held.get(), type.visitor());
  services.push_back({narrow(type.get()), receiver.held});
}

template <class interface, class visitor_impl>
void take_named(const std::wstring& name_space, service_factory factory, handle owner,
                std::vector<named_service<interface>>& services) {
  receiver<interface, visitor_impl> receiver;
  call<&service_factory_impl::create>(factory, owner, handle(handle_of<visitor_impl>(receiver)));
  if (receiver.held) services.push_back({name_space, receiver.held});
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

/// Answers the bundles' dialogs: by the host's runners, and where there is none with the settings
/// that they open with, where that is what a person would mostly take.
struct bundle::dialogs final : modal_dialog_visitor_impl {
  struct runner final : modal_dialog_runner_impl {
    explicit runner(bool accepts) : accepts(accepts) {}
    int run(handle) override { return accepts ? 1 : 0; }
    bool accepts;
  };
  void visit(const wchar_t* id, modal_dialog dialog) override {
    modal_dialog_runner chosen = runners ? runners(id) : modal_dialog_runner();
    if (!chosen) {
      runner& own = std::wstring(id) == L"zu_segy_params_dialog" ? accepting : declining;
      chosen = modal_dialog_runner(handle_of<modal_dialog_runner_impl>(own));
    }
    call<&modal_dialog_impl::attach_view>(dialog, chosen);
  }
  void attach() {
    for (const auto& service : services)
      call<&modal_dialog_service_impl::get_dialog>(
          service.get(), modal_dialog_visitor(handle_of<modal_dialog_visitor_impl>(*this)));
  }
  runner accepting{true}, declining{false};
  dialog_runners runners;
  std::vector<strong_ref<modal_dialog_service_impl>> services;
};

/// Keeps the filters of a service.
struct kept_filters final : scene_editor_filter_visitor_impl {
  explicit kept_filters(std::vector<scene_editor_filter>& all) : all(all) {}
  void visit(scene_editor_filter filter) override { all.push_back(filter); }
  std::vector<scene_editor_filter>& all;
};

bundle::bundle(const std::vector<std::string>& further) : dialogs_(std::make_unique<dialogs>()) {
  context_.reset(handle_of<bundle_context_impl>(*new context));
  namespace fs = std::filesystem;
  fs::path path = bundle_path();
  load(path.string());
  for (const std::string& name : further)
    if (fs::path beside = path.parent_path() / name; fs::exists(beside)) load(beside.string());
  take_services();
}

bundle::~bundle() {
  dialogs_->services.clear();
  classes_.clear();
  viewer_extensions_.clear();
  tools_.clear();
  layer_editors_.clear();
  infos_.clear();
  filters_.clear();
  editors_.clear();
  renderers_.clear();
  trees_.clear();
  layers_.clear();
  context_.reset();
  std::for_each(libraries_.rbegin(), libraries_.rend(), dlclose);
}

void bundle::load(const std::string& path) {
  void* library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) throw failure(path, std::string("cannot be loaded: ") + dlerror());
  libraries_.push_back(library);
  using entry = Tzu_handle (*)(void*);
  auto open = reinterpret_cast<entry>(dlsym(library, "zu_bundle_interface_to_custom_pointer"));
  if (open == nullptr) throw failure(path, "is no bundle");
  std::size_t client = factories_.size();
  call<&bundle_impl::enumerate_factories>(
      open(this), service_factory_receiver(handle_of<service_factory_receiver_impl>(*this)));
  // The client of the registry stands at the head.
  if (client < factories_.size())
    call<&service_factory_impl::create>(factories_[client].second, handle(context_.get()),
                                        handle());
}

void bundle::visit(const wchar_t* name_space, service_factory factory) {
  factories_.emplace_back(name_space, factory);
}

void bundle::take_services() {
  handle owner = context_.get();
  for (const auto& [name_space, factory] : factories_) {
    take<layer_2d_service_impl, layer_2d_service_visitor_impl>(factory, owner, layers_);
    take<layer_2d_externalization_service_impl, layer_2d_externalization_service_visitor_impl>(
        factory, owner, trees_);
    take<layer_2d_renderer_extension_service_impl,
         layer_2d_renderer_extension_service_visitor_impl>(factory, owner, renderers_);
    take_untyped<scene_2d_editor_extension_service_impl,
                 scene_2d_editor_extension_service_visitor_impl>(factory, owner, editors_);
    take_untyped<objinfo_service_impl, objinfo_service_visitor_impl>(factory, owner, infos_);
    take_untyped<class_builder_service_impl, class_builder_service_visitor_impl>(factory, owner,
                                                                                 classes_);
    take_untyped<modal_dialog_service_impl, modal_dialog_service_visitor_impl>(factory, owner,
                                                                               dialogs_->services);
    take_named<layer_2d_editor_extension_service_impl,
               layer_2d_editor_extension_service_visitor_impl>(name_space, factory, owner,
                                                               layer_editors_);
    take_named<tool_service_impl, tool_service_visitor_impl>(name_space, factory, owner, tools_);
    take_named<viewer_2d_extension_service_impl, viewer_2d_extension_service_visitor_impl>(
        name_space, factory, owner, viewer_extensions_);
  }
  dialogs_->attach();
  sort_services();
  kept_filters keep(filters_);
  for (const auto& service : editors_)
    call<&scene_2d_editor_extension_service_impl::get_filters>(
        service.get(),
        scene_editor_filter_visitor(handle_of<scene_editor_filter_visitor_impl>(keep)));
}

void bundle::sort_services() {
  std::stable_sort(editors_.begin(), editors_.end(), [](const auto& a, const auto& b) {
    return call<&scene_2d_editor_extension_service_impl::get_order>(a.get()) <
           call<&scene_2d_editor_extension_service_impl::get_order>(b.get());
  });
  std::stable_sort(layer_editors_.begin(), layer_editors_.end(), [](const auto& a, const auto& b) {
    return call<&layer_2d_editor_extension_service_impl::get_order>(a.service.get()) <
           call<&layer_2d_editor_extension_service_impl::get_order>(b.service.get());
  });
}

void bundle::set_dialog_runners(dialog_runners runners) {
  dialogs_->runners = std::move(runners);
  dialogs_->attach();
}

bool bundle::asks_a_person() const { return static_cast<bool>(dialogs_->runners); }

layer_2d_service bundle::layers(const std::string& type) const { return find(layers_, type); }
layer_2d_externalization_service bundle::externalization(const std::string& type) const {
  return find(trees_, type);
}
layer_2d_renderer_extension_service bundle::renderer(const std::string& type) const {
  return find(renderers_, type);
}

}  // namespace zu::host
