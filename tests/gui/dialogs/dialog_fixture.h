#pragma once
// Dialogs over settings of their own; a modal one is answered from inside its own loop.

#include <gtest/gtest.h>

#include <QApplication>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>

#include "host/desktop/words.h"

namespace zu::desktop {

class dialog_test : public testing::Test {
 protected:
  dialog_test() {
    EXPECT_TRUE(folder_.isValid());
    qputenv("XDG_CONFIG_HOME", folder_.path().toUtf8());
    choose_language(language::english);
  }
  ~dialog_test() override { choose_language(language::english); }

  QString path(const char* name) const { return folder_.filePath(QString::fromUtf8(name)); }

  template <class widget> static widget* find(const QWidget& in, const char* name) {
    auto* found = in.findChild<widget*>(QString::fromUtf8(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
  }

  /// Runs `answer` in the modal window that opens next.
  static void when_modal(std::function<void(QWidget&)> answer) {
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, answer = std::move(answer)] {
      QWidget* modal = QApplication::activeModalWidget();
      if (modal == nullptr) return;
      timer->deleteLater();
      timer->stop();
      answer(*modal);
    });
    timer->start(1);
  }

  /// For a person to look at: $ZU_GRABS names a folder.
  static void grab(QWidget& widget, const char* name) {
    if (QByteArray folder = qgetenv("ZU_GRABS"); !folder.isEmpty())
      widget.grab().save(QString::fromUtf8(folder + "/" + name + ".png"));
  }

  QTemporaryDir folder_;
};

}  // namespace zu::desktop
