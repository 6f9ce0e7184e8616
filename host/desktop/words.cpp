#include "host/desktop/words.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>
#include <QWidget>

#include "host/core/settings.h"

namespace zu::desktop {
namespace {

language in_force = language::english;

/// Qt's own texts: "Open", "Cancel" and their like.
void translate_dialogs(language chosen) {
  static QTranslator* translator = nullptr;
  delete std::exchange(translator, nullptr);
  if (chosen == language::english) return;
  translator = new QTranslator(qApp);
  if (translator->load(QStringLiteral("qtbase_ru"),
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QApplication::installTranslator(translator);
}

}  // namespace

language language_in_force() { return in_force; }

void choose_language(language chosen) {
  in_force = chosen;
  host::choose_language(chosen == language::russian ? "ru" : "en");
  translate_dialogs(chosen);
  // Windows hand it on to what stands in them.
  const QWidgetList windows = QApplication::topLevelWidgets();
  for (QWidget* widget : windows) {
    QEvent changed(QEvent::LanguageChange);
    QApplication::sendEvent(widget, &changed);
  }
}

QString words(const char* english, const char* russian) {
  return QString::fromUtf8(in_force == language::russian ? russian : english);
}

}  // namespace zu::desktop
