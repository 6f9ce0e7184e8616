#pragma once
// Notices between objects of the bundle that do not know each other.

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace zu {
namespace events {

/// What connects a handler to an event; its end disconnects.
class connection_base {
 public:
  connection_base() = default;
  connection_base(const connection_base&) = delete;
  connection_base& operator=(const connection_base&) = delete;
  virtual ~connection_base() = default;
  virtual bool connected() const = 0;  ///< the event is still there
  virtual void disconnect() = 0;
  virtual void block() = 0;  ///< the handler is passed over
  virtual void unblock() = 0;
};
using connection = std::unique_ptr<connection_base>;

}  // namespace events

template <class signature> class event;

/// Calls its handlers in the order in which they came. They may connect and disconnect anything
/// meanwhile, and may end the event itself; one that comes during a round waits for the next.
template <class... args> class event<void(args...)> {
  struct observer {
    std::function<void(args...)> handler;
    bool blocked = false;
  };
  struct entry {
    std::uint32_t id;
    std::weak_ptr<observer> target;
  };
  using entries = std::vector<entry>;

 public:
  class connection_impl : public events::connection_base {
   public:
    connection_impl(const std::shared_ptr<entries>& list, std::uint32_t id,
                    std::shared_ptr<bool> blocked)
        : list_(list), id_(id), blocked_(std::move(blocked)) {}
    ~connection_impl() override { connection_impl::disconnect(); }

    bool connected() const override { return !list_.expired(); }
    void disconnect() override {
      if (auto list = list_.lock())
        list->erase(
            std::remove_if(list->begin(), list->end(), [&](const entry& e) { return e.id == id_; }),
            list->end());
      blocked_.reset();
    }
    void block() override { set_blocked(true); }
    void unblock() override { set_blocked(false); }

   private:
    void set_blocked(bool on) {
      if (connected() && blocked_) *blocked_ = on;
    }

    std::weak_ptr<entries> list_;
    std::uint32_t id_;
    std::shared_ptr<bool> blocked_;  // lies in the observer, which it keeps
  };

  event() = default;
  event(const event&) = delete;
  event& operator=(const event&) = delete;

  /// `handler` must not be empty. It is heard as long as the connection lives.
  [[nodiscard]] events::connection connect(std::function<void(args...)> handler) {
    auto made = std::make_shared<observer>(observer{std::move(handler)});
    list_->push_back({++last_id_, made});
    return std::make_unique<connection_impl>(list_, last_id_,
                                             std::shared_ptr<bool>(made, &made->blocked));
  }

  void operator()(args... values) const {
    const entries round = *list_;
    for (const entry& e : round)
      if (auto target = e.target.lock(); target && !target->blocked) target->handler(values...);
  }

 private:
  std::shared_ptr<entries> list_ = std::make_shared<entries>();
  std::uint32_t last_id_ = 0;
};

}  // namespace zu
