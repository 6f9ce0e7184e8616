#include <deque>
#include <new>
#include <nlohmann/json.hpp>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_basic/utf8.h"
#include "zu/platform/zuk_io.h"

using zu::platform::guarded;
using zu::platform::to_utf8;

/// An object of the tree; the children keep their place while siblings are added.
struct Tzu_json_obj {
  nlohmann::ordered_json values = nlohmann::ordered_json::object();
  std::deque<std::pair<std::string, Tzu_json_obj>> children;

  nlohmann::ordered_json whole() const {
    nlohmann::ordered_json all = values;
    for (const auto& [key, child] : children) all[key] = child.whole();
    return all;
  }
};

Tzu_json_obj* zu_json_obj_create() {
  try {
    return new Tzu_json_obj;
  } catch (...) {
    return nullptr;
  }
}
void zu_json_obj_destroy(Tzu_json_obj* object) { delete object; }

Tzu_json_obj* zu_json_obj_add_obj(Tzu_json_obj* object, const wchar_t* key) {
  return guarded(object, static_cast<Tzu_json_obj*>(nullptr), [&](Tzu_json_obj& o) {
    std::string name = to_utf8(key);
    o.values[name] = nullptr;  // keeps its place among the values
    return &o.children.emplace_back(name, Tzu_json_obj()).second;
  });
}
void zu_json_obj_add_str(Tzu_json_obj* object, const wchar_t* key, const wchar_t* value) {
  guarded(object, [&](Tzu_json_obj& o) { o.values[to_utf8(key)] = to_utf8(value); });
}
void zu_json_obj_add_int(Tzu_json_obj* object, const wchar_t* key, int64_t value) {
  guarded(object, [&](Tzu_json_obj& o) { o.values[to_utf8(key)] = value; });
}
void zu_json_obj_add_dbl(Tzu_json_obj* object, const wchar_t* key, double value) {
  guarded(object, [&](Tzu_json_obj& o) { o.values[to_utf8(key)] = value; });
}
void zu_json_obj_get_text_w(const Tzu_json_obj* object, Tzu_string_adp* adapter) {
  guarded(object, [&](const Tzu_json_obj& o) {
    zu_string_adp_feed(adapter, zu::platform::from_utf8(o.whole().dump(2)).c_str());
  });
}
