#include <new>
#include <string>
#include <unordered_set>

#include "platform/zuk_basic/guarded.h"
#include "zu/platform/zuk_attr_data.h"

using zu::platform::guarded;

struct Tzu_attr_data {};

struct Tzu_table_data : Tzu_attr_data {
  std::wstring source;
  std::unordered_set<uint64_t> selected;
  int updates = 0;  // begun and not ended
};

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
  guarded(table, [](Tzu_table_data& t) { ++t.updates; });
}
void zu_table_data_end_update(Tzu_table_data* table) {
  guarded(table, [](Tzu_table_data& t) {
    if (t.updates > 0) --t.updates;
  });
}
void zu_table_data_set_selected_id(Tzu_table_data* table, uint64_t id, bool selected) {
  guarded(table, [&](Tzu_table_data& t) {
    if (selected)
      t.selected.insert(id);
    else
      t.selected.erase(id);
  });
}
void zu_table_data_clear_selected_ids(Tzu_table_data* table) {
  guarded(table, [](Tzu_table_data& t) { t.selected.clear(); });
}
bool zu_table_data_has_selected_ids(const Tzu_table_data* table) {
  return table != nullptr && !table->selected.empty();
}
bool zu_table_data_is_selected_id(const Tzu_table_data* table, uint64_t id) {
  return table != nullptr && table->selected.count(id) != 0;
}
