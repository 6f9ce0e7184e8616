// Lists of plain values.

#include <cmath>
#include <new>
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
