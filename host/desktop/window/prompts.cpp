#include "host/desktop/window/prompts.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <algorithm>

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

QString ask_colors(QWidget* parent, const QString& folder) {
  return QFileDialog::getOpenFileName(
      parent, words("Load colours", "Загрузить цвета"), folder,
      words("Scales and colour tables (*._rg *._vl *.avl *.cpt *.txt *.clr)",
            "Шкалы и таблицы цветов (*._rg *._vl *.avl *.cpt *.txt *.clr)") +
          QStringLiteral(";;") + all_files());
}

QString ask_colors_to_save(QWidget* parent, const QString& proposed) {
  QFileDialog dialog(parent, words("Save colours", "Сохранить цвета"), proposed);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setNameFilters({words("Scale of ranges (*._rg)", "Шкала диапазонов (*._rg)"),
                         words("Scale of values (*._vl)", "Шкала значений (*._vl)"),
                         words("Colour table of GMT (*.cpt)", "Таблица цветов GMT (*.cpt)"),
                         words("Colour map of QGIS (*.qgis.txt)", "Карта цветов QGIS (*.qgis.txt)"),
                         words("Colour relief of GDAL (*.txt)", "Цвета рельефа GDAL (*.txt)")});
  const QStringList endings{QStringLiteral("_rg"), QStringLiteral("_vl"), QStringLiteral("cpt"),
                            QStringLiteral("qgis.txt"), QStringLiteral("txt")};
  auto follow = [&dialog, endings] {
    const auto chosen = dialog.nameFilters().indexOf(dialog.selectedNameFilter());
    dialog.setDefaultSuffix(endings.value(chosen));
  };
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, follow);
  const QString ending = QFileInfo(proposed).suffix();
  dialog.selectNameFilter(
      dialog.nameFilters().value(std::max(endings.indexOf(ending), qsizetype{0})));
  follow();
  dialog.selectFile(proposed);
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString ask_name(QWidget* parent, const QString& question, const QString& now) {
  bool accepted = false;
  QString text =
      QInputDialog::getText(parent, question, question, QLineEdit::Normal, now, &accepted);
  return accepted ? text.trimmed() : QString();
}

}  // namespace

prompts prompts_of_dialogs() {
  prompts made;
  made.files_to_open = ask_files;
  made.file_to_save = ask_project;
  made.unsaved = ask_unsaved;
  made.source_instead = ask_source;
  made.colors_to_load = ask_colors;
  made.colors_to_save = ask_colors_to_save;
  made.name = ask_name;
  made.projection = projection_chooser::ask;
  made.picture = export_dialog::ask;
  return made;
}

}  // namespace zu::desktop
