#pragma once
// The panel in which the host shows a scene of the bundle's.

#include <functional>
#include <string>

#include "src/bundle/owned.h"
#include "zu/platform/zuk_viewer2d.h"
#include "zu/viewer.h"

namespace zu::toolkit {

class viewer2d_panel : public viewer_2d_panel_impl {
 public:
  viewer2d_panel() = default;
  viewer2d_panel(const viewer2d_panel&) = delete;
  viewer2d_panel& operator=(const viewer2d_panel&) = delete;
  /// A viewer that is still attached loses the scene.
  virtual ~viewer2d_panel();

  /// There before any viewer is; layers can be added to it at once.
  Tzu_scn_2d* scene() const { return scene_.get(); }
  Tzu_viewer2d* viewer() const { return zu_viewer2d_safe_downcast(viewer_); }
  void set_size(double width, double height) { width_ = width, height_ = height; }
  void set_title(std::wstring title) { title_ = std::move(title); }
  /// Modes for the viewer; must outlive the panel.
  void set_extension(zu::viewer_extension extension) { extension_ = extension; }

  double width() override { return width_; }
  double height() override { return height_; }
  void visit_title(string_visitor visitor) override;
  void attach_viewer(Tzu_viewer* viewer) override;
  void activate() override;
  zu::viewer_extension extension() override { return extension_; }

  std::function<void()> on_activate;
  std::function<void(Tzu_viewer*)> on_viewer;

 private:
  owned<zu_scn_2d_destroy> scene_{zu_scn_2d_create()};
  Tzu_viewer* viewer_ = nullptr;
  double width_ = 20, height_ = 20;
  std::wstring title_;
  zu::viewer_extension extension_;
};

}  // namespace zu::toolkit
