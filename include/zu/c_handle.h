#pragma once
// The one shape that crosses between modules. Plain C, so that a host in any language can read it.

/// A table of operations and the object they act on. Passed and returned by value, never counted.
/// Empty if either word is null; every holder tests both before use.
typedef struct Tzu_handle {
#ifdef __cplusplus
  const void* table = nullptr;  ///< static array of functions, owned by the serving module
  void* instance = nullptr;     ///< first argument behind the table in every call
  explicit operator bool() const { return table != nullptr && instance != nullptr; }
  friend bool operator==(const Tzu_handle&, const Tzu_handle&) = default;
#else
  const void* table;
  void* instance;
#endif
} Tzu_handle;
