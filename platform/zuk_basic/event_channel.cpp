#include "platform/zuk_basic/event_channel.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

#include "platform/zuk_basic/guarded.h"

using zu::platform::guarded;

namespace {

std::unordered_set<const Tzu_event_channel*>& living() {
  static auto* all = new std::unordered_set<const Tzu_event_channel*>;  // outlives every channel
  return *all;
}

Tzu_event_channel* if_alive(Tzu_event_channel* channel) {
  return Tzu_event_channel::is_alive(channel) ? channel : nullptr;
}

}  // namespace

Tzu_event_channel::Tzu_event_channel() { living().insert(this); }
Tzu_event_channel::~Tzu_event_channel() { living().erase(this); }
bool Tzu_event_channel::is_alive(const Tzu_event_channel* channel) {
  return living().count(channel) != 0;
}

void Tzu_event_channel::add(Tzu_event_client client, void* user) {
  if (client != nullptr) listeners_.push_back({client, user});
}
void Tzu_event_channel::remove(Tzu_event_client client, void* user) {
  auto entry = std::find(listeners_.begin(), listeners_.end(), listener{client, user});
  if (entry != listeners_.end()) listeners_.erase(entry);
}

void Tzu_event_channel::post(std::int32_t property) {
  if (std::find(gathered_.begin(), gathered_.end(), property) == gathered_.end())
    gathered_.push_back(property);
  if (begun_ == 0) deliver();
}
void Tzu_event_channel::end() {
  if (begun_ > 0 && --begun_ == 0 && !gathered_.empty()) deliver();
}

// A client may add and remove clients, or end the channel.
void Tzu_event_channel::deliver() {
  Tzu_event_queue queue{{{{std::exchange(gathered_, {})}}}};
  for (const listener& l : std::vector<listener>(listeners_)) {
    if (!is_alive(this)) return;
    if (std::find(listeners_.begin(), listeners_.end(), l) != listeners_.end())
      l.client(&queue, l.user);
  }
}

void zu_event_channel_add_client(Tzu_event_channel* channel, Tzu_event_client client, void* user) {
  guarded(if_alive(channel), [&](Tzu_event_channel& c) { c.add(client, user); });
}
void zu_event_channel_del_client(Tzu_event_channel* channel, Tzu_event_client client, void* user) {
  guarded(if_alive(channel), [&](Tzu_event_channel& c) { c.remove(client, user); });
}
uint64_t zu_event_queue_get_size(const Tzu_event_queue* queue) {
  return queue != nullptr ? queue->events.size() : 0;
}
uint64_t zu_event_queue_count_update_events(const Tzu_event_queue* queue) {
  return zu_event_queue_get_size(queue);
}
const Tzu_update_event* zu_event_queue_get_update_event(const Tzu_event_queue* queue,
                                                        uint64_t index) {
  return index < zu_event_queue_get_size(queue) ? &queue->events[index] : nullptr;
}
const Tzu_update_event_prop_list* zu_update_event_get_details(const Tzu_update_event* event) {
  return event != nullptr ? &event->details : nullptr;
}
uint64_t zu_update_event_prop_list_get_count(const Tzu_update_event_prop_list* list) {
  return list != nullptr ? list->properties.size() : 0;
}
bool zu_update_event_prop_list_find_integer(const Tzu_update_event_prop_list* list,
                                            int32_t property) {
  return list != nullptr && std::find(list->properties.begin(), list->properties.end(), property) !=
                                list->properties.end();
}
