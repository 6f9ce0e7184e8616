#include "host/desktop/window/document.h"

#include <algorithm>

#include "host/core/failure.h"
#include "host/core/layer_look.h"
#include "host/desktop/reasons.h"
#include "host/desktop/words.h"

namespace zu::desktop {
namespace {

/// Of a step that the bundle's panels made without saying what it was.
QString look_changed() { return words("Change of the look", "Изменение вида"); }

}  // namespace

document::document(const host::bundle& services)
    : services_(services), project_(std::make_unique<host::project>(services)) {
  restart_history();
}

document::~document() = default;

bool document::is_changed() const { return history_->is_changed(); }

void document::restart_history() {
  history_ = std::make_unique<host::history>(*project_);
  history_->before_change = [this](host::layer& layer) {
    if (&layer == active_layer_) set_active_layer(nullptr);
  };
}

void document::set_active_scene(int index) {
  int last = static_cast<int>(project_->scenes().size()) - 1;
  index = std::clamp(index, 0, last);
  if (index == active_scene_) return;
  set_active_layer(nullptr);
  active_scene_ = index;
  Q_EMIT scene_activated();
  Q_EMIT layers_changed();
  activate_last_layer();
}

void document::set_active_layer(host::layer* layer) {
  if (layer == active_layer_ || (layer != nullptr && index_of(layer) < 0)) return;
  active_layer_ = layer;
  if (layer != nullptr) {
    // A scene forgets by itself a layer that leaves.
    zu_scn_2d_set_active_layer(scene().content->get(), layer->entity());
    last_active_[scene().id] = scene().layers[std::size_t(index_of(layer))].id;
  }
  Q_EMIT layer_activated();
}

/// The layer that was active in the scene when it was left, or the uppermost one.
void document::activate_last_layer() {
  const auto& layers = scene().layers;
  auto last = std::find_if(layers.begin(), layers.end(),
                           [&](const auto& each) { return each.id == last_active_[scene().id]; });
  if (last != layers.end())
    set_active_layer(last->shown);
  else if (!layers.empty())
    set_active_layer(layers.back().shown);
}

int document::index_of(const host::layer* layer) {
  const auto& layers = scene().layers;
  auto found = std::find_if(layers.begin(), layers.end(),
                            [&](const auto& each) { return each.shown == layer; });
  if (layer == nullptr || found == layers.end()) return -1;
  return static_cast<int>(found - layers.begin());
}

void document::replace(std::unique_ptr<host::project> next, const QString& path) {
  set_active_layer(nullptr);
  // Whoever hears of the new project lets go of the old one before that ends.
  std::unique_ptr<host::project> old = std::exchange(project_, std::move(next));
  path_ = path;
  active_scene_ = 0;
  last_active_.clear();
  restart_history();
  Q_EMIT replaced();
  Q_EMIT layers_changed();
  Q_EMIT picture_changed();
  Q_EMIT history_changed();
}

void document::open_project(const QString& path) {
  replace(std::make_unique<host::project>(services_, path.toStdString()), path);
  activate_last_layer();
}

void document::save(const QString& path) {
  project_->save(path.toStdString());
  path_ = path;
  history_->mark_saved();
  Q_EMIT history_changed();
}

void document::clear() { replace(std::make_unique<host::project>(services_), {}); }

QStringList document::add_sources(const QStringList& sources, host::open_as wanted) {
  QStringList failures;
  host::layer* added = nullptr;
  perform(words("Open", "Открытие"), [&] {
    for (const QString& source : sources) {
      try {
        std::vector<host::layer*> made = project_->add(scene(), source.toStdString(), wanted);
        if (!made.empty()) added = made.back();
        // What has no fields, or none to colour, stays as it came.
        for (host::layer* each : made)
          if (host::why_not({}, *each).empty()) host::apply_look({}, *each);
      } catch (const host::declined&) {
        continue;
      } catch (const host::failure& problem) {
        failures += reason_in_words(problem.what());
      }
    }
  });
  if (added != nullptr) set_active_layer(added);
  return failures;
}

void document::remove_layer(int index) {
  const auto& layers = scene().layers;
  if (index < 0 || index >= static_cast<int>(layers.size())) return;
  bool was_active = layers[std::size_t(index)].shown == active_layer_;
  if (was_active) set_active_layer(nullptr);
  perform(words("Remove the layer", "Удаление слоя"),
          [&] { project_->remove(scene(), std::size_t(index)); });
  if (was_active && !layers.empty())
    set_active_layer(layers[std::min(std::size_t(index), layers.size() - 1)].shown);
}

void document::move_layer(int from, int to) {
  int count = static_cast<int>(scene().layers.size());
  if (from < 0 || from >= count || from == to) return;
  perform(words("Move the layer", "Перемещение слоя"), [&] {
    project_->move(scene(), std::size_t(from), std::size_t(std::clamp(to, 0, count - 1)));
  });
}

void document::rename_layer(int index, const QString& caption) {
  host::layer* layer = scene().layers.at(std::size_t(index)).shown;
  if (layer == nullptr || caption.trimmed().isEmpty()) return;
  if (caption.toStdString() == layer->caption()) return;
  perform(words("Rename the layer", "Переименование слоя"),
          [&] { layer->set_caption(caption.toStdString()); });
}

void document::set_layer_visible(int index, bool visible) {
  host::layer* layer = scene().layers.at(std::size_t(index)).shown;
  if (layer == nullptr || layer->is_visible() == visible) return;
  perform(visible ? words("Show the layer", "Показ слоя") : words("Hide the layer", "Скрытие слоя"),
          [&] { layer->set_visible(visible); });
}

void document::relink_layer(int index, const QString& source) {
  host::layer* layer = scene().layers.at(std::size_t(index)).shown;
  if (layer == nullptr) return;
  host::source opens(source.toStdString());
  if (layer == active_layer_) set_active_layer(nullptr);
  perform(words("Choose the source", "Выбор источника"),
          [&] { project_->relink(scene(), std::size_t(index), source.toStdString()); });
  set_active_layer(layer);
}

void document::load_colors(int index, const QString& file) {
  host::layer* layer = scene().layers.at(std::size_t(index)).shown;
  if (layer == nullptr) return;
  const bool was_active = layer == active_layer_;
  if (was_active) set_active_layer(nullptr);  // its panels shall read it anew
  try {
    perform(words("Load colours", "Загрузка цветов"),
            [&] { host::load_colors(file.toStdString(), *layer); });
  } catch (...) {
    if (was_active) set_active_layer(layer);
    throw;
  }
  if (was_active) set_active_layer(layer);
}

void document::set_projection(const QString& text) {
  perform(words("Change the projection", "Смена проекции"),
          [&] { scene().content->set_projection(text.toStdString()); });
}

void document::add_scene(const QString& name) {
  perform(words("Add a scene", "Добавление сцены"),
          [&] { project_->add_scene(name.toStdString()); });
  Q_EMIT replaced();
  set_active_scene(static_cast<int>(project_->scenes().size()) - 1);
}

void document::remove_scene(int index) {
  auto& scenes = project_->scenes();
  if (scenes.size() < 2 || index < 0 || index >= static_cast<int>(scenes.size())) return;
  set_active_layer(nullptr);
  if (active_scene_ > index || active_scene_ == static_cast<int>(scenes.size()) - 1)
    --active_scene_;
  perform(words("Remove the scene", "Удаление сцены"), [&] {
    project_->remove_scene(std::size_t(index));
    Q_EMIT replaced();
  });
  activate_last_layer();
}

void document::rename_scene(int index, const QString& name) {
  host::project_scene& renamed = project_->scenes().at(std::size_t(index));
  if (renamed.name == name.toStdString()) return;
  perform(words("Rename the scene", "Переименование сцены"),
          [&] { renamed.name = name.toStdString(); });
  Q_EMIT replaced();
}

void document::perform(const QString& name, const std::function<void()>& change) {
  history_->record(look_changed().toStdString());
  try {
    change();
  } catch (...) {
    history_->record(name.toStdString());
    changed();
    throw;
  }
  history_->record(name.toStdString());
  changed();
}

void document::input_happened(const QString& name) {
  const QString& step = name.isEmpty() ? look_changed() : name;
  int index = index_of(active_layer_);
  std::string key =
      index < 0 ? std::string() : std::to_string(scene().layers[std::size_t(index)].id);
  history_->record(step.toStdString(), key + ' ' + step.toStdString());
  changed();
}

bool document::can_undo() const { return history_->can_undo(); }
bool document::can_redo() const { return history_->can_redo(); }
QString document::undo_name() const { return QString::fromStdString(history_->undo_name()); }
QString document::redo_name() const { return QString::fromStdString(history_->redo_name()); }
void document::undo() { step_through(&host::history::undo); }
void document::redo() { step_through(&host::history::redo); }

void document::step_through(bool (host::history::*step)()) {
  int index = index_of(active_layer_);
  std::uint64_t active = index < 0 ? 0 : scene().layers[std::size_t(index)].id;
  std::uint64_t shown = scene().id;
  if (!((*history_).*step)()) return;
  std::vector<std::uint64_t> after;
  for (const host::project_scene& each : project_->scenes()) after.push_back(each.id);
  auto found = std::find(after.begin(), after.end(), shown);
  active_scene_ = found == after.end() ? std::min(active_scene_, static_cast<int>(after.size()) - 1)
                                       : static_cast<int>(found - after.begin());
  // Names of scenes are on their tabs.
  Q_EMIT replaced();
  for (const host::project_layer& each : scene().layers)
    if (active != 0 && each.id == active) set_active_layer(each.shown);
  changed();
}

void document::changed() {
  Q_EMIT layers_changed();
  Q_EMIT picture_changed();
  Q_EMIT history_changed();
}

}  // namespace zu::desktop
