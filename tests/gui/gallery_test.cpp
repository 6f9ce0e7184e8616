// The gallery: real elements of a bundle in real controls, used as a person uses them.

#include "host/desktop/gallery.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>

#include "host/core/failure.h"
#include "host/desktop/realiser/modal_runner.h"
#include "host/desktop/words.h"

namespace zu::desktop {
namespace {

class gallery : public testing::Test {
 protected:
  void SetUp() override {
    choose_language(language::english);
    services_.set_dialog_runners([this](const std::wstring& id) {
      return id == L"zu_gallery_dialog" ? runner_.runner() : modal_dialog_runner();
    });
  }
  void TearDown() override {
    services_.set_dialog_runners({});
    choose_language(language::english);
  }

  /// Opens the gallery, has a person act on it, and closes it.
  void open(const std::function<void(QDialog&)>& act) {
    bool acted = false;
    QTimer::singleShot(0, qApp, [&] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      acted = true;
      act(*dialog);
      dialog->reject();
    });
    show_gallery(services_, {});
    EXPECT_TRUE(acted);
  }
  static QLineEdit* line(QDialog& dialog, const char* text) {
    for (auto* each : dialog.findChildren<QLineEdit*>())
      if (each->text() == QLatin1String(text)) return each;
    return nullptr;
  }
  template <class button> static button* named(QDialog& dialog, const char* text) {
    for (auto* each : dialog.findChildren<button*>())
      if (each->text().remove(QLatin1Char('&')) == QLatin1String(text)) return each;
    return nullptr;
  }
  /// The page of a number, in front.
  static void turn_to(QDialog& dialog, int page) {
    dialog.findChild<QTabWidget*>()->setCurrentIndex(page);
    QApplication::processEvents();
  }

  host::bundle services_{{"zuk_common.so"}};
  modal_runner runner_{QStringLiteral("zu_gallery_dialog")};
};

TEST_F(gallery, has_a_control_for_every_element) {
  open([](QDialog& dialog) {
    auto* tabs = dialog.findChild<QTabWidget*>();
    ASSERT_NE(tabs, nullptr);
    EXPECT_EQ(tabs->count(), 7);
    for (int page = 0; page < tabs->count(); ++page) turn_to(dialog, page);
    EXPECT_EQ(dialog.findChild<QWidget*>(QStringLiteral("unknown_element")), nullptr);
    for (const char* kind : {"label",           "image",       "button",
                             "checkbox",        "radiobutton", "input",
                             "multiline_input", "output",      "multiline_output",
                             "number",          "slider",      "dropdown",
                             "outline",         "list",        "grid",
                             "canvas",          "histogram",   "toolbar",
                             "stack",           "groupbox",    "button_box"})
      EXPECT_NE(dialog.findChild<QObject*>(QString::fromLatin1(kind)), nullptr) << kind;
  });
}

TEST_F(gallery, an_input_that_refuses_shows_what_it_had) {
  open([](QDialog& dialog) {
    QLineEdit* digits = line(dialog, "2026");
    ASSERT_NE(digits, nullptr);
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    digits->setFocus();
    digits->selectAll();
    QTest::keyClicks(digits, QStringLiteral("19x"));
    QTest::keyClick(digits, Qt::Key_Tab);
    EXPECT_FALSE(digits->text().contains(QLatin1Char('x')));
  });
}

TEST_F(gallery, what_a_person_does_reaches_the_program_and_comes_back) {
  open([](QDialog& dialog) {
    turn_to(dialog, 2);
    auto* button = named<QPushButton>(dialog, "Button");
    ASSERT_NE(button, nullptr);
    QTest::mouseClick(button, Qt::LeftButton);
    bool said = false;
    for (auto* each : dialog.findChildren<QLineEdit*>())
      said = said || each->text() == QLatin1String("Button");
    for (auto* each : dialog.findChildren<QLabel*>())
      said = said || each->text() == QLatin1String("Button");
    EXPECT_TRUE(said);
  });
}

TEST_F(gallery, the_program_changes_and_disables_controls) {
  open([](QDialog& dialog) {
    QLineEdit* plain = line(dialog, "Zugrid");
    ASSERT_NE(plain, nullptr);
    auto* change = named<QPushButton>(dialog, "Change from the program");
    ASSERT_NE(change, nullptr);
    QTest::mouseClick(change, Qt::LeftButton);
    EXPECT_EQ(plain->text(), QStringLiteral("Zugrid!"));
    auto* enabled = named<QAbstractButton>(dialog, "Enabled");
    ASSERT_NE(enabled, nullptr);
    enabled->click();
    EXPECT_FALSE(plain->isEnabled());
    enabled->click();
    EXPECT_TRUE(plain->isEnabled());
  });
}

TEST_F(gallery, speaks_another_language_while_it_is_open) {
  open([](QDialog& dialog) {
    choose_language(language::russian);
    EXPECT_EQ(dialog.windowTitle(), QString::fromUtf8("Галерея элементов"));
    EXPECT_EQ(dialog.findChild<QTabWidget*>()->tabText(1), QString::fromUtf8("Числа"));
  });
}

TEST_F(gallery, opened_and_closed_leaves_no_widget_behind) {
  open([](QDialog&) {});
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  auto before = QApplication::allWidgets().size();
  for (int round = 0; round < 20; ++round) open([](QDialog&) {});
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(QApplication::allWidgets().size(), before);
}

TEST_F(gallery, is_drawn_into_a_picture_with_all_its_pages) {
  QTemporaryDir folder;
  QString path = folder.filePath(QStringLiteral("gallery.png"));
  show_gallery(services_, path);
  QImage drawn(path);
  ASSERT_FALSE(drawn.isNull());
  EXPECT_GT(drawn.height(), drawn.width());  // four rows of two pages
}

TEST_F(gallery, a_picture_that_cannot_be_written_is_said) {
  EXPECT_THROW(show_gallery(services_, QStringLiteral("/nowhere/gallery.png")), host::failure);
}

}  // namespace
}  // namespace zu::desktop
