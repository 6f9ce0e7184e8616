#pragma once
// What a person chooses once for all projects.

#include <QDialog>
#include <optional>

#include "host/core/coordinate_text.h"
#include "host/desktop/appearance.h"
#include "host/desktop/words.h"

class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace zu::desktop {

/// The language that the settings say, else the system's (LC_ALL, LC_MESSAGES, LANG).
language chosen_language();
appearance chosen_appearance();
/// In which the status bar says where the pointer is.
host::coordinate_units chosen_units();
/// Puts in force what the settings say: what the platform must know, language and appearance. What
/// a command line says instead is given. For the start of the program.
void apply_chosen(std::optional<language> speech = {}, std::optional<appearance> look = {});

/// Language and appearance are shown at once, in the dialog too; Cancel puts back what was.
class settings_dialog final : public QDialog {
  Q_OBJECT

 public:
  /// True if the person accepted; the settings are then kept and in force.
  static bool ask(QWidget* parent);

  explicit settings_dialog(QWidget* parent = nullptr);

  void accept() override;
  void reject() override;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void name_and_link();
  void place();
  void show_kept();
  void retranslate();
  void show_choice();
  void choose_folder();
  void check_folder();

  language language_before_;
  QGroupBox *window_, *sections_, *styles_;
  QComboBox *language_, *appearance_, *units_;
  QLabel *language_label_, *appearance_label_, *units_label_, *overviews_note_;
  QLabel *libraries_label_, *libraries_problem_, *file_;
  QLineEdit* libraries_;
  QPushButton* browse_;
  QCheckBox* overviews_;
  QDialogButtonBox* buttons_;
};

}  // namespace zu::desktop
