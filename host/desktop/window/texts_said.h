#pragma once
// Texts that are said anew when the language changes.

#include <QObject>
#include <functional>
#include <vector>

namespace zu::desktop {

/// Keeps what sets a window's texts. Its window calls `say_all` on QEvent::LanguageChange; what is
/// kept must live as long as the window.
class texts_said {
 public:
  /// Says a text now, and with every change of language.
  void say(std::function<void()> text) {
    text();
    texts_.push_back(std::move(text));
  }
  void say_all() const {
    for (const auto& text : texts_) text();
  }

 private:
  std::vector<std::function<void()>> texts_;
};

}  // namespace zu::desktop
