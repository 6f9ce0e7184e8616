// The question about a SEG-Y file, from the bundle to the windows of a person and back.

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>

#include "host/core/bundle.h"
#include "host/core/failure.h"
#include "host/core/scene.h"
#include "host/desktop/realiser/modal_runner.h"
#include "host/desktop/words.h"
#include "tests/unit/platform/zuk_file_segy/made_section.h"
#include "zu/platform/zuk_file_segy.h"
#include "zu/platform/zuk_msgs.h"

namespace zu::desktop {
namespace {

class segy_dialog : public testing::Test {
 protected:
  void SetUp() override {
    choose_language(language::english);
    tests::made_section section(8, 1);
    for (int x : {100, 300})  // as of sources and as of receivers
      section.trace({"a"})
          .field(73, 4, x)
          .field(77, 4, 200)
          .field(81, 4, x)
          .field(85, 4, 200)
          .field(71, 2, 1);
    section.save(path_);
    zu_set_message_sink(
        [](const wchar_t* text, void* user) {
          static_cast<std::vector<std::wstring>*>(user)->emplace_back(text);
        },
        &messages_);
    services_.set_dialog_runners([this](const std::wstring& id) {
      return id == L"zu_segy_params_dialog" ? runner_.runner() : modal_dialog_runner();
    });
  }
  void TearDown() override {
    services_.set_dialog_runners({});
    zu_set_message_sink(nullptr, nullptr);
  }

  /// Opens the file; a person acts on the dialog and leaves it by OK or Cancel. True if a layer
  /// came of it.
  bool open(bool ok, const std::function<void(QWidget*)>& act = {}) {
    auto person = [&] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      shown_ = true;
      if (act) act(dialog);
      auto* button = dialog->findChild<QPushButton*>(ok ? QStringLiteral("button_2")
                                                        : QStringLiteral("button_8"));
      if (button == nullptr) {
        ADD_FAILURE() << "no button";
        return dialog->reject();
      }
      QTest::mouseClick(button, Qt::LeftButton);
    };
    QTimer::singleShot(0, qApp, person);
    host::scene scene(services_);
    try {
      scene.add(path_);
    } catch (const host::declined&) {
      EXPECT_TRUE(scene.layers().empty());
      return false;
    }
    return true;
  }
  static void type(QWidget* dialog, const char* text) {
    auto* units = dialog->findChild<QLineEdit*>(QStringLiteral("input"));
    ASSERT_NE(units, nullptr);
    units->setFocus();
    units->selectAll();
    QTest::keyClicks(units, QString::fromUtf8(text));
  }

  tests::section_folder folder_;
  std::string path_ = folder_ / "a.sgy";
  host::bundle services_;
  modal_runner runner_{QString()};
  std::vector<std::wstring> messages_;
  bool shown_ = false;
};

TEST_F(segy_dialog, is_built_of_the_controls_that_it_describes) {
  bool added = open(false, [&](QWidget* dialog) {
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("SEG-Y loading parameters"));
    auto* source = dialog->findChild<QComboBox*>();
    ASSERT_NE(source, nullptr);
    EXPECT_EQ(source->count(), 4);
    EXPECT_EQ(source->currentText(), QStringLiteral("Automatic"));
    auto* units = dialog->findChild<QLineEdit*>(QStringLiteral("input"));
    ASSERT_NE(units, nullptr);
    EXPECT_EQ(units->text(), QStringLiteral("Take from the trace header"));
    auto* simplify = dialog->findChild<QCheckBox*>();
    ASSERT_NE(simplify, nullptr);
    EXPECT_FALSE(simplify->isChecked());
  });
  EXPECT_TRUE(shown_);
  EXPECT_FALSE(added);
  EXPECT_TRUE(messages_.empty());
}

TEST_F(segy_dialog, what_a_person_set_is_stored_with_the_file) {
  EXPECT_TRUE(open(true, [](QWidget* dialog) {
    type(dialog, "0.3048");
    QTest::keyClick(dialog->findChild<QComboBox*>(), Qt::Key_Down);
    QTest::mouseClick(dialog->findChild<QCheckBox*>(), Qt::LeftButton, {}, QPoint(8, 8));
  }));
  std::wstring path(path_.begin(), path_.end());
  ASSERT_TRUE(zu_segy_file_has_params(path.c_str()));
  Tzu_segy_prms* stored = zu_segy_prms_create();
  Tzu_segy_file* file = zu_segy_file_open(path.c_str(), 1);
  zu_segy_file_get_parameters(file, stored);
  EXPECT_EQ(zu_segy_prms_get_coord_type(stored), 0);
  EXPECT_EQ(zu_segy_prms_get_coord_coeff(stored), 0.3048);
  EXPECT_TRUE(zu_segy_prms_get_pln_simplify_flag(stored));
  zu_segy_file_close(file);
  zu_segy_prms_destroy(stored);
}

TEST_F(segy_dialog, letters_for_units_say_what_is_wrong_and_add_no_layer) {
  EXPECT_FALSE(open(true, [](QWidget* dialog) { type(dialog, "feet"); }));
  ASSERT_EQ(messages_.size(), 1U);
  EXPECT_EQ(messages_[0], L"No suitable loading parameters were found");
}

}  // namespace
}  // namespace zu::desktop
