#pragma once
// A host that answers questions for files and colours as a test says.

#include <string>

#include "zu/platform/zuk_msgs.h"

namespace tests {

class asking_host {
 public:
  asking_host() {
    hooks_.user = this;
    hooks_.open_file = [](const wchar_t* filter, Tzu_string_adp* adapter, void* user) {
      return static_cast<asking_host*>(user)->file(filter, adapter);
    };
    hooks_.save_file = [](const wchar_t* filter, const wchar_t* suggested, Tzu_string_adp* adapter,
                          void* user) {
      auto* self = static_cast<asking_host*>(user);
      self->suggested = suggested != nullptr ? suggested : L"";
      return self->file(filter, adapter);
    };
    hooks_.color = [](Tzu_color* chosen, void* user) {
      auto* self = static_cast<asking_host*>(user);
      if (self->accepts) *chosen = self->color;
      return self->accepts;
    };
    zu_set_asking_hooks(&hooks_);
    zu_set_message_sink(
        [](const wchar_t* text, void* user) { static_cast<asking_host*>(user)->message = text; },
        this);
    warning_hooks_.user = this;
    warning_hooks_.warning = [](const wchar_t* text, void* user) {
      static_cast<asking_host*>(user)->warning = text;
    };
    zu_set_message_hooks(&warning_hooks_);
  }
  asking_host(const asking_host&) = delete;
  asking_host& operator=(const asking_host&) = delete;
  ~asking_host() {
    zu_set_asking_hooks(nullptr);
    zu_set_message_sink(nullptr, nullptr);
    zu_set_message_hooks(nullptr);
  }

  std::wstring path;  ///< what the person chooses; empty: nothing
  Tzu_color color{77, 0, 0, 0};
  bool accepts = true;
  std::wstring filter, suggested;  ///< of the last question
  std::wstring message, warning;   ///< the last ones

 private:
  bool file(const wchar_t* asked_filter, Tzu_string_adp* adapter) {
    filter = asked_filter;
    if (!path.empty()) zu_string_adp_feed(adapter, path.c_str());
    return !path.empty();
  }
  Tzu_asking_hooks hooks_{};
  Tzu_message_hooks warning_hooks_{};
};

}  // namespace tests
