#pragma once
// The coordinate systems that are known by name, and the search among them.

#include <optional>
#include <string>
#include <vector>

#include "zu/platform/zuk_prg.h"

namespace zu::host {

struct projection_entry {
  std::string text;                  ///< as a scene takes it, "EPSG:32637"
  std::string name;                  ///< "WGS 84 / UTM zone 37N"
  std::string area;                  ///< where it is used, in words
  std::optional<Tzu_box_d2> bounds;  ///< of that area in degrees, x0 over x1 across 180
  bool is_geographic = false, is_deprecated = false;
};

/// All systems with two axes of the database that comes with PROJ.
class projections {
 public:
  /// Reads the database, which takes a tenth of a second or so. Throws `failure`.
  projections();

  /// The entry of a text such as "EPSG:32637"; null if there is none.
  const projection_entry* find(const std::string& text) const;
  /// What answers to every word of a text, in any order: words that begin so in its code, name or
  /// area. The likeliest first: an exact code, what says it in its name, what is in use, the
  /// world's own. Russian words for what has a Latin name are understood ("пулково 42 зона 6").
  std::vector<const projection_entry*> search(const std::string& text,
                                              std::size_t most = 200) const;

 private:
  struct words {
    std::vector<std::string> code, name, area;
  };
  struct rank;
  std::optional<rank> rank_of(std::size_t index, const std::vector<std::string>& asked) const;

  std::vector<projection_entry> all_;
  std::vector<words> words_;
};

/// A name for people: that of the registry, or the text itself.
std::string projection_name(const std::string& text);
/// Why a text is no coordinate system; empty if it is one.
std::string why_no_projection(const std::string& text);

}  // namespace zu::host
