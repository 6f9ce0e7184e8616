#pragma once
// The plug-in bundles: found, loaded, and asked for their services.

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "zu/classes.h"
#include "zu/editors.h"
#include "zu/layer2d.h"
#include "zu/objinfo.h"
#include "zu/scene_editor.h"
#include "zu/services.h"
#include "zu/tools.h"
#include "zu/viewer.h"

namespace zu::host {

/// A service together with the layer type that it answers to.
template <class interface> struct typed_service {
  std::string type;
  strong_ref<interface> service;
};

/// A service together with the namespace under which its bundle offers it.
template <class interface> struct named_service {
  std::wstring name_space;
  strong_ref<interface> service;
};

/// The runner of a dialog of an id, which lives until another is set; empty: the bundle's dialog is
/// answered as without windows.
using dialog_runners = std::function<modal_dialog_runner(const std::wstring& id)>;

class bundle final : service_factory_receiver_impl {
 public:
  /// Loads $ZU_BUNDLE, or zuk_grid_layer2d.so beside the program, and then the files of those names
  /// that stand in the same folder. Throws `failure`; a further one may be absent.
  explicit bundle(const std::vector<std::string>& further = {});
  ~bundle();
  bundle(const bundle&) = delete;
  bundle& operator=(const bundle&) = delete;

  // Services of a layer type; an empty handle if the bundle offers none.
  layer_2d_service layers(const std::string& type) const;
  layer_2d_externalization_service externalization(const std::string& type) const;
  layer_2d_renderer_extension_service renderer(const std::string& type) const;

  // For windows. The services of editors come in the order that they ask for.
  const std::vector<named_service<layer_2d_editor_extension_service_impl>>& layer_editors() const {
    return layer_editors_;
  }
  const std::vector<named_service<tool_service_impl>>& tools() const { return tools_; }
  const std::vector<named_service<viewer_2d_extension_service_impl>>& viewer_extensions() const {
    return viewer_extensions_;
  }
  /// Who runs the bundles' dialogs from now on. Without it, and for an id without a runner, a
  /// dialog is declined, but for one that opens with what a person would mostly take.
  void set_dialog_runners(dialog_runners runners);
  bool asks_a_person() const;  ///< by such runners

  /// What takes files, the filters of the service of least order first.
  const std::vector<scene_editor_filter>& filters() const { return filters_; }
  const std::vector<strong_ref<objinfo_service_impl>>& object_infos() const { return infos_; }

  /// Who makes classes of scales; empty if no bundle does.
  class_builder_service classes() const {
    return classes_.empty() ? class_builder_service() : classes_.front().get();
  }

  /// Namespace and factory of every entry, in the bundles' order.
  const std::vector<std::pair<std::wstring, service_factory>>& factories() const {
    return factories_;
  }

 private:
  void visit(const wchar_t* name_space, service_factory factory) override;
  void load(const std::string& path);
  void take_services();
  void sort_services();

  struct registry;
  struct context;
  struct dialogs;

  std::vector<void*> libraries_;
  std::vector<std::pair<std::wstring, service_factory>> factories_;
  strong_ref<bundle_context_impl> context_;
  std::vector<typed_service<layer_2d_service_impl>> layers_;
  std::vector<typed_service<layer_2d_externalization_service_impl>> trees_;
  std::vector<typed_service<layer_2d_renderer_extension_service_impl>> renderers_;
  std::vector<strong_ref<scene_2d_editor_extension_service_impl>> editors_;
  std::vector<scene_editor_filter> filters_;
  std::vector<strong_ref<objinfo_service_impl>> infos_;
  std::vector<named_service<layer_2d_editor_extension_service_impl>> layer_editors_;
  std::vector<named_service<tool_service_impl>> tools_;
  std::vector<named_service<viewer_2d_extension_service_impl>> viewer_extensions_;
  std::vector<strong_ref<class_builder_service_impl>> classes_;
  std::unique_ptr<dialogs> dialogs_;
};

}  // namespace zu::host
