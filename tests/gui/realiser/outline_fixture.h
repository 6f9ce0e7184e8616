#pragma once
// A list of three rows on the screen, driven as a person drives it.

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QTest>
#include <memory>

#include "host/desktop/realiser/outline_widget.h"
#include "host/desktop/realiser/realiser.h"
#include "tests/gui/realiser/fake_outlines.h"

namespace zu::desktop {

class outline_on_screen : public testing::Test {
 protected:
  void SetUp() override {
    settle();
    names.texts = {L"one", L"two", L"three"};
  }
  void TearDown() override { set_input_listener({}); }

  outline_widget& open() {
    widget = std::make_unique<outline_widget>(handle_of<outline_impl>(list), nullptr);
    widget->resize(400, 300);
    widget->show();
    widget->activateWindow();
    widget->setFocus();
    (void)QTest::qWaitForWindowActive(widget.get());
    (void)widget->grab();
    return *widget;
  }
  QAbstractItemView* view() { return widget->view(); }
  QModelIndex cell(int row, int column) { return widget->model()->index(row, column); }
  void click(int row, int column, Qt::KeyboardModifiers keys = {}) {
    QTest::mouseClick(view()->viewport(), Qt::LeftButton, keys,
                      view()->visualRect(cell(row, column)).center());
  }
  void key(Qt::Key pressed, Qt::KeyboardModifiers keys = {}) {
    QTest::keyClick(view(), pressed, keys);
  }
  QWidget* editor() {
    return view()->viewport()->findChild<QWidget*>(QStringLiteral("cell_editor"));
  }
  /// Opens the editor of a cell.
  QWidget* edit(int row, int column) {
    view()->setCurrentIndex(cell(row, column));
    key(Qt::Key_F2);
    return editor();
  }
  void type(const char* text, Qt::Key end = Qt::Key_Return) {
    QWidget* where = editor();
    ASSERT_NE(where, nullptr);
    QTest::keyClicks(where, QString::fromLatin1(text));
    QTest::keyClick(where, end);
    settle();
  }
  /// What was put off happens: an editor goes, a listener hears.
  static void settle() {
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();  // what the first put off again
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  QString shown(int row, int column) { return cell(row, column).data().toString(); }

  fake_outline list;
  text_column names;
  std::unique_ptr<outline_widget> widget;
};

}  // namespace zu::desktop
