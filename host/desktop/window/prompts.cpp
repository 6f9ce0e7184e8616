#include "host/desktop/window/prompts.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>

#include "host/desktop/dialogs/projection_chooser.h"
#include "host/desktop/words.h"

namespace zu::desktop {
namespace {

QString all_files() { return words("All files (*)", "Все файлы (*)"); }

QString what_opens() {
  return words("Grids, pictures and projects (*)", "Сетки, снимки и проекты (*)") +
         QStringLiteral(
             ";;GeoTIFF (*.tif *.tiff);;netCDF (*.nc);;ESRI ASCII (*.asc);;"
             "Surfer (*.grd);;SEG-Y (*.sgy *.segy);;PGRID (*.pgrid);;Zugrid (*.zgp)");
}

QStringList ask_files(QWidget* parent, const QString& folder) {
  return QFileDialog::getOpenFileNames(parent, words("Open", "Открыть"), folder, what_opens());
}

QString ask_project(QWidget* parent, const QString& proposed) {
  QFileDialog dialog(parent, words("Save the project as", "Сохранить проект как"), proposed,
                     words("Projects (*.zgp)", "Проекты (*.zgp)"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(QStringLiteral("zgp"));
  dialog.selectFile(proposed);
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

unsaved_answer ask_unsaved(QWidget* parent, const QString& name) {
  QMessageBox box(QMessageBox::Warning, words("Unsaved changes", "Несохранённые изменения"),
                  words("Save the changes of \"%1\"?", "Сохранить изменения в «%1»?").arg(name),
                  QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, parent);
  box.setInformativeText(words("They are lost otherwise.", "Иначе они будут потеряны."));
  box.setDefaultButton(QMessageBox::Save);
  switch (box.exec()) {
    case QMessageBox::Save:
      return unsaved_answer::save;
    case QMessageBox::Discard:
      return unsaved_answer::discard;
    default:
      return unsaved_answer::cancel;
  }
}

QString ask_source(QWidget* parent, const QString& missing) {
  return QFileDialog::getOpenFileName(
      parent, words("Where is \"%1\"?", "Где находится «%1»?").arg(QFileInfo(missing).fileName()),
      QFileInfo(missing).absolutePath(), all_files());
}

QString ask_name(QWidget* parent, const QString& question, const QString& now) {
  bool accepted = false;
  QString text =
      QInputDialog::getText(parent, question, question, QLineEdit::Normal, now, &accepted);
  return accepted ? text.trimmed() : QString();
}

}  // namespace

prompts prompts_of_dialogs() {
  return {ask_files,         ask_project, ask_unsaved,
          ask_source,        ask_name,    projection_chooser::ask,
          export_dialog::ask};
}

}  // namespace zu::desktop
