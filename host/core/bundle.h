#pragma once
// The plug-in bundle: found, loaded, and asked for its services.

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "zu/layer2d.h"
#include "zu/objinfo.h"
#include "zu/scene_editor.h"
#include "zu/services.h"

namespace zu::host {

/// A service together with the layer type that it answers to.
template <class interface> struct typed_service {
  std::string type;
  strong_ref<interface> service;
};

class bundle final : service_factory_receiver_impl {
 public:
  /// Loads $ZU_BUNDLE, or zuk_grid_layer2d.so beside the program. Throws `failure`.
  bundle();
  ~bundle();
  bundle(const bundle&) = delete;
  bundle& operator=(const bundle&) = delete;

  // Services of a layer type; an empty handle if the bundle offers none.
  layer_2d_service layers(const std::string& type) const;
  layer_2d_externalization_service externalization(const std::string& type) const;
  layer_2d_renderer_extension_service renderer(const std::string& type) const;

  /// What takes files, the filters of the service of least order first.
  const std::vector<scene_editor_filter>& filters() const { return filters_; }
  const std::vector<strong_ref<objinfo_service_impl>>& object_infos() const { return infos_; }

  /// Namespace and factory of every entry, in the bundle's order.
  const std::vector<std::pair<std::wstring, service_factory>>& factories() const {
    return factories_;
  }

 private:
  void visit(const wchar_t* name_space, service_factory factory) override;
  void take_services();
  void offer_registry();

  struct registry;
  struct context;
  struct dialogs;

  void* library_ = nullptr;
  std::vector<std::pair<std::wstring, service_factory>> factories_;
  strong_ref<bundle_context_impl> context_;
  std::vector<typed_service<layer_2d_service_impl>> layers_;
  std::vector<typed_service<layer_2d_externalization_service_impl>> trees_;
  std::vector<typed_service<layer_2d_renderer_extension_service_impl>> renderers_;
  std::vector<strong_ref<scene_2d_editor_extension_service_impl>> editors_;
  std::vector<scene_editor_filter> filters_;
  std::vector<strong_ref<objinfo_service_impl>> infos_;
  std::unique_ptr<dialogs> dialogs_;
};

}  // namespace zu::host
