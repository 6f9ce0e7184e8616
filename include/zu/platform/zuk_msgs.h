#pragma once
// Messages to the person at the program, questions, and progress of long work. What is seen of them
// is the host's; without a host's hooks everything is silent, the answer is no and nothing is ever
// stopped.

#include "zu/platform/zuk_basic.h"

typedef void (*Tzu_message_sink)(const wchar_t* text, void* user);
/// Who gets the messages from now on; null is nobody.
ZU_API void zu_set_message_sink(Tzu_message_sink sink, void* user);
ZU_API void zu_show_wmessage(const wchar_t* text);

/// How a host warns and asks. A null member is skipped; `user` is handed back.
typedef struct Tzu_message_hooks {
  void (*warning)(const wchar_t* text, void* user);
  bool (*question)(const wchar_t* text, void* user);  ///< true: yes
  void* user;
} Tzu_message_hooks;
/// Who warns and asks from now on; null is nobody. They are copied.
ZU_API void zu_set_message_hooks(const Tzu_message_hooks* hooks);
ZU_API void zu_show_wwarning(const wchar_t* text);
/// Asks a question that is answered by yes or no; comes back with the answer. False for no answer.
ZU_API bool zu_ask_wyes_no(const wchar_t* text);

/// How a host asks for files and colours. A null member answers no; `user` is handed back. `filter`
/// is a text of the form "Name (*.a;*.b)|*.a;*.b", several of them joined by "|".
typedef struct Tzu_asking_hooks {
  bool (*open_file)(const wchar_t* filter, Tzu_string_adp* path, void* user);
  /// Asks before an older file is lost, and completes the name by the filter's ending. `suggested`
  /// may be null.
  bool (*save_file)(const wchar_t* filter, const wchar_t* suggested, Tzu_string_adp* path,
                    void* user);
  bool (*color)(Tzu_color* color, void* user);  ///< with its transparency
  void* user;
} Tzu_asking_hooks;
/// Who is asked from now on; null is nobody. They are copied.
ZU_API void zu_set_asking_hooks(const Tzu_asking_hooks* hooks);
// False, and no call or change, if the person chose nothing.
ZU_API bool zu_ask_open_file_w(const wchar_t* filter, Tzu_string_adp* path);
ZU_API bool zu_ask_save_file_w(const wchar_t* filter, const wchar_t* suggested,
                               Tzu_string_adp* path);
ZU_API bool zu_ask_color(Tzu_color* color);

/// What a host offers. A null member is skipped; `user` is handed back.
typedef struct Tzu_progress_hooks {
  void* (*begin)(int32_t can_stop, void* user);  ///< gives the window, which may be null
  void (*caption)(void* window, const wchar_t* text, void* user);
  void (*show)(void* window, int64_t done, int64_t total, void* user);
  bool (*stopped)(void* window, void* user);
  void (*end)(void* window, void* user);
  void* user;
} Tzu_progress_hooks;
/// Hooks for the progress objects made from now on; null takes them away. They are copied.
ZU_API void zu_progress_set_hooks(const Tzu_progress_hooks* hooks);

typedef struct Tzu_progress Tzu_progress;
/// `can_stop` non-zero lets the person stop the work. Null if out of memory.
ZU_API Tzu_progress* zu_progress_create(int32_t can_stop);
ZU_API void zu_progress_destroy(Tzu_progress* progress);
ZU_API void zu_progress_wcaption(Tzu_progress* progress, const wchar_t* text);
ZU_API void zu_progress_show64(Tzu_progress* progress, int64_t done, int64_t total);
ZU_API bool zu_progress_get_stopped(Tzu_progress* progress);  ///< false for null
