#include "platform/zuk_drwc/line_labels.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <optional>

namespace zu::platform {
namespace {

// In heights of the text: the gap before and after it, and how far the line may leave the straight.
constexpr double gap = 0.5, straight = 0.25, bent = 0.7;
constexpr double least_line = 3;     // widths of the text
constexpr double least_chord = 0.9;  // of the line under it
constexpr int tries = 24;            // to each side of the middle

/// A polyline measured along itself.
class measured_line {
 public:
  explicit measured_line(const std::vector<Tzu_vtx_d2>& line) : line_(line) {
    lengths_.push_back(0);
    for (std::size_t i = 1; i < line.size(); ++i)
      lengths_.push_back(lengths_.back() +
                         std::hypot(line[i].x - line[i - 1].x, line[i].y - line[i - 1].y));
  }

  double length() const { return lengths_.back(); }
  /// The first vertex beyond a length.
  std::size_t after(double length) const {
    auto at = std::upper_bound(lengths_.begin() + 1, lengths_.end() - 1, length);
    return static_cast<std::size_t>(at - lengths_.begin());
  }
  Tzu_vtx_d2 at(double length) const {
    std::size_t i = after(length);
    double step = lengths_[i] - lengths_[i - 1];
    double share = step > 0 ? std::clamp((length - lengths_[i - 1]) / step, 0.0, 1.0) : 0.0;
    return {line_[i - 1].x + share * (line_[i].x - line_[i - 1].x),
            line_[i - 1].y + share * (line_[i].y - line_[i - 1].y)};
  }
  /// The points from one length to another, both ends included.
  std::vector<Tzu_vtx_d2> between(double from, double to) const {
    std::vector<Tzu_vtx_d2> part{at(from)};
    for (std::size_t i = after(from); i < line_.size() && lengths_[i] < to; ++i)
      part.push_back(line_[i]);
    part.push_back(at(to));
    return part;
  }

 private:
  const std::vector<Tzu_vtx_d2>& line_;
  std::vector<double> lengths_;  // from the beginning to each vertex
};

bool holds(const Tzu_box_d2& box, const Tzu_box_d2& inner) {
  return inner.x0 >= box.x0 && inner.x1 <= box.x1 && inner.y0 >= box.y0 && inner.y1 <= box.y1;
}

bool meet(const Tzu_box_d2& a, const Tzu_box_d2& b) {
  return a.x0 < b.x1 && b.x0 < a.x1 && a.y0 < b.y1 && b.y0 < a.y1;
}

struct place {
  line_label label;
  Tzu_box_d2 box;
  double bend;  // greatest distance of the line from the straight between the text's ends
};

/// Angle of the straight from a to b, turned round if a text along it would stand on its head.
double upright(const Tzu_vtx_d2& a, const Tzu_vtx_d2& b) {
  constexpr double half = std::numbers::pi / 2;
  double angle = std::atan2(b.y - a.y, b.x - a.x);
  if (angle >= half - 1e-9) return angle - 2 * half;
  return angle < -half - 1e-9 ? angle + 2 * half : angle;
}

std::optional<place> place_at(const measured_line& line, double middle,
                              const label_request& request) {
  double half = request.width / 2 + gap * request.height;
  double from = middle - half, to = middle + half;
  if (from < 0 || to > line.length()) return {};
  std::vector<Tzu_vtx_d2> under = line.between(from, to);
  const Tzu_vtx_d2 &a = under.front(), &b = under.back();
  double chord = std::hypot(b.x - a.x, b.y - a.y);
  if (chord < least_chord * (to - from)) return {};
  double bend = 0;
  for (const Tzu_vtx_d2& v : under)
    bend = std::max(bend, std::abs((b.x - a.x) * (v.y - a.y) - (b.y - a.y) * (v.x - a.x)) / chord);
  Tzu_vtx_d2 center{(a.x + b.x) / 2, (a.y + b.y) / 2};
  double angle = upright(a, b), c = std::abs(std::cos(angle)), s = std::abs(std::sin(angle));
  double x = c * request.width / 2 + s * request.height / 2;
  double y = s * request.width / 2 + c * request.height / 2;
  return place{
      {center, angle, from, to}, {center.x - x, center.y - y, center.x + x, center.y + y}, bend};
}

/// The best place within `reach` of a middle.
std::optional<place> best_near(const measured_line& line, double middle, double reach,
                               const label_request& request, const std::vector<Tzu_box_d2>& taken) {
  double step = std::max(request.height, reach / tries);
  std::optional<place> best;
  for (int i = 0; i <= 2 * tries; ++i) {
    int away = (i + 1) / 2;
    double offset = away * step * (i % 2 == 0 ? 1 : -1);
    if (std::abs(offset) > reach) break;
    std::optional<place> found = place_at(line, middle + offset, request);
    if (!found || found->bend > bent * request.height || (best && found->bend >= best->bend))
      continue;
    if (!holds(request.page, found->box)) continue;
    if (std::any_of(taken.begin(), taken.end(),
                    [&](const Tzu_box_d2& box) { return meet(box, found->box); }))
      continue;
    best = found;
    if (best->bend <= straight * request.height) break;
  }
  return best;
}

}  // namespace

std::vector<line_label> place_labels(const std::vector<Tzu_vtx_d2>& line,
                                     const label_request& request, std::vector<Tzu_box_d2>& taken) {
  std::vector<line_label> labels;
  if (line.size() < 2) return labels;
  measured_line measured(line);
  double length = measured.length();
  if (!(length >= least_line * request.width)) return labels;
  auto parts = static_cast<std::int64_t>(std::max(1.0, std::floor(length / request.spacing)));
  double part = length / static_cast<double>(parts);
  for (std::int64_t i = 0; i < parts; ++i) {
    double middle = (static_cast<double>(i) + 0.5) * part;
    // Whole texts stay in their part, so that neighbours leave each other's gaps alone.
    double reach = std::max(0.0, part / 2 - request.width / 2 - gap * request.height);
    std::optional<place> found = best_near(measured, middle, reach, request, taken);
    if (!found) continue;
    labels.push_back(found->label);
    taken.push_back(found->box);
  }
  return labels;
}

std::vector<line_piece> without_labels(const line_piece& piece,
                                       const std::vector<line_label>& labels) {
  if (labels.empty()) return {piece};
  measured_line line(piece.vertices);
  std::vector<line_piece> left;
  double from = 0;
  for (const line_label& label : labels) {
    if (label.from > from)
      left.push_back({line.between(from, label.from), piece.start + from, false});
    from = label.to;
  }
  if (from < line.length())
    left.push_back({line.between(from, line.length()), piece.start + from, false});
  if (!piece.closed || left.size() < 2) return left;
  // A ring goes on over its first vertex.
  std::vector<Tzu_vtx_d2>& first = left.front().vertices;
  left.back().vertices.insert(left.back().vertices.end(), first.begin() + 1, first.end());
  left.erase(left.begin());
  return left;
}

}  // namespace zu::platform
