#pragma once
// What a person chooses once for all projects.

#include <QDialog>
#include <optional>

#include "host/desktop/appearance.h"
#include "host/desktop/words.h"

class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QGroupBox;
class QLabel;

namespace zu::desktop {

/// The language that the settings say, else the system's (LC_ALL, LC_MESSAGES, LANG).
language chosen_language();
appearance chosen_appearance();
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
  void retranslate();
  void show_choice();

  language language_before_;
  QGroupBox *window_, *sections_;
  QComboBox *language_, *appearance_;
  QLabel *language_label_, *appearance_label_, *overviews_note_, *file_;
  QCheckBox* overviews_;
  QDialogButtonBox* buttons_;
};

}  // namespace zu::desktop
