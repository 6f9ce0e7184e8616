#include "host/desktop/dialogs/question_windows.h"

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>

#include "host/desktop/dialogs/settings_file.h"
#include "host/desktop/words.h"
#include "zu/platform/zuk_msgs.h"

namespace zu::desktop {
namespace {

constexpr char folder_name[] = "file_folder";

QString ask(QFileDialog& dialog, const wchar_t* filter) {
  dialog.setObjectName(QStringLiteral("file"));
  if (QStringList filters = name_filters(filter); !filters.isEmpty())
    dialog.setNameFilters(filters);
  if (dialog.exec() != QDialog::Accepted) return {};
  QString path = dialog.selectedFiles().value(0);
  keep_used(folder_name, QFileInfo(path).absolutePath(), 1);
  return QDir::toNativeSeparators(path);
}

bool answer(const QString& path, Tzu_string_adp* adapter) {
  if (path.isEmpty()) return false;
  zu_string_adp_feed(adapter, path.toStdWString().c_str());
  return true;
}

bool ask_open_file(const wchar_t* filter, Tzu_string_adp* path, void* /*user*/) {
  QFileDialog dialog(QApplication::activeWindow(), words("Open", "Открыть"),
                     kept_list(folder_name).value(0));
  dialog.setFileMode(QFileDialog::ExistingFile);
  return answer(ask(dialog, filter), path);
}

bool ask_save_file(const wchar_t* filter, const wchar_t* suggested, Tzu_string_adp* path,
                   void* /*user*/) {
  QFileDialog dialog(QApplication::activeWindow(), words("Save as", "Сохранить как"),
                     kept_list(folder_name).value(0));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  auto complete = [&dialog](const QString& chosen) { dialog.setDefaultSuffix(ending_of(chosen)); };
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, complete);
  complete(name_filters(filter).value(0));
  if (suggested != nullptr) dialog.selectFile(QString::fromWCharArray(suggested));
  return answer(ask(dialog, filter), path);
}

bool ask_color(Tzu_color* color, void* /*user*/) {
  QColorDialog dialog(QApplication::activeWindow());
  dialog.setObjectName(QStringLiteral("color"));
  dialog.setWindowTitle(words("Colour", "Цвет"));
  dialog.setOption(QColorDialog::ShowAlphaChannel);  // before the colour, which loses it otherwise
  dialog.setCurrentColor(QColor(color->r, color->g, color->b, 255 - color->a));
  if (dialog.exec() != QDialog::Accepted) return false;
  auto byte = [](int part) { return static_cast<std::uint8_t>(part); };
  QColor chosen = dialog.selectedColor();
  *color = {byte(chosen.red()), byte(chosen.green()), byte(chosen.blue()),
            byte(255 - chosen.alpha())};
  return true;
}

}  // namespace

question_windows::question_windows() {
  Tzu_asking_hooks hooks{&ask_open_file, &ask_save_file, &ask_color, nullptr};
  zu_set_asking_hooks(&hooks);
}

question_windows::~question_windows() { zu_set_asking_hooks(nullptr); }

QStringList name_filters(std::wstring_view text) {
  QStringList pieces = QString::fromWCharArray(text.data(), static_cast<qsizetype>(text.size()))
                           .split(QLatin1Char('|'));
  QStringList filters;
  for (qsizetype i = 0; i + 1 < pieces.size(); i += 2) {
    QString name = pieces[i], patterns = pieces[i + 1];
    if (patterns.isEmpty()) continue;
    if (name.endsWith(QLatin1Char(')'))) name.truncate(name.lastIndexOf(QLatin1Char('(')));
    filters += QStringLiteral("%1 (%2)").arg(
        name.trimmed(), patterns.split(QLatin1Char(';')).join(QLatin1Char(' ')));
  }
  return filters;
}

QString ending_of(const QString& name_filter) {
  QString patterns = name_filter.section(QLatin1Char('('), -1).section(QLatin1Char(')'), 0, 0);
  QString first = patterns.section(QLatin1Char(' '), 0, 0);
  QString ending = first.section(QLatin1Char('.'), 1);
  return ending.contains(QLatin1Char('*')) ? QString() : ending;
}

}  // namespace zu::desktop
