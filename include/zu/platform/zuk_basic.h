#pragma once
// Texts through adapters, options, colours and channels, and the reasons why something failed.

#include "zu/platform/zuk_api.h"

// --- Texts

/// Takes texts on behalf of whoever made it.
typedef struct Tzu_string_adp Tzu_string_adp;
typedef void (*Tzu_narrow_sink)(const char* text, void* user);
typedef void (*Tzu_wide_sink)(const wchar_t* text, void* user);

/// An adapter that calls one of the sinks, with `user`, for each text delivered; null if out of
/// memory.
ZU_API Tzu_string_adp* zu_string_adp_create(Tzu_narrow_sink narrow, Tzu_wide_sink wide, void* user);
ZU_API void zu_string_adp_destroy(Tzu_string_adp* adapter);  ///< null is ignored
/// Delivers a wide text; it lives only during the call. Null adapters are ignored.
ZU_API void zu_string_adp_feed(Tzu_string_adp* adapter, const wchar_t* text);
/// Delivers a text in the system's code page (UTF-8).
ZU_API void zu_string_adp_feed_narrow(Tzu_string_adp* adapter, const char* text);

// --- Options of the running program

/// Path of the host's program; the text is never null.
ZU_API const wchar_t* zu_options_get_main_module_path(void);
/// Overrides the above; null goes back to the program's own path.
ZU_API void zu_options_set_main_module_path(const wchar_t* path);

/// The folder of the style libraries, without a separator at its end; it need not be there. Until
/// the host sets another: zugrid/styles in $XDG_DATA_HOME, else in ~/.local/share; no text if the
/// environment names neither. Never null; the text lives until another is set.
ZU_API const wchar_t* zu_options_get_style_libs_path(void);
/// Null or no text goes back to the folder above.
ZU_API void zu_options_set_style_libs_path(const wchar_t* path);
/// The folder of the style libraries that come with the program, one folder a language ("ru", "en")
/// in it: ../share/zugrid/style_libs beside the program's folder. No text once the host has set a
/// folder of its own above. Never null; the text lives until the next call.
ZU_API const wchar_t* zu_options_get_own_style_libs_path(void);

/// Whether a section that is opened gets its reduced copies at once, which reads all of it. Off
/// until the host says otherwise.
ZU_API bool zu_options_get_build_overviews(void);
ZU_API void zu_options_set_build_overviews(bool build);

/// How near a click must come to a thing, in millimetres of the screen; 1 until the host sets it.
ZU_API double zu_options_get_mm_delta(void);
ZU_API void zu_options_set_mm_delta(double millimetres);  ///< ignored unless above 0

// --- Update events: an object tells whoever listens to its channel that it is another. What
// changes between its begin and end is told once, at the end, as one event.

typedef struct Tzu_event_channel Tzu_event_channel;  ///< belongs to the object it speaks for
typedef struct Tzu_event_queue Tzu_event_queue;      ///< lives during a call of a client
typedef struct Tzu_update_event Tzu_update_event;
typedef struct Tzu_update_event_prop_list Tzu_update_event_prop_list;
typedef void (*Tzu_event_client)(Tzu_event_queue* queue, void* user);

/// What of an object is another.
enum Tzu_update_property {
  zu_update_layers = 1,        ///< of a scene: its layers, their order, which of them show
  zu_update_active_layer = 2,  ///< of a scene
  zu_update_projection = 3,    ///< of a scene
  zu_update_selection = 6,     ///< of a table
  zu_update_structure = 7,     ///< of a table: its columns or its source
  zu_update_order = 8,         ///< of a table: the order of rows, the current row
  zu_update_data = 10,         ///< of a layer: what its source holds
};

/// The client is called with `user` until it is removed. A channel that is gone is left alone.
ZU_API void zu_event_channel_add_client(Tzu_event_channel* channel, Tzu_event_client client,
                                        void* user);
ZU_API void zu_event_channel_del_client(Tzu_event_channel* channel, Tzu_event_client client,
                                        void* user);
ZU_API uint64_t zu_event_queue_get_size(const Tzu_event_queue* queue);
/// Of all events those that tell of a change: all.
ZU_API uint64_t zu_event_queue_count_update_events(const Tzu_event_queue* queue);
/// Null if there is none.
ZU_API const Tzu_update_event* zu_event_queue_get_update_event(const Tzu_event_queue* queue,
                                                               uint64_t index);
