#pragma once
// Linkage of the platform's plain functions. Every header of this folder compiles alone, as C and
// as C++.
//
// Operations that run once a pixel or node are defined in the header for C++ (ZU_HOT) over the
// small documented head of their record; the library exports the same function for everyone else.

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>
#include <wchar.h>

#include "zu/c_handle.h"

#define ZU_EXPORT __attribute__((visibility("default")))

#ifdef __cplusplus
#define ZU_API extern "C" ZU_EXPORT
#define ZU_HOT extern "C" ZU_EXPORT __attribute__((always_inline)) inline
#else
#define ZU_API extern ZU_EXPORT
#endif
