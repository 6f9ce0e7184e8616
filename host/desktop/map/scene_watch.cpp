#include "host/desktop/map/scene_watch.h"

#include <cstdint>
#include <initializer_list>

namespace zu::desktop {
namespace {

/// Whether an event of the queue tells of one of some properties.
bool tells(const Tzu_event_queue* queue, std::initializer_list<int> properties) {
  for (std::uint64_t i = 0; i < zu_event_queue_count_update_events(queue); ++i)
    for (int property : properties)
      if (zu_update_event_prop_list_find_integer(
              zu_update_event_get_details(zu_event_queue_get_update_event(queue, i)), property))
        return true;
  return false;
}

}  // namespace

void scene_watch::watch(Tzu_scn_2d* scene) {
  scene_ = scene;
  follow_layers();
}

void scene_watch::leave() {
  for (Tzu_event_channel* channel : channels_)
    zu_event_channel_del_client(channel, &scene_watch::hear, this);
  channels_.clear();
}

void scene_watch::listen(Tzu_event_channel* channel) {
  if (channel == nullptr) return;
  zu_event_channel_add_client(channel, &scene_watch::hear, this);
  channels_.push_back(channel);
}

void scene_watch::follow_layers() {
  leave();
  if (scene_ == nullptr) return;
  listen(zu_scn_get_update_event_channel(scene_));
  for (std::uint64_t i = 0; i < zu_scn_2d_get_layer_count(scene_); ++i) {
    Izu_layer* layer = zu_scn_2d_get_layer(scene_, i);
    listen(zu_lr_get_update_event_channel(layer));
    if (Tzu_table_data* table = zu_lr_get_data_ptr(layer))
      listen(zu_table_data_get_update_event_channel(table));
  }
}

void scene_watch::hear(Tzu_event_queue* queue, void* user) {
  auto& self = *static_cast<scene_watch*>(user);
  if (tells(queue, {zu_update_layers})) self.follow_layers();
  if (tells(queue, {zu_update_layers, zu_update_projection, zu_update_selection,
                    zu_update_structure, zu_update_data}))
    self.changed_();
}

}  // namespace zu::desktop