/// What changed; null for null.
ZU_API const Tzu_update_event_prop_list* zu_update_event_get_details(const Tzu_update_event* event);
ZU_API uint64_t zu_update_event_prop_list_get_count(const Tzu_update_event_prop_list* list);
ZU_API bool zu_update_event_prop_list_find_integer(const Tzu_update_event_prop_list* list,
                                                   int32_t property);

// --- Colours

/// A colour; `a` is a transparency, 0 opaque. As a 32-bit word red is the low byte.
typedef struct Tzu_color {
  uint8_t r, g, b, a;
} Tzu_color;

/// A colour that may be unset. Five bytes, no gap.
typedef struct Tzu_optional_color {
  Tzu_color color;
  uint8_t is_set;
} Tzu_optional_color;

/// A channel: a field's name and the limits between which its values spread over 0..255.
typedef struct Tzu_clr_channel {
  double minimum, maximum;
  double range;  ///< maximum - minimum
  void* body;
} Tzu_clr_channel;
typedef struct Tzu_rgb_channels Tzu_rgb_channels;

ZU_API Tzu_rgb_channels* zu_rgb_channels_create(void);
ZU_API void zu_rgb_channels_destroy(Tzu_rgb_channels* channels);
ZU_API void zu_rgb_channels_assign(Tzu_rgb_channels* channels, const Tzu_rgb_channels* from);
// Channels of a set, never null for a set that is not; owned by the set.
ZU_API Tzu_clr_channel* zu_rgb_channels_get_red(Tzu_rgb_channels* channels);
ZU_API Tzu_clr_channel* zu_rgb_channels_get_green(Tzu_rgb_channels* channels);
ZU_API Tzu_clr_channel* zu_rgb_channels_get_blue(Tzu_rgb_channels* channels);
ZU_API Tzu_clr_channel* zu_rgb_channels_get_gray(Tzu_rgb_channels* channels);
ZU_API void zu_clr_channel_get_prop_name_w(const Tzu_clr_channel* channel, Tzu_string_adp* adapter);
ZU_API void zu_clr_channel_set_prop_name_w(Tzu_clr_channel* channel, const wchar_t* name);
/// What is known of the channel's field, made at need and forgotten when the field changes; owned
/// by the channel. Null for null.
ZU_API struct Tzu_stat* zu_clr_channel_get_stat(Tzu_clr_channel* channel);
ZU_API void zu_clr_channel_set_min(Tzu_clr_channel* channel, double minimum);
ZU_API void zu_clr_channel_set_max(Tzu_clr_channel* channel, double maximum);
/// Cuts both limits to the range of the data.
ZU_API void zu_clr_channel_bound_minmax(Tzu_clr_channel* channel, double minimum, double maximum);
/// Limits in the unit of the field. A new channel has 0 and 255.
ZU_API double zu_clr_channel_get_minimum(const Tzu_clr_channel* channel);
ZU_API double zu_clr_channel_get_maximum(const Tzu_clr_channel* channel);
/// Equal limits make a step: at or below them 0, above 255.
ZU_API void zu_clr_channel_set_limits(Tzu_clr_channel* channel, double minimum, double maximum);

#ifdef __cplusplus
/// (value - minimum) / (maximum - minimum) * 255, rounded half up, cut to 0..255; NaN gives 0. In
/// this order: a factor prepared ahead would take 50 of 0..100 to 127.49999999999999.
ZU_HOT uint8_t zu_clr_channel_get255value(const Tzu_clr_channel* channel, double value) {
  double byte = (value - channel->minimum) / channel->range * 255.0 + 0.5;
  return byte >= 255.0 ? 255 : byte > 0.0 ? static_cast<uint8_t>(byte) : 0;
}
#else
ZU_API uint8_t zu_clr_channel_get255value(const Tzu_clr_channel* channel, double value);
#endif

