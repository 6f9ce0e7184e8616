#pragma once
// A service is one object for as long as anybody holds it; the factory remembers it weakly.

#include <memory>
#include <vector>

#include "src/bundle/factory.h"

namespace zu::util {
namespace detail {

/// Offers a service `T` under one of its interfaces.
template <class T> class service_holder_base {
 public:
  virtual ~service_holder_base() = default;
  virtual bool has_visitor() = 0;
  virtual void accept(handle visitor) = 0;
  virtual void deliver() = 0;
  virtual bool pin_is_empty() = 0;
  virtual void pin_service() = 0;
  virtual void unpin() = 0;
  virtual void set_service(T* service) = 0;
};

template <class T, class I, class I_impl, class I_visitor>
class ref_service_holder : public service_holder_base<T> {
 public:
  bool has_visitor() override { return static_cast<bool>(visitor_); }
  void accept(handle visitor) override { visitor_ = cast<I_visitor>(visitor); }
  void deliver() override {
    call<&I_visitor::visit>(visitor_, pin_.get());
    unpin();
  }
  bool pin_is_empty() override { return !pin_; }
  void pin_service() override { pin_.reset(service_.get()); }
  void unpin() override {
    service_.reset(pin_.get());
    pin_.reset();
  }
  void set_service(T* service) override { pin_.reset(handle_of<I_impl>(*service)); }

 private:
  ref<I, 1> service_;
  ref<I, 0> pin_;  // holds the service during one `create`
  of<I_visitor> visitor_;
};

}  // namespace detail

/// Serves `T`, which is constructed from its owner's referent handle.
template <class T> class service_factory : public custom_service_factory_impl {
 public:
  using holders = std::vector<std::unique_ptr<detail::service_holder_base<T>>>;
  service_factory(const wchar_t* name_space, holders all)
      : custom_service_factory_impl(name_space), holders_(std::move(all)) {}

  void create(handle owner, handle visitor) override {
    bool wanted = false;
    for (auto& holder : holders_) {
      holder->accept(visitor);
      wanted = wanted || holder->has_visitor();
    }
    if (!wanted) return;
    bool alive = false;
    for (auto& holder : holders_) {
      holder->pin_service();
      alive = alive || !holder->pin_is_empty();
    }
    if (!alive) {
      T* service = new T(to_referent(owner));
      for (auto& holder : holders_) holder->set_service(service);
    }
    for (auto& holder : holders_) holder->deliver();
  }

 private:
  holders holders_;
};

/// The factory of a service with one interface.
template <class T, class I_impl, class I_visitor>
class single_service_factory : public service_factory<T> {
  using typename service_factory<T>::holders;

 public:
  /// Unless it is offered, the host meets the factory and is delivered nothing.
  explicit single_service_factory(const wchar_t* name_space, bool offered = true)
      : service_factory<T>(name_space, offered ? one_holder() : holders()) {}

 private:
  static holders one_holder() {
    holders all;
    all.push_back(std::make_unique<detail::ref_service_holder<T, of<I_impl>, I_impl, I_visitor>>());
    return all;
  }
};

/// Keeps the place of a service that this build of the bundle does not hold: the host meets the
/// factory in its order and is delivered nothing.
class vacant_service_factory : public custom_service_factory_impl {
 public:
  using custom_service_factory_impl::custom_service_factory_impl;
};

}  // namespace zu::util
