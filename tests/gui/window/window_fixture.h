#pragma once
// A main window over files of a temporary folder; what it asks is answered by the test.

#include <gtest/gtest.h>

#include <QAction>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include "host/core/bundle.h"
#include "host/desktop/appearance.h"
#include "host/desktop/window/layer_list.h"
#include "host/desktop/window/main_window.h"
#include "host/desktop/window/message_bar.h"
#include "host/desktop/window/window_actions.h"
#include "host/desktop/words.h"

namespace zu::desktop {

/// What a person would answer, and how often each thing was asked.
struct answers {
  QStringList files;
  QString save_as, source, name, picture, colors;
  std::optional<QString> projection;
  unsaved_answer unsaved = unsaved_answer::cancel;
  int unsaved_asked = 0;

  prompts as_prompts() {
    prompts made;
    made.files_to_open = [this](QWidget*, const QString&) { return files; };
    made.file_to_save = [this](QWidget*, const QString&) { return save_as; };
    made.unsaved = [this](QWidget*, const QString&) {
      ++unsaved_asked;
      return unsaved;
    };
    made.source_instead = [this](QWidget*, const QString&) { return source; };
    made.colors_to_load = [this](QWidget*, const QString&) { return colors; };
    made.colors_to_save = [this](QWidget*, const QString&) { return colors; };
    made.name = [this](QWidget*, const QString&, const QString&) { return name; };
    made.projection = [this](QWidget*, const QString&) { return projection; };
    made.picture = [this](QWidget*, host::page_request seen, const QString&) {
      seen.picture.kind = host::page_kind_of(picture.toStdString(), false).value();
      return picture.isEmpty() ? std::nullopt : std::optional(export_request{picture, seen});
    };
    return made;
  }
};

class main_window_test : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(folder_.isValid());
    qputenv("XDG_CONFIG_HOME", folder_.path().toUtf8());
    choose_appearance(appearance::light);
    choose_language(language::english);
    open_window();
  }
  void TearDown() override {
    window_.reset();
    choose_language(language::english);
  }

  void open_window() {
    window_.reset();
    window_ = std::make_unique<main_window>(services_, answers_.as_prompts());
    window_->resize(1000, 700);
    window_->show();
    QCoreApplication::processEvents();
  }

  QString path(const char* name) const { return folder_.filePath(QString::fromUtf8(name)); }

  /// A grid of 4 x 3 cells of 100 units, its low left corner at (x0, 0).
  QString grid(const char* name, int x0 = 0) {
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("ncols 4\nnrows 3\nxllcorner " + QByteArray::number(x0) +
               "\nyllcorner 0\ncellsize 100\nNODATA_value -9999\n"
               "1 2 3 4\n5 6 7 8\n9 10 11 12\n");
    return file.fileName();
  }

  document& content() { return window_->content(); }
  window_actions& actions() { return window_->actions(); }
  layer_list& list() { return *window_->findChild<layer_list*>(); }
  QStringList captions() {
    QStringList texts;
    for (int row = 0; row < list().topLevelItemCount(); ++row)
      texts += list().topLevelItem(row)->text(0);
    return texts;
  }
  QStringList messages() { return window_->views().messages().lines(); }

  QTemporaryDir folder_;
  host::bundle services_;
  answers answers_;
  std::unique_ptr<main_window> window_;
};

}  // namespace zu::desktop
