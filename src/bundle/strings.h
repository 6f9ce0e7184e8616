#pragma once
// Texts that come from the platform through adapters and from interfaces through visitors.

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "src/bundle/encoding.h"
#include "zu/platform/zuk_basic.h"
#include "zu/strings.h"

/// Takes texts from platform functions. It has no virtual destructor: whoever owns the object
/// destroys `adapter` with `zu_string_adp_destroy`.
class Tzu_string_adapter_base {
 public:
  Tzu_string_adapter_base();
  Tzu_string_adapter_base(const Tzu_string_adapter_base&) = delete;
  Tzu_string_adapter_base& operator=(const Tzu_string_adapter_base&) = delete;
  virtual void take(const wchar_t* text) = 0;
  virtual void take(const char* text) = 0;

  Tzu_string_adp* adapter;

 protected:
  ~Tzu_string_adapter_base() = default;
};

/// Assigns what it gets to a string of the caller; null empties it.
class Tzu_std_wstring_adapter : public Tzu_string_adapter_base {
 public:
  explicit Tzu_std_wstring_adapter(std::wstring& target) : target_(target) {}
  void take(const wchar_t* text) override;
  void take(const char* text) override;

 private:
  std::wstring& target_;
};

namespace zu {

/// Calls `ask` with an adapter and gives the text that it delivered; empty if it delivered none.
template <class function> std::wstring text_of(function&& ask) {
  std::wstring text;
  Tzu_std_wstring_adapter receiver(text);
  std::unique_ptr<Tzu_string_adp, void (*)(Tzu_string_adp*)> ended(receiver.adapter,
                                                                   &zu_string_adp_destroy);
  ask(receiver.adapter);
  return text;
}

/// Keeps the last text; the pointer must not be null.
class stdwstring_visitor : public string_visitor_impl {
 public:
  explicit stdwstring_visitor(std::wstring& target) : target_(target) {}
  void visit(const wchar_t* text) override { target_ = text; }

 private:
  std::wstring& target_;
};

/// Keeps all texts in their order.
class stdwstring_list_visitor : public string_visitor_impl {
 public:
  explicit stdwstring_list_visitor(std::vector<std::wstring>& target) : target_(target) {}
  void visit(const wchar_t* text) override {
    if (text != nullptr) target_.emplace_back(text);
  }

 private:
  std::vector<std::wstring>& target_;
};

/// Keeps each text once.
class stdwstring_set_visitor : public string_visitor_impl {
 public:
  explicit stdwstring_set_visitor(std::set<std::wstring>& target) : target_(target) {}
  void visit(const wchar_t* text) override {
    if (text != nullptr) target_.emplace(text);
  }

 private:
  std::set<std::wstring>& target_;
};

/// Passes texts on to an adapter of the platform.
class string_adp_visitor : public string_visitor_impl {
 public:
  explicit string_adp_visitor(Tzu_string_adp* adapter) : adapter_(adapter) {}
  void visit(const wchar_t* text) override { zu_string_adp_feed(adapter_, text); }

 private:
  Tzu_string_adp* adapter_;
};

namespace detail {

/// The other way round: texts of a platform function go to a visitor. Narrow text is converted
/// with a row of the encoding table.
template <class visitor> class visitor_string_adapter : public Tzu_string_adapter_base {
 public:
  explicit visitor_string_adapter(visitor receiver, int encoding = system_encoding)
      : receiver_(receiver), encoding_(encoding) {}
  void take(const wchar_t* text) override { call<&string_visitor_impl::visit>(receiver_, text); }
  void take(const char* text) override {
    if (receiver_) take(wide_from(text != nullptr ? text : "", encoding_).c_str());
  }

 private:
  visitor receiver_;
  int encoding_;
};

}  // namespace detail
}  // namespace zu
