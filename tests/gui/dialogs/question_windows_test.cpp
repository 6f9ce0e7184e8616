// Files and colours that the bundles ask for, as a person answers.

#include "host/desktop/dialogs/question_windows.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

#include "tests/gui/dialogs/dialog_fixture.h"
#include "zu/platform/zuk_msgs.h"

namespace zu::desktop {
namespace {

class questions : public dialog_test {
 protected:
  void write(const char* name) {
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("x");
  }
  static std::wstring ask_open(const wchar_t* filter) {
    return text([&](Tzu_string_adp* a) { return zu_ask_open_file_w(filter, a); });
  }
  static std::wstring ask_save(const wchar_t* filter, const wchar_t* suggested) {
    return text([&](Tzu_string_adp* a) { return zu_ask_save_file_w(filter, suggested, a); });
  }
  /// Types a name into the file dialog that opens next, after a look at it.
  static void when_asked_for_file(const QString& typed,
                                  const std::function<void(QFileDialog&)>& look = {}) {
    when_modal([=](QWidget& window) {
      auto& dialog = dynamic_cast<QFileDialog&>(window);
      if (look) look(dialog);
      enter(dialog, typed);
    });
  }

  static void enter(QFileDialog& dialog, const QString& name) {
    find<QLineEdit>(dialog, "fileNameEdit")->setText(name);
    auto role = dialog.acceptMode() == QFileDialog::AcceptSave ? QDialogButtonBox::Save
                                                               : QDialogButtonBox::Open;
    find<QDialogButtonBox>(dialog, "buttonBox")->button(role)->click();
  }

  question_windows windows_;

 private:
  template <class question> static std::wstring text(question ask) {
    std::wstring path;
    Tzu_string_adp* adapter = zu_string_adp_create(
        nullptr, [](const wchar_t* t, void* user) { *static_cast<std::wstring*>(user) = t; },
        &path);
    bool answered = ask(adapter);
    zu_string_adp_destroy(adapter);
    EXPECT_EQ(answered, !path.empty());
    return path;
  }
};

TEST_F(questions, filters_are_written_as_qt_writes_them) {
  struct row {
    const wchar_t* text;
    QStringList filters;
    const char* ending;
  };
  auto q = [](const char* text) { return QString::fromUtf8(text); };
  const row rows[] = {
      {L"Scales (*.scl)|*.scl", {q("Scales (*.scl)")}, "scl"},
      {L"A b (*.a;*.b)|*.a;*.b|All|*.*", {q("A b (*.a *.b)"), q("All (*.*)")}, "a"},
      {L"Шкалы (все)|*._ls", {q("Шкалы (*._ls)")}, "_ls"},
      {L"All files|*", {q("All files (*)")}, ""},
      {L"Nothing", {}, ""},
      {L"", {}, ""},
  };
  for (const row& r : rows) {
    EXPECT_EQ(name_filters(r.text), r.filters) << QString::fromWCharArray(r.text).toStdString();
    EXPECT_EQ(ending_of(name_filters(r.text).value(0)).toStdString(), r.ending);
  }
}

TEST_F(questions, a_file_is_opened_and_its_folder_remembered) {
  write("one.scl");
  when_asked_for_file(path("one.scl"), [](QFileDialog& dialog) {
    EXPECT_EQ(dialog.nameFilters(), QStringList{QStringLiteral("Scales (*.scl)")});
    EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
  });
  EXPECT_EQ(ask_open(L"Scales (*.scl)|*.scl"), path("one.scl").toStdWString());
  when_modal([&](QWidget& window) {
    EXPECT_EQ(dynamic_cast<QFileDialog&>(window).directory().path(), folder_.path());
    QTest::keyClick(&window, Qt::Key_Escape);
  });
  EXPECT_EQ(ask_open(L"Scales (*.scl)|*.scl"), L"");
}

TEST_F(questions, a_name_is_completed_by_the_ending_of_the_filter) {
  when_asked_for_file(path("two"), [](QFileDialog& dialog) {
    EXPECT_EQ(dialog.selectedFiles().value(0).section(QLatin1Char('/'), -1),
              QStringLiteral("dem.scl"));
  });
  EXPECT_EQ(ask_save(L"Scales (*.scl)|*.scl", L"dem.scl"), path("two.scl").toStdWString());
  when_asked_for_file(path("two.txt"));
  EXPECT_EQ(ask_save(L"Scales (*.scl)|*.scl", nullptr), path("two.txt").toStdWString());
  when_asked_for_file(path("three"), [](QFileDialog& dialog) {
    dialog.selectNameFilter(QStringLiteral("B (*.b)"));
    Q_EMIT dialog.filterSelected(QStringLiteral("B (*.b)"));
  });
  EXPECT_EQ(ask_save(L"A|*.a|B|*.b", nullptr), path("three.b").toStdWString());
}

TEST_F(questions, an_older_file_is_given_up_only_after_one_question) {
  write("old.scl");
  for (QMessageBox::StandardButton said : {QMessageBox::Yes, QMessageBox::No}) {
    int questions = 0;
    when_modal([&](QWidget& window) {
      auto& dialog = dynamic_cast<QFileDialog&>(window);
      when_modal([&](QWidget& inner) {
        ++questions;
        dynamic_cast<QMessageBox&>(inner).button(said)->click();
      });
      enter(dialog, path("old"));
      if (dialog.isVisible()) dialog.reject();
    });
    EXPECT_EQ(ask_save(L"Scales|*.scl", nullptr),
              said == QMessageBox::Yes ? path("old.scl").toStdWString() : L"");
    EXPECT_EQ(questions, 1);
  }
}

TEST_F(questions, a_colour_goes_in_and_out_with_its_transparency) {
  Tzu_color color{10, 20, 30, 55};
  when_modal([](QWidget& window) {
    auto& dialog = dynamic_cast<QColorDialog&>(window);
    grab(dialog, "color");
    EXPECT_EQ(dialog.currentColor(), QColor(10, 20, 30, 200));
    dialog.setCurrentColor(QColor(200, 100, 50, 155));
    dialog.accept();
  });
  EXPECT_TRUE(zu_ask_color(&color));
  EXPECT_EQ((std::array<int, 4>{color.r, color.g, color.b, color.a}),
            (std::array<int, 4>{200, 100, 50, 100}));
  when_modal([](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); });
  EXPECT_FALSE(zu_ask_color(&color));
  EXPECT_EQ(color.r, 200);
}

}  // namespace
}  // namespace zu::desktop
