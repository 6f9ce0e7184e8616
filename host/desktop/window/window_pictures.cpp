// Pictures of the main window: exported, copied, and as a command.

#include <QApplication>
#include <QClipboard>
#include <QFileInfo>

#include "host/core/command_line.h"
#include "host/desktop/window/main_window.h"
#include "host/desktop/window/message_bar.h"
#include "host/desktop/window/status_line.h"
#include "host/desktop/words.h"

namespace zu::desktop {
namespace {

constexpr int message_time = 4000;  // milliseconds

QStringList lines_of(const std::vector<std::string>& texts) {
  QStringList lines;
  for (const std::string& text : texts) lines += QString::fromStdString(text);
  return lines;
}

}  // namespace

void main_window::say_in_passing(const QString& text) { status_->showMessage(text, message_time); }

host::page_request main_window::seen_page() {
  map_view& map = views_->current();
  double ratio = map.devicePixelRatioF();
  host::page_request seen;
  seen.picture.nx = static_cast<std::uint64_t>(std::lround(map.width() * ratio));
  seen.picture.ny = static_cast<std::uint64_t>(std::lround(map.height() * ratio));
  seen.picture.extent = map.box();
  seen.picture.dots_per_inch = map.logicalDpiX() * ratio;
  seen.picture.background = Tzu_color{255, 255, 255, 0};
  return seen;
}

void main_window::export_picture() {
  std::optional<export_request> wanted = prompts_.picture(this, seen_page(), project_name());
  if (!wanted) return;
  attempt([&] {
    std::string path = wanted->path.toStdString();
    const host::scene& shown = *document_.scene().content;
    std::vector<std::string> sources;
    for (const auto& layer : shown.layers()) sources.push_back(layer->source_name());
    host::check_not_source(path, sources);
    host::drawn_picture drawn = host::draw(shown, wanted->page);
    host::save_picture(drawn, path, shown.projection());
    views_->messages().tell(lines_of(drawn.shortfalls));
    say_in_passing(
        words("%1 is written.", "Файл %1 записан.").arg(QFileInfo(wanted->path).fileName()));
  });
}

void main_window::copy_picture() {
  QImage picture = views_->current().picture();
  if (picture.isNull()) return;
  QApplication::clipboard()->setImage(picture);
  say_in_passing(words("The picture is on the clipboard.", "Картинка в буфере обмена."));
}

void main_window::copy_command() {
  QString saved_as = document_.is_changed() ? QString() : document_.path();
  attempt([&] {
    host::command_line made = host::command_of(document_.content(), document_.scene(), seen_page(),
                                               saved_as.toStdString());
    QApplication::clipboard()->setText(QString::fromStdString(made.text()));
    views_->messages().tell(lines_of(made.lacks));
    say_in_passing(words("The command is on the clipboard.", "Команда в буфере обмена."));
  });
}

}  // namespace zu::desktop
