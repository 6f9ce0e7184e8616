// Lists of plain values.

#include <cmath>
#include <new>
#include <set>
#include <string>
#include <vector>

#include "platform/zuk_basic/guarded.h"
#include "zu/platform/zuk_basic.h"

using zu::platform::guarded;

struct Tzu_dbls {
  std::vector<double> values;
};

struct Tzu_bits {
  std::vector<bool> bits;
};

struct Tzu_ints {
  std::vector<int64_t> values;
};

struct Tzu_int_set {
  std::set<int64_t> values;
};

struct Tzu_wstrings {
  std::vector<std::wstring> texts;
};

Tzu_dbls* zu_dbls_create() { return new (std::nothrow) Tzu_dbls; }
void zu_dbls_destroy(Tzu_dbls* list) { delete list; }
void zu_dbls_clear(Tzu_dbls* list) {
  if (list != nullptr) list->values.clear();
}
bool zu_dbls_add(Tzu_dbls* list, double value) {
  return guarded(list, false, [&](Tzu_dbls& l) {
    l.values.push_back(value);
    return true;
  });
}
uint64_t zu_dbls_get_size(const Tzu_dbls* list) {
  return list != nullptr ? list->values.size() : 0;
}
double zu_dbls_get(const Tzu_dbls* list, uint64_t index) {
  return index < zu_dbls_get_size(list) ? list->values[index] : NAN;
}

Tzu_bits* zu_bits_create() { return new (std::nothrow) Tzu_bits; }
void zu_bits_destroy(Tzu_bits* list) { delete list; }
void zu_bits_clear(Tzu_bits* list) {
  if (list != nullptr) list->bits.clear();
}
bool zu_bits_add(Tzu_bits* list, bool bit) {
  return guarded(list, false, [&](Tzu_bits& l) {
    l.bits.push_back(bit);
    return true;
  });
}
uint64_t zu_bits_get_size(const Tzu_bits* list) { return list != nullptr ? list->bits.size() : 0; }
bool zu_bits_get_bit(const Tzu_bits* list, uint64_t index) {
  return index < zu_bits_get_size(list) && list->bits[index];
}

Tzu_ints* zu_ints_create() { return new (std::nothrow) Tzu_ints; }
void zu_ints_destroy(Tzu_ints* list) { delete list; }
bool zu_ints_add(Tzu_ints* list, int64_t value) {
  return guarded(list, false, [&](Tzu_ints& l) {
    l.values.push_back(value);
    return true;
  });
}
uint64_t zu_ints_get_size(const Tzu_ints* list) {
  return list != nullptr ? list->values.size() : 0;
}
int64_t zu_ints_get(const Tzu_ints* list, uint64_t index) {
  return index < zu_ints_get_size(list) ? list->values[index] : 0;
}

Tzu_int_set* zu_int_set_create() { return new (std::nothrow) Tzu_int_set; }
void zu_int_set_destroy(Tzu_int_set* set) { delete set; }
bool zu_int_set_add(Tzu_int_set* set, int64_t value) {
  return guarded(set, false, [&](Tzu_int_set& s) {
    s.values.insert(value);
    return true;
  });
}
bool zu_int_set_has(const Tzu_int_set* set, int64_t value) {
  return set != nullptr && set->values.count(value) > 0;
}
uint64_t zu_int_set_get_size(const Tzu_int_set* set) {
  return set != nullptr ? set->values.size() : 0;
}

Tzu_wstrings* zu_wstrings_create() { return new (std::nothrow) Tzu_wstrings; }
void zu_wstrings_destroy(Tzu_wstrings* list) { delete list; }
bool zu_wstrings_add(Tzu_wstrings* list, const wchar_t* text) {
  return guarded(list, false, [&](Tzu_wstrings& l) {
    l.texts.emplace_back(text != nullptr ? text : L"");
    return true;
  });
}
uint64_t zu_wstrings_get_size(const Tzu_wstrings* list) {
  return list != nullptr ? list->texts.size() : 0;
}
const wchar_t* zu_wstrings_get_str(const Tzu_wstrings* list, uint64_t index) {
  return index < zu_wstrings_get_size(list) ? list->texts[index].c_str() : nullptr;
}
