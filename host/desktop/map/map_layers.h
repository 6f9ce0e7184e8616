#pragma once
// The layers of a scene as a map draws them.

#include "host/core/scene.h"
#include "zu/platform/zuk_viewer2d.h"

namespace zu::desktop {

class map_layers {
 public:
  virtual ~map_layers() = default;
  virtual std::size_t count() const = 0;
  /// Draws a layer, the lowest first, unless it is hidden or its source is missing.
  virtual void draw(std::size_t index, Izu_render* render) const = 0;
};

/// The layers of a scene of the host's own.
class host_layers final : public map_layers {
 public:
  explicit host_layers(const host::scene& shown) : shown_(shown) {}
  std::size_t count() const override { return shown_.layers().size(); }
  void draw(std::size_t index, Izu_render* render) const override;

 private:
  const host::scene& shown_;
};

/// The layers of whichever scene a viewer was given: those of the bundle's own previews.
class viewer_layers final : public map_layers {
 public:
  /// Without services nothing is drawn.
  viewer_layers(const Tzu_viewer2d* viewer, const host::bundle* services)
      : viewer_(viewer), services_(services) {}
  std::size_t count() const override;
  void draw(std::size_t index, Izu_render* render) const override;

 private:
  const Tzu_viewer2d* viewer_;
  const host::bundle* services_;
};

}  // namespace zu::desktop
