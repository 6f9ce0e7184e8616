#include "platform/zuk_attr_data/table_data.h"

#include <new>

#include "platform/zuk_basic/guarded.h"

using zu::platform::guarded;
using zu::platform::id_runs;

Tzu_table_data* zu_table_data_create() { return new (std::nothrow) Tzu_table_data; }
void zu_table_data_destroy(Tzu_table_data* table) { delete table; }
Tzu_attr_data* zu_table_data_safe_upcast(Tzu_table_data* table) { return table; }

void zu_table_data_set_wsource(Tzu_table_data* table, const wchar_t* source) {
  guarded(table, [&](Tzu_table_data& t) { t.source = source != nullptr ? source : L""; });
}
void zu_table_data_get_wsource(const Tzu_table_data* table, Tzu_string_adp* adapter) {
  guarded(table, [&](const Tzu_table_data& t) { zu_string_adp_feed(adapter, t.source.c_str()); });
}
void zu_table_data_begin_update(Tzu_table_data* table) {
  guarded(table, [](Tzu_table_data& t) { t.channel.begin(); });
}
void zu_table_data_end_update(Tzu_table_data* table) {
  guarded(table, [](Tzu_table_data& t) { t.channel.end(); });
}
Tzu_event_channel* zu_table_data_get_update_event_channel(Tzu_table_data* table) {
  return table != nullptr ? &table->channel : nullptr;
}

void zu_table_data_set_selected_id(Tzu_table_data* table, uint64_t id, bool selected) {
  zu_table_data_set_selected_range(table, id, 1, selected);
}
void zu_table_data_set_selected_range(Tzu_table_data* table, uint64_t first, uint64_t count,
                                      bool selected) {
  if (count == 0) return;
  uint64_t last = count - 1 > UINT64_MAX - first ? UINT64_MAX : first + count - 1;
  guarded(table, [&](Tzu_table_data& t) {
    t.select([&](id_runs& s) { selected ? s.insert({first, last}) : s.erase({first, last}); });
  });
}
void zu_table_data_flip_selected_id(Tzu_table_data* table, uint64_t id) {
  zu_table_data_set_selected_id(table, id, !zu_table_data_is_selected_id(table, id));
}
void zu_table_data_clear_selected_ids(Tzu_table_data* table) {
  guarded(table, [](Tzu_table_data& t) {
    if (!t.selected.empty()) t.select([](id_runs& s) { s.clear(); });
  });
}
bool zu_table_data_has_selected_ids(const Tzu_table_data* table) {
  return table != nullptr && !table->selected.empty();
}
bool zu_table_data_is_selected_id(const Tzu_table_data* table, uint64_t id) {
  return table != nullptr && table->selected.contains(id);
}
uint64_t zu_table_data_get_selected_count(const Tzu_table_data* table) {
  return table != nullptr ? table->selected.count() : 0;
}
uint64_t zu_table_data_get_selected_run_count(const Tzu_table_data* table) {
  return table != nullptr ? table->selected.runs().size() : 0;
}
bool zu_table_data_get_selected_run(const Tzu_table_data* table, uint64_t index, uint64_t* first,
                                    uint64_t* last) {
  if (index >= zu_table_data_get_selected_run_count(table)) return false;
  *first = table->selected.runs()[index].first;
  *last = table->selected.runs()[index].last;
  return true;
}
