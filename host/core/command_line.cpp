#include "host/core/command_line.h"

#include <algorithm>

#include "host/core/failure.h"
#include "host/core/look_of.h"
#include "host/core/numbers.h"
#include "host/core/texts.h"
#include "zu/platform/zuk_proj4_d2.h"

namespace zu::host {
namespace {

constexpr char output_name[] = "picture.png";

using words = std::vector<std::string>;

/// Four bytes a pixel; what is wholly transparent has no colour.
std::vector<std::uint8_t> pixels_of(const drawn_picture& picture, const picture_request& request) {
  std::vector<std::uint8_t> bytes(request.nx * request.ny * 4);
  zu_drwc_get_pixels(picture.page.get(), bytes.data());
  for (std::size_t i = 0; i < bytes.size(); i += 4)
    if (bytes[i + 3] == 0) std::fill_n(bytes.begin() + static_cast<std::ptrdiff_t>(i), 3, 0);
  return bytes;
}

/// What the command draws, held against what is seen.
class rehearsal {
 public:
  rehearsal(const project& content, const scene& shown, const page_request& request, words sources,
            std::string projection)
      : content_(content),
        request_(request),
        sources_(std::move(sources)),
        projection_(std::move(projection)),
        seen_(pixels_of(draw(shown, request_.picture), request_.picture)) {}

  bool is_same(const layer_look& look) const {
    try {
      scene played(content_.services());
      for (const std::string& each : sources_) played.add(each);
      if (!projection_.empty()) played.set_projection(projection_);
      dress(played, look);
      return pixels_of(draw(played, request_.picture), request_.picture) == seen_;
    } catch (const failure&) {  // a line that fails makes another picture
      return false;
    }
  }

 private:
  const project& content_;
  page_request request_;
  words sources_;
  std::string projection_;
  std::vector<std::uint8_t> seen_;
};

/// The projection as an option: none if the first source has it of itself.
std::string projection_option(const scene& shown, const layer& first) {
  std::string own = shown.projection();
  if (own == first.projection()) return {};
  std::string code =
      narrow(text_of([&](Tzu_string_adp* a) { zu_pj_get_authority_w(wide(own).c_str(), a); }));
  return code.empty() ? own : code;
}

void add_page(const page_request& request, words& line) {
  const picture_request& page = request.picture;
  line.insert(line.end(), {"-o", output_name, "--size",
                           std::to_string(page.nx) + "x" + std::to_string(page.ny)});
  if (page.extent) {
    const Tzu_box_d2& box = *page.extent;
    std::string text;
    for (double each : {box.x0, box.y0, box.x1, box.y1})
      text += (text.empty() ? "" : ",") + text_of_number(each);
    line.push_back("--extent=" + text);
  }
  if (page.dots_per_inch != 96)
    line.insert(line.end(), {"--dpi", text_of_number(page.dots_per_inch)});
  if (page.background) line.insert(line.end(), {"--background", text_of_color(*page.background)});
  static constexpr const char* corners[] = {"top-left", "top-right", "bottom-left", "bottom-right"};
  if (request.legend)
    line.insert(line.end(), {"--legend", corners[static_cast<int>(*request.legend)]});
}

/// Looks to try, the plainest first: what a source shows of itself, and that of each layer.
std::vector<layer_look> candidates(const scene& shown) {
  constexpr std::size_t most = 8;
  std::vector<layer_look> all(1);
  for (const auto& each : shown.layers())
    if (each->is_visible() && !each->is_missing() && all.size() < most)
      if (std::optional<layer_look> look = look_of(*each)) all.push_back(std::move(*look));
  return all;
}

words saved_render(const std::string& path, const project_scene& shown,
                   const page_request& request) {
  words line = {"zugrid", "project", "render", path};
  if (!shown.name.empty()) line.insert(line.end(), {"--scene", shown.name});
  add_page(request, line);
  return line;
}

}  // namespace

std::string shell_line(const std::vector<std::string>& all) {
  std::string line;
  for (const std::string& word : all) {
    if (!line.empty()) line += ' ';
    bool plain = !word.empty() && std::all_of(word.begin(), word.end(), [](char c) {
      return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
             std::string_view("-_./,:=+@%").find(c) != std::string_view::npos;
    });
    if (plain) {
      line += word;
      continue;
    }
    line += '\'';
    for (char c : word) line += c == '\'' ? std::string("'\\''") : std::string(1, c);
    line += '\'';
  }
  return line;
}

std::string command_line::text() const {
  std::string all;
  for (const std::string& each : lacks) all += "# " + each + "\n";
  return all + line;
}

command_line command_of(const project& content, const project_scene& shown,
                        const page_request& request, const std::string& project_path) {
  const scene& seen = *shown.content;
  const layer* first = nullptr;
  words sources;
  for (const auto& each : seen.layers()) {
    if (!each->is_visible() || each->is_missing()) continue;
    if (first == nullptr) first = each.get();
    sources.push_back(each->source_name());
  }
  if (first == nullptr) return {{}, {"the scene shows no layer"}};

  words line = {"zugrid", "render"};
  line.insert(line.end(), sources.begin(), sources.end());
  add_page(request, line);
  std::string projection = projection_option(seen, *first);
  if (!projection.empty()) line.insert(line.end(), {"--crs", projection});
  rehearsal rehearsed(content, seen, request, sources, projection);
  for (const layer_look& look : candidates(seen)) {
    std::optional<words> options = options_of(look);
    if (!options || !rehearsed.is_same(look)) continue;
    line.insert(line.end(), options->begin(), options->end());
    return {shell_line(line), {}};
  }
  if (!project_path.empty()) return {shell_line(saved_render(project_path, shown, request)), {}};
  return {shell_line(line),
          {"options cannot say how these layers look; save the project for a line that can"}};
}

}  // namespace zu::host
