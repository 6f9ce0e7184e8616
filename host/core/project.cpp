#include "host/core/project.h"

#include <algorithm>
#include <cmath>

#include "host/core/failure.h"
#include "host/core/source_paths.h"
#include "host/core/texts.h"

namespace zu::host {
namespace {

constexpr wchar_t root_name[] = L"zugrid_project";
constexpr std::size_t most_layers = 10000;

std::string attribute(Tzu_xnode* node, const wchar_t* key) {
  return narrow(text_of([&](Tzu_string_adp* a) { zu_xnode_get_attr_wstr(node, key, a); }));
}

/// Sets what differs from what stands there; an absent attribute counts as `absent`.
void update(Tzu_xnode* node, const wchar_t* key, const std::string& value,
            const std::string& absent = {}) {
  std::wstring now = wide(absent);
  std::wstring found = text_of([&](Tzu_string_adp* a) {
    zu_string_adp_feed(a, now.c_str());
    zu_xnode_get_attr_wstr(node, key, a);
  });
  if (found != wide(value)) zu_xnode_set_attr_wstr(node, key, wide(value).c_str());
}

/// The box under a scene's node; nothing if there is none that can be shown.
std::optional<Tzu_box_d2> read_view(Tzu_xnode* scene) {
  node_ptr node(zu_xnode_get_node_w(scene, L"view"));
  if (!node) return {};
  auto side = [&](const wchar_t* key) { return zu_xnode_get_attr_dbl_w(node.get(), key, NAN); };
  Tzu_box_d2 box{side(L"x0"), side(L"y0"), side(L"x1"), side(L"y1")};
  bool has_area = box.x1 > box.x0 && box.y1 > box.y0;
  bool is_finite = std::isfinite(box.x1 - box.x0) && std::isfinite(box.y1 - box.y0);
  return has_area && is_finite ? std::optional(box) : std::nullopt;
}

void write_view(Tzu_xnode* scene, const Tzu_box_d2& box) {
  node_ptr node(zu_xnode_set_node_w(scene, L"view"));
  zu_xnode_set_attr_dbl_w(node.get(), L"x0", box.x0);
  zu_xnode_set_attr_dbl_w(node.get(), L"y0", box.y0);
  zu_xnode_set_attr_dbl_w(node.get(), L"x1", box.x1);
  zu_xnode_set_attr_dbl_w(node.get(), L"y1", box.y1);
}

node_ptr copy_of(const Tzu_xnode* node, const wchar_t* name) {
  node_ptr copy(zu_xnode_create_root_w(name));
  zu_xnode_assign(copy.get(), node);
  return copy;
}

/// Walks children of one name while they are rewritten: there is always a next one.
class rewritten_children {
 public:
  rewritten_children(Tzu_xnode* parent, const wchar_t* name)
      : parent_(parent), name_(name), next_(zu_xnode_get_node_w(parent, name)) {}
  node_ptr take() {
    if (!next_) return node_ptr(zu_xnode_add_node_w(parent_, name_));
    node_ptr taken = std::move(next_);
    next_.reset(zu_xnode_next_node_w(taken.get()));
    return taken;
  }
  void remove_rest() {
    while (next_) {
      node_ptr after(zu_xnode_next_node_w(next_.get()));
      zu_xnode_remove(next_.release());
      next_ = std::move(after);
    }
  }

