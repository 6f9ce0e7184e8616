#pragma once
// A scene on a page with a legend, and that page in a file.

#include <optional>
#include <string>
#include <vector>

#include "host/core/legend.h"
#include "host/core/picture.h"

namespace zu::host {

struct page_request {
  picture_request picture;
  std::optional<corner> legend;  ///< none: no legend
  bool legend_only = false;      ///< nothing but the legend
};

/// Draws a scene as asked, with its legend. Throws `failure`.
drawn_picture draw(const scene& shown, const page_request& request);

/// The ending of a file's name with its dot, in small letters.
std::string ending_of(const std::string& path);

/// What a picture in a file of that name is drawn on, by the name's ending (.png, .tif, .tiff,
/// .pdf, .svg); nothing if that says no format. `accurate`: with full precision; a document always
/// is.
std::optional<page_kind> page_kind_of(const std::string& path, bool accurate);

/// Throws `failure` if a file of that name is one of the sources.
void check_not_source(const std::string& output, const std::vector<std::string>& sources);

/// Writes the picture whole or not at all, with its georeference where the format can keep one.
/// Throws `failure`.
void save_picture(const drawn_picture& picture, const std::string& output,
                  const std::string& projection);

/// Draws a scene and writes it; gives what the picture lacks, a line each. Throws `failure`, also
/// if the file is one of the scene's sources.
std::vector<std::string> export_picture(const scene& shown, const page_request& request,
                                        const std::string& output);

}  // namespace zu::host
