#pragma once
// The record of table data.

#include <string>

#include "platform/zuk_attr_data/id_runs.h"
#include "platform/zuk_basic/event_channel.h"
#include "zu/platform/zuk_attr_data.h"

struct Tzu_attr_data {};

struct Tzu_table_data : Tzu_attr_data {
  /// Changes the selection between begin and end, and tells of it.
  template <class change> void select(change c) {
    channel.begin();
    c(selected);
    channel.post(zu_update_selection);
    channel.end();
  }

  std::wstring source;
  zu::platform::id_runs selected;
  Tzu_event_channel channel;
};
