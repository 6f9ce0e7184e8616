#include "host/desktop/words.h"

#include <gtest/gtest.h>

#include <QWidget>

namespace zu::desktop {

struct counting_widget : QWidget {
  void changeEvent(QEvent* event) override {
    if (event->type() == QEvent::LanguageChange) ++changes;
  }
  int changes = 0;
};

TEST(words, follow_the_language_and_every_window_hears_of_it) {
  counting_widget window;
  choose_language(language::english);
  EXPECT_EQ(words("Layers", "Слои"), QStringLiteral("Layers"));
  choose_language(language::russian);
  EXPECT_EQ(words("Layers", "Слои"), QString::fromUtf8("Слои"));
  choose_language(language::english);
  EXPECT_EQ(window.changes, 3);
}

}  // namespace zu::desktop
