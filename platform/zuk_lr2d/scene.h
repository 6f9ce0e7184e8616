#pragma once
// The records of layers and scenes.

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/zuk_basic/event_channel.h"
#include "platform/zuk_lr2d/own_state.h"
#include "platform/zuk_scn_2d/axes.h"
#include "platform/zuk_scn_2d/prf_data.h"
#include "platform/zuk_styles/symbols.h"
#include "zu/platform/zuk_lr2d.h"

struct Izu_layer {
  std::string type;
  std::wstring source, caption, subtype;
  Tzu_handle plugin;
  Tzu_scn_2d* scene = nullptr;
  Tzu_attr_data* data = nullptr;
  std::unique_ptr<zu::platform::own_state> own;  // of a layer without a plug-in object
  std::optional<Tzu_box_d2> box;
  bool missing = false, visible = true, own_selected_style = false;
  uint64_t changes = 0;
  Tzu_event_channel channel;
};

struct Tzu_scn_2d {
  std::vector<Izu_layer*> layers;  // the lowest first
  Izu_layer* active = nullptr;
  bool box_is_known = false;
  std::optional<Tzu_box_d2> box;  // of the visible layers, once it is known
  std::wstring projection;
  Tzu_optional_color selected{{255, 220, 0, 64}, 0};  // unset, but to be seen on any map
  std::optional<Tzu_pln_style> selected_line;
  Tzu_prf_data profile;
  Tzu_margins margins;
  Tzu_axes axes;
  Tzu_event_channel channel;
};
