#include "platform/zuk_style_libs/odb_file.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <stdexcept>

namespace zu::platform {
namespace {

constexpr std::size_t most_objects = 1000000;

struct refused : std::runtime_error {
  using std::runtime_error::runtime_error;
};

bool is_blank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }
bool is_end_of_line(char c) { return c == '\r' || c == '\n'; }

std::string_view trimmed(std::string_view text) {
  while (!text.empty() && is_blank(text.front())) text.remove_prefix(1);
  while (!text.empty() && is_blank(text.back())) text.remove_suffix(1);
  return text;
}

std::optional<double> number_in(std::string_view text) {
  const char* end = text.data() + text.size();
  if (text.substr(0, 2) == "0x" || text.substr(0, 2) == "0X") {
    std::uint64_t bits = 0;
    auto read = std::from_chars(text.data() + 2, end, bits, 16);
    if (read.ec != std::errc() || read.ptr != end) return {};
    return static_cast<double>(bits);
  }
  if (text.substr(0, 1) == "+") text.remove_prefix(1);
  double number = 0.0;
  auto read = std::from_chars(text.data(), end, number);
  if (read.ec != std::errc() || read.ptr != end || !std::isfinite(number)) return {};
  return number;
}

/// Walks over the text once.
class reader {
 public:
  explicit reader(std::string_view text) : rest_(text) {}

  /// Past blanks; whether anything is left.
  bool skip_blanks() {
    while (!rest_.empty() && is_blank(rest_.front())) rest_.remove_prefix(1);
    return !rest_.empty();
  }
  bool at(char c) const { return !rest_.empty() && rest_.front() == c; }
  void skip(std::size_t count) { rest_.remove_prefix(count); }
  std::string_view line() {
    std::size_t end = rest_.find_first_of("\r\n");
    std::string_view found = rest_.substr(0, end);
    rest_.remove_prefix(found.size());
    return found;
  }
  std::string_view rest_of_line() const { return rest_.substr(0, rest_.find_first_of("\r\n")); }

  /// A text whose opening quote is next.
  std::string quoted() {
    std::string text;
    for (skip(1);; skip(1)) {
      if (rest_.empty()) throw refused("ends inside a text");
      char c = rest_.front();
      if (is_end_of_line(c)) continue;
      if (c == '\\' && rest_.size() > 1) {
        escaped(text);
      } else if (c != '"') {
        text += c;
      } else if (rest_.size() > 1 && rest_[1] == '"') {
        text += c;
        skip(1);
      } else {
        skip(1);
        return text;
      }
    }
  }

 private:
  /// Stops at the last character of the escape.
  void escaped(std::string& text) {
    static constexpr std::string_view letters = "nrtabfv", meant = "\n\r\t\a\b\f\v";
    skip(1);
    char c = rest_.front();
    std::size_t letter = letters.find(c);
    std::size_t digits =
        std::min(rest_.find_first_not_of("01234567"), std::min<std::size_t>(rest_.size(), 3));
    if (letter != std::string_view::npos) {
      text += meant[letter];
    } else if (digits > 0) {
      int code = 0;
      std::from_chars(rest_.data(), rest_.data() + digits, code, 8);
      text += static_cast<char>(code);
      skip(digits - 1);
    } else {
      text += c;
    }
  }

  std::string_view rest_;
};

/// Name and value of a field into the object; gives the value. A line without a name goes on with
/// `last`, which may be null.
std::string* read_field(reader& from, odb_object& object, std::string* last) {
  std::string_view line = from.rest_of_line();
  std::size_t colon = line.find(':');
  if (from.at('"') || colon == std::string_view::npos) {
    std::string more = from.at('"') ? from.quoted() : std::string(trimmed(from.line()));
    if (last != nullptr) *last += more;
    return last;
  }
  std::vector<std::string>& values = object.fields[std::string(trimmed(line.substr(0, colon)))];
  from.skip(colon + 1);
  std::string_view value = trimmed(from.rest_of_line());
  if (value.substr(0, 1) == "\"") {
    from.skip_blanks();
    values.push_back(from.quoted());
  } else {
    from.line();
    values.emplace_back(value);
  }
  return &values.back();
}

}  // namespace

std::optional<std::string_view> odb_object::text(std::string_view name) const {
  auto found = fields.find(name);
  if (found == fields.end()) return {};
  return found->second.front();
}

std::optional<double> odb_object::number(std::string_view name) const {
  auto found = fields.find(name);
  return found != fields.end() ? number_in(found->second.front()) : std::nullopt;
}

std::vector<double> odb_object::numbers(std::string_view name, std::size_t most) const {
  std::vector<double> all;
  auto found = fields.find(name);
  if (found == fields.end()) return all;
  for (const std::string& value : found->second) {
    if (all.size() >= most) break;
    if (std::optional<double> number = number_in(value)) all.push_back(*number);
  }
  return all;
}

odb_file::odb_file(std::string_view text) {
  static constexpr std::string_view mark = "\xEF\xBB\xBF";
  if (text.substr(0, mark.size()) == mark) text.remove_prefix(mark.size());
  reader from(text);
  if (!from.skip_blanks()) throw refused("is empty");
  if (!from.at('/')) throw refused("is no text of ArcView objects: it does not begin with \"/3\"");
  std::string_view version = trimmed(from.line()).substr(1);
  if (version.substr(0, 1) < "1" || version.substr(0, 1) > "3")
    throw refused("is of another version: \"" + std::string(version.substr(0, 16)) + "\"");
  while (from.skip_blanks()) {
    std::string_view head = trimmed(from.line());
    std::size_t dot = head.rfind('.');
    std::optional<double> id;
    if (head.substr(0, 1) == "(" && dot != std::string_view::npos)
      id = number_in(trimmed(head.substr(dot + 1)));
    if (!id || *id < 0 || *id > 1e15) throw refused("has no object where one should begin");
    if (objects_.size() >= most_objects) throw refused("has more than a million objects");
    odb_object object;
    object.kind = trimmed(head.substr(1, dot - 1));
    for (std::string* last = nullptr;; last = read_field(from, object, last)) {
      if (!from.skip_blanks()) throw refused("ends inside an object");
      if (from.at(')')) break;
    }
    from.skip(1);
    objects_.emplace(static_cast<std::int64_t>(*id), std::move(object));
  }
}

const odb_object* odb_file::find(double id) const {
  if (!(std::fabs(id) <= 1e15)) return nullptr;
  auto found = objects_.find(static_cast<std::int64_t>(id));
  return found != objects_.end() ? &found->second : nullptr;
}

const odb_object* odb_file::referred(const odb_object& from, std::string_view field) const {
  std::optional<double> id = from.number(field);
  return id ? find(*id) : nullptr;
}

std::vector<const odb_object*> odb_file::all_referred(const odb_object& from,
                                                      std::string_view field) const {
  std::vector<const odb_object*> all;
  for (double id : from.numbers(field))
    if (const odb_object* object = find(id)) all.push_back(object);
  return all;
}

const odb_object* odb_file::first(std::string_view kind) const {
  for (const auto& [id, object] : objects_)
    if (object.kind == kind) return &object;
  return nullptr;
}

}  // namespace zu::platform
