// zugrid-desktop: the window.

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <cstdio>
#include <map>
#include <memory>
#include <optional>

#include "host/core/bundle.h"
#include "host/core/failure.h"
#include "host/core/settings.h"
#include "host/desktop/appearance.h"
#include "host/desktop/dialogs/clipboard_bridge.h"
#include "host/desktop/dialogs/message_windows.h"
#include "host/desktop/dialogs/progress_window.h"
#include "host/desktop/dialogs/question_windows.h"
#include "host/desktop/dialogs/settings_dialog.h"
#include "host/desktop/gallery.h"
#include "host/desktop/map/viewer_builders.h"
#include "host/desktop/realiser/modal_runner.h"
#include "host/desktop/window/main_window.h"
#include "host/desktop/words.h"

namespace {

using namespace zu::desktop;
using zu::modal_dialog_runner;

/// What a person asked for on the command line.
struct request {
  QStringList files;
  QString screenshot;
  std::optional<QSize> size;
  std::optional<appearance> look;
  std::optional<language> speech;
  bool gallery = false;
};

[[noreturn]] void refuse(const QString& reason) {
  std::fprintf(stderr, "zugrid-desktop: %s; see zugrid-desktop --help\n", qPrintable(reason));
  std::exit(2);
}

std::optional<QSize> size_of(const QString& text) {
  QStringList sides = text.split(QLatin1Char('x'));
  if (sides.size() != 2) return {};
  QSize size(sides[0].toInt(), sides[1].toInt());
  return size.width() >= 200 && size.height() >= 150 && size.width() <= 10000 &&
                 size.height() <= 10000
             ? std::optional(size)
             : std::nullopt;
}

request read_arguments(const QApplication& application) {
  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral("Shows, styles and edits 2D grids."));
  parser.addHelpOption();
  parser.addVersionOption();
  QCommandLineOption screenshot(QStringLiteral("screenshot"),
                                QStringLiteral("Draw the window into a PNG file and end."),
                                QStringLiteral("OUT.png"));
  QCommandLineOption size(QStringLiteral("size"), QStringLiteral("Size of the window."),
                          QStringLiteral("WxH"));
  QCommandLineOption look(QStringLiteral("appearance"),
                          QStringLiteral("system (the default), light or dark."),
                          QStringLiteral("LOOK"));
  QCommandLineOption speech(QStringLiteral("lang"), QStringLiteral("ru or en."),
                            QStringLiteral("LANG"));
  QCommandLineOption gallery(QStringLiteral("gallery"),
                             QStringLiteral("Show every kind of control in every state."));
  parser.addOptions({screenshot, size, look, speech, gallery});
  parser.addPositionalArgument(QStringLiteral("FILE"),
                               QStringLiteral("Grids, pictures, sections, a project (.zgp)."),
                               QStringLiteral("[FILE…]"));
  parser.process(application);

  request wanted;
  wanted.files = parser.positionalArguments();
  wanted.screenshot = parser.value(screenshot);
  wanted.gallery = parser.isSet(gallery);
  if (parser.isSet(size)) {
    auto given = size_of(parser.value(size));
    if (!given) refuse(QStringLiteral("--size takes WxH in pixels, 200x150 to 10000x10000"));
    wanted.size = given;
  }
  if (parser.isSet(look)) {
    QString name = parser.value(look);
    if (name == QLatin1String("light"))
      wanted.look = appearance::light;
    else if (name == QLatin1String("dark"))
      wanted.look = appearance::dark;
    else if (name == QLatin1String("system"))
      wanted.look = appearance::system;
    else
      refuse(QStringLiteral("--appearance takes system, light or dark"));
  }
  if (parser.isSet(speech)) {
    QString name = parser.value(speech);
    if (name != QLatin1String("ru") && name != QLatin1String("en"))
      refuse(QStringLiteral("--lang takes ru or en"));
    wanted.speech = name == QLatin1String("ru") ? language::russian : language::english;
  }
  return wanted;
}

/// A picture of the window needs no screen.
void do_without_screen(int argc, char** argv) {
  if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || qEnvironmentVariableIsSet("DISPLAY") ||
      qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
    return;
  for (int i = 1; i < argc; ++i)
    if (QByteArray(argv[i]).startsWith("--screenshot")) qputenv("QT_QPA_PLATFORM", "offscreen");
}

constexpr QSize size_of_screenshot(1280, 800);
constexpr int drawing_patience = 60000;  // milliseconds

int take_picture(main_window& window, const QString& path) {
  if (!window.wait_until_drawn(drawing_patience)) {
    std::fprintf(stderr, "zugrid-desktop: the picture took too long\n");
    return 1;
  }
  if (window.grab().save(path)) return 0;
  std::fprintf(stderr, "zugrid-desktop: %s: cannot be written\n", qPrintable(path));
  return 1;
}

/// The windows in which the bundles' dialogs run, by their ids.
class dialog_windows {
 public:
  modal_dialog_runner of(const std::wstring& id) {
    auto& runner = runners_[id];
    if (!runner) runner = std::make_unique<modal_runner>(QString::fromStdWString(id));
    return runner->runner();
  }

 private:
  std::map<std::wstring, std::unique_ptr<modal_runner>> runners_;
};

/// What the platform and the bundles say and ask, and the clipboard that they share with a person.
struct conversation {
  clipboard_bridge clipboard;
  message_windows messages;
  question_windows questions;
  progress_window progress;
  dialog_windows dialogs;
};

int run(const request& wanted) {
  std::optional<conversation> person;  // nobody is there to answer while a picture is made
  if (wanted.screenshot.isEmpty() || wanted.gallery) person.emplace();
  zu::host::bundle services({"zuk_common.so"});
  serve_viewers(&services);
  if (person)
    services.set_dialog_runners([&](const std::wstring& id) { return person->dialogs.of(id); });
  if (wanted.gallery) {
    show_gallery(services, wanted.screenshot);
    return 0;
  }
  main_window window(services);
  if (wanted.size || !wanted.screenshot.isEmpty())
    window.resize(wanted.size.value_or(size_of_screenshot));
  window.show();
  window.open_paths(wanted.files);
  if (!wanted.screenshot.isEmpty()) return take_picture(window, wanted.screenshot);
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  do_without_screen(argc, argv);
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Zugrid"));
  QApplication::setApplicationVersion(QStringLiteral(ZU_VERSION));
  QApplication::setWindowIcon(QIcon(QStringLiteral(":/zugrid.svg")));
  request wanted = read_arguments(application);
  apply_chosen(wanted.speech, wanted.look);
  try {
    return run(wanted);
  } catch (const zu::host::failure& problem) {
    std::fprintf(stderr, "zugrid-desktop: %s\n", problem.what());
    return 1;
  }
}
