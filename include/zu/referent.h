#pragma once
// Counted objects and the references that hold them. One thread; nothing here is locked.

#include <cstdint>
#include <list>

#include "zu/handle.h"

namespace zu {

/// What holds a counted object.
struct referrer_impl : plain_interface<referrer_impl> {
  static constexpr char name[] = "zu_referrer_interface_1";
  virtual void released(handle /*referent*/) {}  ///< the referent is going away
  virtual bool retains() { return false; }       ///< true keeps the referent alive
  using operations = in_order<&referrer_impl::released, &referrer_impl::retains>;
};
using referrer = of<referrer_impl>;

/// The counting side of an object.
struct referent_impl : plain_interface<referent_impl> {
  static constexpr char name[] = "zu_referent_interface_1";
  /// Enters a referrer, at the end; an empty handle is a pin. Gives the new number of entries.
  virtual std::uint64_t attach(handle /*referrer*/) { return 0; }
  /// Removes the first equal entry, if any; the object dies if nobody left retains it.
  virtual void detach(handle /*referrer*/) {}
  virtual handle owner() { return {}; }  ///< referent that must outlive this one, or empty
  virtual handle self() { return {}; }
  using operations = in_order<&referent_impl::attach, &referent_impl::detach, &referent_impl::owner,
                              &referent_impl::self>;
};
/// Any counted object, by its counting side.
using any_referent = of<referent_impl>;

/// What a reference needs to know of the handle type that it holds.
template <class held> struct reftraits;
template <class interface> struct reftraits<of<interface>> {
  static constexpr const char* name = interface::name;
  static handle referent_of(handle h) { return to_referent(h); }
};
/// A referent's own handle is its referent.
template <> struct reftraits<any_referent> {
  static constexpr const char* name = referent_impl::name;
  static handle referent_of(handle h) { return h; }
};

/// A reference to a counted object: flag 0 keeps it alive, flag 1 goes empty when it dies.
/// It stands in the object's list by its own address, so a copy attaches anew.
template <class held, int flag, class traits = reftraits<held>> class ref : public referrer_impl {
 public:
  ref() = default;
  explicit ref(handle h) { take(h); }
  ref(const ref& other) : referrer_impl(other) { take(other.held_); }
  ref& operator=(const ref& other) {
    if (this != &other) reset(other.held_);
    return *this;
  }
  ~ref() { let_go(std::exchange(held_, handle())); }

  /// Takes `h`, which may be empty, and lets go of what was held. The new one is attached first,
  /// so that taking the same object again does not end it.
  void reset(handle h) {
    handle former = held_;
    take(h);
    let_go(former);
  }
  void reset() { let_go(std::exchange(held_, handle())); }
  held get() const { return held(held_); }
  explicit operator bool() const { return static_cast<bool>(held_); }

  void released(handle) override { held_ = {}; }
  bool retains() override { return flag == 0; }

 private:
  void take(handle h) {
    held_ = h;
    if (h) call<&referent_impl::attach>(traits::referent_of(h), referrer());
  }
  void let_go(handle h) {
    handle object = h ? traits::referent_of(h) : handle();
    if (!object) return;
    // The owner is pinned, so that it still stands while the object's destructor runs.
    handle owner = call<&referent_impl::owner>(object);
    call<&referent_impl::attach>(owner, handle());
    call<&referent_impl::detach>(object, referrer());
    call<&referent_impl::detach>(owner, handle());
  }
  handle referrer() { return handle_of<referrer_impl>(*this); }

  handle held_;
};

template <class interface> using strong_ref = ref<of<interface>, 0>;
template <class interface> using weak_ref = ref<of<interface>, 1>;

/// The counted object: lives while a referrer retains it or a pin stands in its list.
class objbase : public referent_impl {
 public:
  objbase() = default;
  objbase(const objbase&) = delete;
  objbase& operator=(const objbase&) = delete;

  std::uint64_t attach(handle referrer) override {
    referrers_.push_back(referrer);
    return referrers_.size();
  }
  void detach(handle referrer) override {
    for (auto entry = referrers_.begin(); entry != referrers_.end(); ++entry)
      if (*entry == referrer) {
        referrers_.erase(entry);
        break;
      }
    if (!scanning_ && must_stay()) return;
    for (handle entry : referrers_) call<&referrer_impl::released>(entry, self());
    delete this;
  }
  handle owner() override = 0;
  handle self() override { return handle_of<referent_impl>(*this); }
  virtual ~objbase() = default;

 private:
  bool must_stay() {
    scanning_ = true;
    bool stays = false;
    for (handle entry : referrers_) stays = stays || !entry || call<&referrer_impl::retains>(entry);
    scanning_ = false;
    return stays;
  }

  std::list<handle> referrers_;
  bool scanning_ = false;
};

/// A counted object that keeps its owner alive.
class obj : public objbase {
 public:
  explicit obj(handle owner = {}) : owner_(owner) {}
  handle owner() override { return owner_.get(); }

 private:
  ref<any_referent, 0> owner_;
};

/// Joins an interface and the counting.
template <class interface> struct referentbase : interface, obj {
  explicit referentbase(handle owner = {}) : obj(owner) {}
};

/// What a concrete counted class derives from.
template <class interface> struct referent : referentbase<interface> {
  using referentbase<interface>::referentbase;
  handle referent_handle() override { return obj::self(); }
};

}  // namespace zu
