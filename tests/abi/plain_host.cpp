#include "tests/abi/plain_host.h"

#include <algorithm>
#include <cstring>

namespace plain {
namespace {

Tzu_handle make(const void* table, void* instance) {
  Tzu_handle h;
  h.table = table, h.instance = instance;
  return h;
}

void query_named(const void*, void* instance, const char* name, const void** table, void** found) {
  *table = nullptr, *found = nullptr;
  auto* object = static_cast<named*>(instance);
  if (object->name == nullptr || std::strcmp(object->name, name) != 0) return;
  *table = object->self.table, *found = object->self.instance;
}

// --- referrer

void referrer_released(const void*, void* instance, Tzu_handle) {
  auto* object = static_cast<referrer*>(instance);
  ++object->released;
  object->referent = {};
}
bool referrer_retains(const void*, void* instance) {
  return static_cast<referrer*>(instance)->retains;
}
Tzu_handle nameless(const void*, void*) { return {}; }

const address referrer_table[] = {
    reinterpret_cast<address>(&nameless),
    reinterpret_cast<address>(&referrer_released),
    reinterpret_cast<address>(&referrer_retains),
};

// --- counted

std::uint64_t counted_attach(const void*, void* instance, Tzu_handle referrer) {
  auto* object = static_cast<counted*>(instance);
  object->attached += is_empty(referrer) ? 0 : 1;
  object->referrers.push_back(referrer);
  return object->referrers.size();
}
void counted_detach(const void*, void* instance, Tzu_handle referrer) {
  auto& all = static_cast<counted*>(instance)->referrers;
  auto entry = std::find(all.begin(), all.end(), referrer);
  if (entry != all.end()) all.erase(entry);
}
Tzu_handle counted_self(const void*, void* instance) {
  return static_cast<counted*>(instance)->referent();
}

const address referent_table[] = {
    reinterpret_cast<address>(&nameless),       reinterpret_cast<address>(&counted_attach),
    reinterpret_cast<address>(&counted_detach), reinterpret_cast<address>(&nameless),
    reinterpret_cast<address>(&counted_self),
};

// --- visitors

void visit_text(const void*, void* instance, const wchar_t* text) {
  static_cast<text_visitor*>(instance)->texts.emplace_back(text);
}
const address text_visitor_table[] = {
    reinterpret_cast<address>(&polymorphic_of_named),
    reinterpret_cast<address>(&visit_text),
};

void visit_object(const void*, void* instance, Tzu_handle object) {
  auto* taker = static_cast<receiver*>(instance);
  taker->visits.push_back(object);
  if (taker->how == holding::none) return;
  if (is_empty(taker->watch.referent)) taker->watch.take(object);
  if (taker->how == holding::kept && is_empty(taker->strong.referent)) taker->strong.take(object);
}
const address receiver_table[] = {
    reinterpret_cast<address>(&polymorphic_of_named),
    reinterpret_cast<address>(&visit_object),
};

void visit_named(const void*, void* instance, const wchar_t* id, Tzu_handle object) {
  static_cast<named_receiver*>(instance)->visits.push_back({id, object});
}
const address named_receiver_table[] = {
    reinterpret_cast<address>(&polymorphic_of_named),
    reinterpret_cast<address>(&visit_named),
};

}  // namespace

Tzu_handle query(Tzu_handle h, const char* name) {
  Tzu_handle found;
  if (is_empty(h)) return found;
  Tzu_handle polymorphic = call<Tzu_handle>(h, 0);
  if (is_empty(polymorphic)) return found;
  // Not clear before the call: the callee has to clear them.
  found = make(&found, &found);
  call<void, const char*, const void**, void**>(polymorphic, 0, name, &found.table,
                                                &found.instance);
  return found;
}

Tzu_handle polymorphic_of_named(const void*, void* instance) {
  static const address table[] = {reinterpret_cast<address>(&query_named)};
  return make(table, instance);
}

Tzu_handle referent_of_counted(const void*, void* instance) {
  return static_cast<counted*>(instance)->referent();
}

Tzu_handle referrer::handle() { return make(referrer_table, this); }

void referrer::take(Tzu_handle counted) {
  referent = call<Tzu_handle>(counted, 1);
  if (!is_empty(referent)) call<std::uint64_t>(referent, 1, handle());
}

void referrer::let_go() {
  if (is_empty(referent)) return;
  Tzu_handle object = referent;
  referent = {};
  Tzu_handle owner = call<Tzu_handle>(object, 3);
  if (!is_empty(owner)) call<std::uint64_t>(owner, 1, Tzu_handle());
  call<void>(object, 2, handle());
  if (!is_empty(owner)) call<void>(owner, 2, Tzu_handle());
}

Tzu_handle counted::referent() { return make(referent_table, this); }

void counted::announce_end() {
  for (Tzu_handle entry : referrers)
    if (!is_empty(entry)) call<void>(entry, 1, referent());
  referrers.clear();
}

Tzu_handle text_visitor::handle() { return head.self = make(text_visitor_table, this); }

Tzu_handle receiver::handle() { return head.self = make(receiver_table, this); }

Tzu_handle named_receiver::handle() { return head.self = make(named_receiver_table, this); }

}  // namespace plain