#ifdef __cplusplus
/// Packs a colour word: red in the low byte.
ZU_HOT uint32_t zu_clr_init_rgba(uint8_t r, uint8_t g, uint8_t b, uint8_t a) {
  return static_cast<uint32_t>(r) | static_cast<uint32_t>(g) << 8 | static_cast<uint32_t>(b) << 16 |
         static_cast<uint32_t>(a) << 24;
}
#else
ZU_API uint32_t zu_clr_init_rgba(uint8_t r, uint8_t g, uint8_t b, uint8_t a);
#endif
/// The colour of such a word.
ZU_API Tzu_color zu_clr_init_int(uint32_t word);

// --- Lists

/// A list of whole numbers.
typedef struct Tzu_ints Tzu_ints;
ZU_API Tzu_ints* zu_ints_create(void);  ///< empty; null if out of memory
ZU_API void zu_ints_destroy(Tzu_ints* list);
ZU_API bool zu_ints_add(Tzu_ints* list, int64_t value);  ///< false if out of memory
ZU_API uint64_t zu_ints_get_size(const Tzu_ints* list);
ZU_API int64_t zu_ints_get(const Tzu_ints* list, uint64_t index);  ///< 0 if there is none

/// A set of whole numbers, in ascending order.
typedef struct Tzu_int_set Tzu_int_set;
ZU_API Tzu_int_set* zu_int_set_create(void);
ZU_API void zu_int_set_destroy(Tzu_int_set* set);
ZU_API bool zu_int_set_add(Tzu_int_set* set, int64_t value);
ZU_API bool zu_int_set_has(const Tzu_int_set* set, int64_t value);
ZU_API uint64_t zu_int_set_get_size(const Tzu_int_set* set);

/// A list of texts.
typedef struct Tzu_wstrings Tzu_wstrings;
ZU_API Tzu_wstrings* zu_wstrings_create(void);
ZU_API void zu_wstrings_destroy(Tzu_wstrings* list);
ZU_API bool zu_wstrings_add(Tzu_wstrings* list, const wchar_t* text);
ZU_API uint64_t zu_wstrings_get_size(const Tzu_wstrings* list);
/// Lives as long as the list is not changed; null if there is none.
ZU_API const wchar_t* zu_wstrings_get_str(const Tzu_wstrings* list, uint64_t index);

/// A list of doubles.
typedef struct Tzu_dbls Tzu_dbls;
ZU_API Tzu_dbls* zu_dbls_create(void);        ///< empty; null if out of memory
ZU_API void zu_dbls_destroy(Tzu_dbls* list);  ///< null is ignored
ZU_API void zu_dbls_clear(Tzu_dbls* list);
ZU_API bool zu_dbls_add(Tzu_dbls* list, double value);            ///< false if out of memory
ZU_API uint64_t zu_dbls_get_size(const Tzu_dbls* list);           ///< 0 for null
ZU_API double zu_dbls_get(const Tzu_dbls* list, uint64_t index);  ///< NaN if there is none

/// A list of bits.
typedef struct Tzu_bits Tzu_bits;
ZU_API Tzu_bits* zu_bits_create(void);        ///< empty; null if out of memory
ZU_API void zu_bits_destroy(Tzu_bits* list);  ///< null is ignored
ZU_API void zu_bits_clear(Tzu_bits* list);
ZU_API bool zu_bits_add(Tzu_bits* list, bool bit);                  ///< false if out of memory
ZU_API uint64_t zu_bits_get_size(const Tzu_bits* list);             ///< 0 for null
ZU_API bool zu_bits_get_bit(const Tzu_bits* list, uint64_t index);  ///< false if there is none

// --- Reasons

/// Why something about a source or layer did not work. The bundle stays silent; the platform keeps
/// the last reasons by source name for the host to say.
enum Tzu_problem_kind {
  zu_problem_open = 0,
  zu_problem_read = 1,
  zu_problem_projection = 2,
  zu_problem_field = 3,
  zu_problem_write = 4,
  zu_problem_part = 5,  ///< some of a read failed; the rest was had
};
/// Keeps a reason; the same text of the same source is kept once, at most 16 a source.
ZU_API void zu_problems_add(const wchar_t* source, int32_t kind, const wchar_t* text);
ZU_API int32_t zu_problems_get_count(const wchar_t* source);
/// Text and kind of reason `index`, oldest first; -1 and no text if there is none.
ZU_API int32_t zu_problems_get(const wchar_t* source, int32_t index, Tzu_string_adp* text);
ZU_API void zu_problems_clear(const wchar_t* source);  ///< null clears all