 private:
  Tzu_xnode* parent_;
  const wchar_t* name_;
  node_ptr next_;
};

void write_layer(Tzu_xnode* node, const project_layer& written, const std::string& folder) {
  if (written.origin)
    zu_xnode_assign(node, written.origin->node.get());
  else
    zu_xnode_clear(node);
  if (written.shown == nullptr) return;
  const layer& shown = *written.shown;
  update(node, L"type", shown.type());
  update(node, L"subtype", shown.subtype());
  std::string text = attribute(node, L"source");
  // A text that still leads there stays, whichever way it says so.
  if (text.empty() || read_source(text, folder) != shown.source_name())
    update(node, L"source", written_source(shown.source_name(), folder));
  if (!written.origin || shown.caption() != written.origin->caption)
    update(node, L"caption", shown.caption());
  update(node, L"visible", shown.is_visible() ? "1" : "0", "1");
  if (!written.origin || shown.state() != written.origin->state) shown.save(node);
}

}  // namespace

std::string project_layer::type() const {
  return shown != nullptr ? shown->type() : attribute(origin->node.get(), L"type");
}
std::string project_layer::caption() const {
  return shown != nullptr ? shown->caption() : attribute(origin->node.get(), L"caption");
}
std::string project_layer::source() const {
  return shown != nullptr ? shown->source_name() : attribute(origin->node.get(), L"source");
}

project::project(const bundle& services)
    : services_(services), tree_(zu_xnode_create_root_w(root_name)) {
  add_scene({});
  legends_.emplace(*this);
}

project::project(const bundle& services, const std::string& path)
    : services_(services), folder_(folder_of(path)) {
  std::string reason = narrow(text_of([&](Tzu_string_adp* adapter) {
    tree_.reset(zu_xnode_load_file_w(wide_name(path).c_str(), adapter));
  }));
  if (!tree_) throw failure(path, reason);
  if (text_of([&](Tzu_string_adp* a) { zu_xnode_get_name_w(tree_.get(), a); }) != root_name)
    throw failure(path, "is no project of zugrid");
  std::int64_t written = zu_xnode_get_attr_int_w(tree_.get(), L"version", 0);
  if (written < 1) throw failure(path, "does not say which version of the format it has");
  if (written > version)
    throw failure(path, "was written by a newer zugrid (version " + std::to_string(written) +
                            " of the format, this one reads up to " + std::to_string(version) +
                            ")");
  try {
    for (node_ptr node(zu_xnode_get_node_w(tree_.get(), L"scene")); node;
         node.reset(zu_xnode_next_node_w(node.get())))
      read_scene(node.get());
  } catch (const failure& problem) {
    throw failure(path, problem.what());
  }
  if (scenes_.empty()) throw failure(path, "has no scene");
  legends_.emplace(*this);
}

void project::read_scene(Tzu_xnode* node) {
  if (scenes_.size() >= most_layers) throw failure("has too many scenes");
  project_scene& read = add_scene(attribute(node, L"name"));
  read.kept.reset(copy_of(node, L"scene").release(), node_closed());
  read.content->set_projection(attribute(node, L"projection"));
  read.view = read_view(node);
  Tzu_optional_color selected{};
  if (zu_xml_data_load_color(nullptr, node, L"selected_color", &selected.color)) {
    selected.is_set = 1;
    zu_scn_2d_set_selected_style_clr(read.content->get(), selected);
  }
  for (node_ptr each(zu_xnode_get_node_w(node, L"layer")); each;
       each.reset(zu_xnode_next_node_w(each.get())))
    read_layer(each.get(), read);
}

void project::read_layer(Tzu_xnode* node, project_scene& scene) {
  if (scene.layers.size() >= most_layers) throw failure("has too many layers");
  auto origin = std::make_shared<layer_origin>();
  origin->node = copy_of(node, L"layer");
  layer* made = nullptr;
  std::string type = attribute(node, L"type");
  if (layer::has_type(services_, type)) {
    made = &scene.content->add_layer(type, read_source(attribute(node, L"source"), folder_));
    made->set_subtype(attribute(node, L"subtype"));
    if (std::string caption = attribute(node, L"caption"); !caption.empty())
      made->set_caption(caption);
    made->set_visible(zu_xnode_get_attr_bool_w(node, L"visible", true));
    made->load(node);
    made->update();
    origin->state = made->state();
    origin->caption = made->caption();
  }
  scene.layers.push_back({made, std::move(origin), next_id()});
}

project_scene& project::add_scene(const std::string& name) {
  project_scene& added = scenes_.emplace_back();
  added.name = name;
  added.content = std::make_unique<scene>(services_);
  added.id = next_id();
  return added;
}

void project::remove_scene(std::size_t index) {
  if (scenes_.size() < 2) throw failure("a project has at least one scene");
  scenes_.erase(scenes_.begin() + static_cast<std::ptrdiff_t>(index));
}

project_scene& project::find_scene(const std::string& name) {
  for (project_scene& each : scenes_)
    if (each.name == name) return each;
  throw failure("the project has no scene \"" + name + "\"");
}

std::vector<layer*> project::add(project_scene& scene, const std::string& source, open_as wanted) {
  std::size_t before = scene.content->layers().size();
  scene.content->add(source, wanted);
  std::vector<layer*> added;
  for (std::size_t i = before; i < scene.content->layers().size(); ++i) {
    added.push_back(scene.content->layers()[i].get());
    scene.layers.push_back({added.back(), nullptr, next_id()});
  }
  return added;
}

void project::remove(project_scene& scene, std::size_t index) {
  layer* shown = scene.layers.at(index).shown;
  scene.layers.erase(scene.layers.begin() + static_cast<std::ptrdiff_t>(index));
  if (shown != nullptr) scene.content->remove(*shown);
}

void project::move(project_scene& scene, std::size_t from, std::size_t to) {
  auto first = scene.layers.begin();
  auto at = [&](std::size_t index) { return first + static_cast<std::ptrdiff_t>(index); };
  if (from < to)
    std::rotate(at(from), at(from + 1), at(to + 1));
  else
    std::rotate(at(to), at(from), at(from + 1));
  arrange(scene);
}

void project::arrange(project_scene& scene) {
  std::vector<layer*> order;
  for (const project_layer& each : scene.layers)
    if (each.shown != nullptr) order.push_back(each.shown);
  scene.content->arrange(order);
}

void project::relink(project_scene& scene, std::size_t index, const std::string& source) {
  layer* shown = scene.layers.at(index).shown;
  if (shown == nullptr) return;
  std::string state = shown->state();
  bool named_by_file = shown->caption() == file_name_of(shown->source_name());
  shown->set_source(source);
  if (named_by_file) shown->set_caption(file_name_of(source));
  shown->load_state(state);
  shown->update();
}

void project::write_scene(Tzu_xnode* node, const project_scene& scene,
                          const std::string& folder) const {
  if (scene.kept)
    zu_xnode_assign(node, scene.kept.get());
  else
    zu_xnode_clear(node);
  update(node, L"name", scene.name);
  update(node, L"projection", scene.content->projection());
  Tzu_optional_color selected = zu_scn_2d_get_selected_style_clr(scene.content->get());
  Tzu_color kept{};
  bool stands = zu_xml_data_load_color(nullptr, node, L"selected_color", &kept);
  if (selected.is_set != 0)
    zu_xml_data_save_color(nullptr, node, L"selected_color", selected.color);
  else if (stands)
    zu_xnode_remove(zu_xnode_get_node_w(node, L"selected_color"));
  if (scene.view) write_view(node, *scene.view);
  rewritten_children children(node, L"layer");
  for (const project_layer& each : scene.layers) write_layer(children.take().get(), each, folder);
  children.remove_rest();
}

void project::save(const std::string& path) {
  std::string folder = folder_of(path);
  update(tree_.get(), L"version", std::to_string(version));
  rewritten_children children(tree_.get(), L"scene");
  for (const project_scene& each : scenes_) write_scene(children.take().get(), each, folder);
  children.remove_rest();
  bool saved = false;
  std::wstring reason = text_of([&](Tzu_string_adp* adapter) {
    saved = zu_xnode_save_file_w(tree_.get(), wide_name(path).c_str(), adapter);
  });
  if (!saved) throw failure(path, narrow(reason));
}

}  // namespace zu::host
