#include "host/desktop/window/document.h"

#include <algorithm>

#include "host/core/failure.h"
#include "host/desktop/words.h"

namespace zu::desktop {

document::document(const host::bundle& services)
    : services_(services), project_(std::make_unique<host::project>(services)) {}

document::~document() = default;

bool document::is_changed() const { return is_changed_; }

void document::set_active_scene(int index) {
  int last = static_cast<int>(project_->scenes().size()) - 1;
  index = std::clamp(index, 0, last);
  if (index == active_scene_) return;
  set_active_layer(nullptr);
  active_scene_ = index;
  Q_EMIT scene_activated();
  Q_EMIT layers_changed();
}

void document::set_active_layer(host::layer* layer) {
  if (layer == active_layer_ || (layer != nullptr && index_of(layer) < 0)) return;
  active_layer_ = layer;
  Q_EMIT layer_activated();
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
  Q_EMIT about_to_change();
  // Whoever hears of the new project lets go of the old one before that ends.
  std::unique_ptr<host::project> old = std::exchange(project_, std::move(next));
  path_ = path;
  active_scene_ = 0;
  is_changed_ = false;
  Q_EMIT replaced();
  Q_EMIT layers_changed();
  Q_EMIT picture_changed();
  Q_EMIT history_changed();
}

void document::open_project(const QString& path) {
  replace(std::make_unique<host::project>(services_, path.toStdString()), path);
  const auto& layers = scene().layers;
  if (!layers.empty()) set_active_layer(layers.back().shown);
}

void document::save(const QString& path) {
  project_->save(path.toStdString());
  path_ = path;
  is_changed_ = false;
  Q_EMIT history_changed();
}

void document::clear() { replace(std::make_unique<host::project>(services_), {}); }

QStringList document::add_sources(const QStringList& sources) {
  QStringList failures;
  host::layer* added = nullptr;
  perform(words("Open", "Открытие"), [&] {
    for (const QString& source : sources) {
      try {
        std::vector<host::layer*> made = project_->add(scene(), source.toStdString());
        if (!made.empty()) added = made.back();
      } catch (const host::failure& problem) {
        failures += QString::fromUtf8(problem.what());
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
  perform(words("Remove the layer", "Удаление слоя"), [&] {
    Q_EMIT about_to_change();
    project_->remove(scene(), std::size_t(index));
  });
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
  host::source opened(source.toStdString());  // what will not open is refused before anything changes
  perform(words("Choose the source", "Выбор источника"),
          [&] { project_->relink(scene(), std::size_t(index), source.toStdString()); });
}

void document::set_projection(const QString& text) {
  perform(words("Change the projection", "Смена проекции"),
          [&] { scene().content->set_projection(text.toStdString()); });
}

void document::add_scene(const QString& name) {
  perform(words("Add a scene", "Добавление сцены"), [&] {
    host::project_scene& added = project_->scenes().emplace_back();
    added.name = name.toStdString();
    added.content = std::make_unique<host::scene>(services_);
  });
  Q_EMIT replaced();
  set_active_scene(static_cast<int>(project_->scenes().size()) - 1);
}

void document::remove_scene(int index) {
  auto& scenes = project_->scenes();
  if (scenes.size() < 2 || index < 0 || index >= static_cast<int>(scenes.size())) return;
  set_active_layer(nullptr);
  perform(words("Remove the scene", "Удаление сцены"), [&] {
    Q_EMIT about_to_change();
    scenes.erase(scenes.begin() + index);
    if (active_scene_ >= index && active_scene_ > 0) --active_scene_;
    Q_EMIT replaced();
  });
  Q_EMIT scene_activated();
}

void document::rename_scene(int index, const QString& name) {
  host::project_scene& renamed = project_->scenes().at(std::size_t(index));
  if (renamed.name == name.toStdString()) return;
  perform(words("Rename the scene", "Переименование сцены"),
          [&] { renamed.name = name.toStdString(); });
  Q_EMIT replaced();
}

void document::perform(const QString& name, const std::function<void()>& change) {
  Q_UNUSED(name)
  change();
  changed();
}

void document::input_happened(const QString& name) {
  Q_UNUSED(name)
  changed();
}

bool document::can_undo() const { return false; }
bool document::can_redo() const { return false; }
QString document::undo_name() const { return {}; }
QString document::redo_name() const { return {}; }
void document::undo() {}
void document::redo() {}

void document::changed() {
  is_changed_ = true;
  Q_EMIT layers_changed();
  Q_EMIT picture_changed();
  Q_EMIT history_changed();
}

}  // namespace zu::desktop
