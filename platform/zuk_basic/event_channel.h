#pragma once
// Channels through which an object tells that it is another.

#include <cstddef>
#include <cstdint>
#include <vector>

#include "zu/platform/zuk_basic.h"

/// What changed, each number once, in the order in which it did.
struct Tzu_update_event_prop_list {
  std::vector<std::int32_t> properties;
};
struct Tzu_update_event {
  Tzu_update_event_prop_list details;
};
struct Tzu_event_queue {
  std::vector<Tzu_update_event> events;
};

/// Gathers between begin and end, and posts once. Stands in the object that it speaks for.
struct Tzu_event_channel {
  Tzu_event_channel();
  ~Tzu_event_channel();
  Tzu_event_channel(const Tzu_event_channel&) = delete;
  Tzu_event_channel& operator=(const Tzu_event_channel&) = delete;

  void add(Tzu_event_client client, void* user);
  void remove(Tzu_event_client client, void* user);
  void begin() { ++begun_; }
  void end();
  void post(std::int32_t property);
  /// The channel at an address is still there.
  static bool is_alive(const Tzu_event_channel* channel);

 private:
  struct listener {
    Tzu_event_client client;
    void* user;
    bool operator==(const listener&) const = default;
  };
  void deliver();

  std::vector<listener> listeners_;
  std::vector<std::int32_t> gathered_;
  std::size_t begun_ = 0;
};
