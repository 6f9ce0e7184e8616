#pragma once
// Table data of a layer: its source, and which rows are selected.

#include "zu/platform/zuk_basic.h"

typedef struct Tzu_table_data Tzu_table_data;
typedef struct Tzu_attr_data Tzu_attr_data;  ///< what an entity is tied to; a table data seen wider

ZU_API Tzu_table_data* zu_table_data_create(void);
ZU_API void zu_table_data_destroy(Tzu_table_data* table);
ZU_API Tzu_attr_data* zu_table_data_safe_upcast(Tzu_table_data* table);  ///< the same object
ZU_API void zu_table_data_set_wsource(Tzu_table_data* table, const wchar_t* source);
ZU_API void zu_table_data_get_wsource(const Tzu_table_data* table, Tzu_string_adp* adapter);
/// Every change of a table stands between these two. They nest; the last end tells the channel.
ZU_API void zu_table_data_begin_update(Tzu_table_data* table);
ZU_API void zu_table_data_end_update(Tzu_table_data* table);
/// Tells of selection, structure and order by `Tzu_update_property`. The table's own.
ZU_API Tzu_event_channel* zu_table_data_get_update_event_channel(Tzu_table_data* table);
ZU_API void zu_table_data_set_selected_id(Tzu_table_data* table, uint64_t id, bool selected);
ZU_API void zu_table_data_clear_selected_ids(Tzu_table_data* table);
ZU_API bool zu_table_data_has_selected_ids(const Tzu_table_data* table);
ZU_API bool zu_table_data_is_selected_id(const Tzu_table_data* table, uint64_t id);
ZU_API void zu_table_data_flip_selected_id(Tzu_table_data* table, uint64_t id);
/// `count` ids from `first` at once.
ZU_API void zu_table_data_set_selected_range(Tzu_table_data* table, uint64_t first, uint64_t count,
                                             bool selected);
ZU_API uint64_t zu_table_data_get_selected_count(const Tzu_table_data* table);
/// The selection as runs of ids without a gap, lowest first.
ZU_API uint64_t zu_table_data_get_selected_run_count(const Tzu_table_data* table);
/// First and last id of a run, both selected; false, and nothing written, if there is no such run.
ZU_API bool zu_table_data_get_selected_run(const Tzu_table_data* table, uint64_t index,
                                           uint64_t* first, uint64_t* last);
