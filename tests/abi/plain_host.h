#pragma once
// A small host that knows the border and not the code: tables are arrays of addresses, slots are
// called by number, and every object that it shows the bundle has a table of its own making.

#include <cstdint>
#include <string>
#include <vector>

#include "zu/c_handle.h"

namespace plain {

using address = void (*)();

inline bool is_empty(Tzu_handle h) { return h.table == nullptr || h.instance == nullptr; }

/// Calls a slot of a table by its number; the shape of the call is the caller's word.
template <class result, class... args> result call(Tzu_handle h, int slot, args... values) {
  auto entry = reinterpret_cast<result (*)(const void*, void*, args...)>(
      static_cast<const address*>(h.table)[slot]);
  return entry(h.table, h.instance, values...);
}

/// Asks an object for an interface: slot 0 of its table, then the query of what comes back.
Tzu_handle query(Tzu_handle h, const char* name);

/// An object of the host that answers to at most one name. The first member, so that a pointer to
/// the whole is a pointer to it.
struct named {
  const char* name = nullptr;
  Tzu_handle self;  ///< what is given out for the name
};

/// Slot 0 of every table of the host's named objects.
Tzu_handle polymorphic_of_named(const void* table, void* instance);

/// Holds a counted object, or watches it: `retains` is what it answers.
struct referrer {
  bool retains = true;
  int released = 0;
  Tzu_handle referent;

  explicit referrer(bool keeps) : retains(keeps) {}
  referrer(const referrer&) = delete;
  referrer& operator=(const referrer&) = delete;
  ~referrer() { let_go(); }
  /// Enters the list of a counted object, by slot 1 of its table.
  void take(Tzu_handle counted);
  /// Leaves it; the object's owner is pinned meanwhile.
  void let_go();
  Tzu_handle handle();
};

/// A counted object of the host: keeps its list of referrers and does nothing with it.
struct counted {
  named head;
  std::vector<Tzu_handle> referrers;
  int attached = 0;  ///< entries ever made by a referrer; pins are not counted
  Tzu_handle referent();
  /// Tells the referrers that the object goes away.
  void announce_end();
};
/// Slot 1 of the tables of the host's counted objects.
Tzu_handle referent_of_counted(const void* table, void* instance);

/// Visitor of a wide text.
struct text_visitor {
  named head;
  std::vector<std::wstring> texts;
  Tzu_handle handle();
};

/// What a receiver does with the object that it is visited with.
enum class holding { none, watched, kept };

/// Receiver of an object: a service, or a layer, which is not counted and can only be taken as it
/// is.
struct receiver {
  named head;
  holding how;
  std::vector<Tzu_handle> visits;  ///< handles as they came
  referrer strong{true};
  referrer watch{false};
  receiver(const char* name, holding how) : how(how) { head.name = name; }
  Tzu_handle handle();
};

/// Receiver of objects that come with a name in front.
struct named_receiver {
  struct visit {
    std::wstring id;
    Tzu_handle object;
  };
  named head;
  std::vector<visit> visits;
  Tzu_handle handle();
};

}  // namespace plain
