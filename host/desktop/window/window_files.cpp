// Files of the main window: what is opened and saved.

#include <QDir>
#include <QFileInfo>
#include <QMenu>

#include "host/core/failure.h"
#include "host/core/layer_look.h"
#include "host/desktop/dialogs/settings_file.h"
#include "host/desktop/reasons.h"
#include "host/desktop/window/layer_list.h"
#include "host/desktop/window/main_window.h"
#include "host/desktop/window/message_bar.h"
#include "host/desktop/window/start_page.h"
#include "host/desktop/words.h"

namespace zu::desktop {
namespace {

constexpr char recent_name[] = "recent_files";
constexpr int most_recent = 10;

bool is_project(const QString& path) {
  return path.endsWith(QLatin1String(".zgp"), Qt::CaseInsensitive);
}

/// Connection texts and references to containers are no paths, and stay as they are.
QString absolute(const QString& path) {
  return QFileInfo::exists(path) ? QFileInfo(path).absoluteFilePath() : path;
}

bool meet(const Tzu_box_d2& a, const Tzu_box_d2& b) {
  return a.x0 < b.x1 && b.x0 < a.x1 && a.y0 < b.y1 && b.y0 < a.y1;
}

}  // namespace

bool main_window::attempt(const std::function<void()>& work) {
  try {
    work();
  } catch (const host::failure& problem) {
    views_->messages().tell({reason_in_words(problem.what())});
    return false;
  }
  return true;
}

QString main_window::project_name() const {
  return document_.path().isEmpty() ? words("New project", "Новый проект")
                                    : QFileInfo(document_.path()).completeBaseName();
}

bool main_window::may_replace() {
  if (!document_.is_changed()) return true;
  switch (prompts_.unsaved(this, project_name())) {
    case unsaved_answer::save:
      return save();
    case unsaved_answer::discard:
      return true;
    default:
      return false;
  }
}

bool main_window::save() {
  if (document_.path().isEmpty()) return save_as();
  views_->remember_boxes();
  return attempt([this] { document_.save(document_.path()); });
}

bool main_window::save_as() {
  QString proposed = document_.path();
  if (proposed.isEmpty())
    proposed = QDir(last_folder_).filePath(project_name() + QStringLiteral(".zgp"));
  QString path = prompts_.file_to_save(this, proposed);
  if (path.isEmpty()) return false;
  views_->remember_boxes();
  if (!attempt([&] { document_.save(path); })) return false;
  remember_file(path);
  return true;
}

void main_window::open_paths(const QStringList& paths) {
  QStringList sources;
  for (const QString& path : paths) {
    if (is_project(path))
      open_project(absolute(path));
    else
      sources += absolute(path);
  }
  if (!sources.isEmpty()) open_sources(sources);
}

void main_window::open_project(const QString& path) {
  if (!may_replace()) return;
  views_->messages().dismiss();
  if (attempt([&] { document_.open_project(path); })) remember_file(path);
}

void main_window::open_sources(const QStringList& sources, host::open_as wanted) {
  bool was_empty = document_.scene().content->layers().empty();
  QStringList failures = document_.add_sources(sources, wanted);
  views_->messages().tell(failures);
  if (failures.size() < sources.size()) {
    for (const QString& source : sources)
      if (std::none_of(failures.begin(), failures.end(),
                       [&](const QString& line) { return line.startsWith(source); }))
        remember_file(source);
    // What was opened is to be seen: a map that shows none of it goes there.
    host::layer* added = document_.active_layer();
    std::optional<Tzu_box_d2> box = added != nullptr ? added->box() : std::nullopt;
    std::optional<Tzu_box_d2> view = views_->current().box();
    if (was_empty)
      views_->current().zoom_to_all();
    else if (box && view && !meet(*box, *view))
      views_->current().zoom_to(*box);
  }
}

void main_window::choose_files() {
  QStringList paths = prompts_.files_to_open(this, last_folder_);
  if (!paths.isEmpty()) open_paths(paths);
}

void main_window::choose_files_as(host::open_as wanted) {
  QStringList paths = prompts_.files_to_open(this, last_folder_);
  if (!paths.isEmpty()) open_sources(paths, wanted);
}

void main_window::choose_source(int index) {
  const auto& layers = document_.scene().layers;
  if (index < 0 || index >= static_cast<int>(layers.size())) return;
  QString missing = QString::fromStdString(layers[std::size_t(index)].source());
  QString source = prompts_.source_instead(this, missing);
  if (!source.isEmpty()) attempt([&] { document_.relink_layer(index, absolute(source)); });
}

void main_window::load_colors() {
  const QString file = prompts_.colors_to_load(this, last_folder_);
  if (!file.isEmpty()) attempt([&] { document_.load_colors(layers_->current_index(), file); });
}

void main_window::save_colors() {
  const auto& layers = document_.scene().layers;
  const int index = layers_->current_index();
  const host::layer* layer = layers.at(std::size_t(index)).shown;
  if (layer == nullptr) return;
  const bool by_values = zu_stl_mngr_get_mode(layer->style_manager()) == zu_style_value;
  const QString name = QFileInfo(QString::fromStdString(layer->source_name())).completeBaseName() +
                       (by_values ? QStringLiteral("._vl") : QStringLiteral("._rg"));
  const QString file = prompts_.colors_to_save(this, QDir(last_folder_).filePath(name));
  if (!file.isEmpty()) attempt([&] { host::save_colors(file.toStdString(), *layer); });
}

void main_window::remember_file(const QString& path) {
  if (QFileInfo::exists(path)) last_folder_ = QFileInfo(path).absolutePath();
  keep_used(recent_name, path, most_recent);
  show_recent();
}

void main_window::show_recent() {
  QStringList files = kept_list(recent_name);
  views_->start().set_recent(files);
  recent_menu_->clear();
  recent_menu_->setEnabled(!files.isEmpty());
  for (const QString& path : files) {
    QString name = path;
    QAction* action = recent_menu_->addAction(name.replace(QLatin1Char('&'), QStringLiteral("&&")));
    connect(action, &QAction::triggered, this, [this, path] { open_paths({path}); });
  }
  recent_menu_->addSeparator();
  QAction* forget = recent_menu_->addAction(words("&Clear the list", "&Очистить список"));
  connect(forget, &QAction::triggered, this, [this] {
    attempt([] { keep_text(recent_name, {}); });
    show_recent();
  });
}

}  // namespace zu::desktop
