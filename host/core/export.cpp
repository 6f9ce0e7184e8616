#include "host/core/export.h"

#include <filesystem>
#include <system_error>

#include "host/core/failure.h"
#include "host/core/texts.h"

namespace zu::host {

drawn_picture draw(const scene& shown, const page_request& request) {
  if (request.legend_only) return draw_legend_alone(shown, request.picture);
  drawn_picture picture = draw(shown, request.picture);
  if (request.legend) draw_legend(legend_of(shown), picture.page.get(), *request.legend);
  return picture;
}

std::string ending_of(const std::string& path) {
  std::string ending = std::filesystem::path(path).extension().string();
  for (char& c : ending)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return ending;
}

std::optional<page_kind> page_kind_of(const std::string& path, bool accurate) {
  std::string ending = ending_of(path);
  if (ending == ".pdf") return page_kind::pdf;
  if (ending == ".svg") return page_kind::svg;
  if (ending != ".png" && ending != ".tif" && ending != ".tiff") return {};
  return accurate ? page_kind::print : page_kind::screen;
}

void check_not_source(const std::string& output, const std::vector<std::string>& sources) {
  std::error_code none;
  for (const std::string& source : sources)
    if (std::filesystem::equivalent(output, source, none) && !none)
      throw failure(output, "is one of the sources");
}

void save_picture(const drawn_picture& picture, const std::string& output,
                  const std::string& projection) {
  bool saved = false;
  std::wstring reason = text_of([&](Tzu_string_adp* adapter) {
    saved =
        zu_drwc_save_w(picture.page.get(), wide_name(output).c_str(),
                       picture.box ? &*picture.box : nullptr, wide(projection).c_str(), adapter);
  });
  if (!saved) throw failure(output, narrow(reason));
}

std::vector<std::string> export_picture(const scene& shown, const page_request& request,
                                        const std::string& output) {
  std::vector<std::string> sources;
  for (const auto& each : shown.layers()) sources.push_back(each->source_name());
  check_not_source(output, sources);
  drawn_picture picture = draw(shown, request);
  save_picture(picture, output, shown.projection());
  return picture.shortfalls;
}

}  // namespace zu::host
