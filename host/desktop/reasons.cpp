#include "host/desktop/reasons.h"

#include "host/desktop/words.h"

namespace zu::desktop {
namespace {

struct reason {
  const char *english, *russian;
};

constexpr reason reasons[] = {
    {"no such file", "файла нет"},
    {"no such folder", "папки нет"},
    {"is a directory", "это папка"},
    {"is empty", "файл пуст"},
    {"is missing", "источника нет"},
    {"no permission to read", "нет прав на чтение"},
    {"no permission to write", "нет прав на запись"},
    {"no space left on the device", "на диске нет места"},
    {"cannot be opened", "не открывается"},
    {"cannot be read", "не читается"},
    {"cannot be written", "не записывается"},
    {"not a grid that any driver knows", "сеть ни одного из известных видов не найдена"},
    {"the file is truncated", "файл обрезан"},
    {"a tile cannot be read", "часть файла не читается"},
    {"is no XML", "это не XML"},
    {"is no project of zugrid", "это не проект Zugrid"},
    {"is no known coordinate system", "такой системы координат нет"},
    {"is not coloured by a scale", "раскрашен не по шкале"},
};

/// Where a reason stands whole, alone, behind "FILE: " or before ": DETAILS"; -1: nowhere.
qsizetype place_of(const QString& reason, const QString& problem) {
  const QString between = QStringLiteral(": ");
  for (qsizetype at = problem.indexOf(reason); at >= 0; at = problem.indexOf(reason, at + 1)) {
    const qsizetype end = at + reason.size();
    if ((at == 0 || problem.left(at).endsWith(between)) &&
        (end == problem.size() || problem.mid(end).startsWith(between)))
      return at;
  }
  return -1;
}

}  // namespace

QString reason_in_words(const std::string& problem) {
  QString said = QString::fromStdString(problem);
  for (const reason& each : reasons) {
    const QString english = QString::fromUtf8(each.english);
    if (const qsizetype at = place_of(english, said); at >= 0)
      return said.replace(at, english.size(), words(each.english, each.russian));
  }
  return said;
}

}  // namespace zu::desktop
