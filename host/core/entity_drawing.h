#pragma once
// Drawing of any entity of a scene by whoever knows its type.

#include "host/core/bundle.h"
#include "zu/platform/zuk_render.h"

namespace zu::host {

/// Draws an entity, its selection included. What nobody can draw is left alone.
void draw_entity(const bundle& services, Izu_render* render, Izu_layer* entity);

}  // namespace zu::host
