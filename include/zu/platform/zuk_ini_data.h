#pragma once
// Where a program keeps what is its user's own and belongs to no project.

#include "zu/platform/zuk_basic.h"

/// What is kept under one name.
typedef struct Tzu_ini_data Tzu_ini_data;
/// `name` is a plain name of a folder; null for any other, and if out of memory.
ZU_API Tzu_ini_data* zu_ini_data_create(const wchar_t* name);
ZU_API void zu_ini_data_destroy(Tzu_ini_data* data);  ///< null is ignored
/// The folder of that name, zugrid/NAME in $XDG_DATA_HOME, else in ~/.local/share, made if it is
/// not there; without a separator at its end. False, and no call, if there is none and it cannot
/// be made.
ZU_API bool zu_ini_data_get_storage_path(const Tzu_ini_data* data, Tzu_string_adp* adapter);
