#pragma once
// Objects written as text, as ArcView 3 keeps its legends and projects:
//
//   /3.2
//   (TClr.7
//           Name:   "Red"
//           Red:    0xffff
//   )
//
// A field may stand several times. A text in quotes may hold brackets and ends of lines (which are
// not of it: long lines are broken), quotes as "" or \", and escapes as in C.

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zu::platform {

struct odb_object {
  std::string kind;
  std::map<std::string, std::vector<std::string>, std::less<>> fields;

  /// The first field of a name, which lives as long as the object; nothing if there is none.
  std::optional<std::string_view> text(std::string_view name) const;
  /// The same as a number, decimal or "0x…"; nothing if it is none.
  std::optional<double> number(std::string_view name) const;
  /// Fields of a name that are numbers, at most so many.
  std::vector<double> numbers(std::string_view name, std::size_t most = SIZE_MAX) const;
};

class odb_file {
 public:
  /// Throws std::runtime_error with the reason, which does not name the file.
  explicit odb_file(std::string_view text);

  /// The object of an id; null if there is none.
  const odb_object* find(double id) const;
  /// The object that a field of another names by its id; null if there is none.
  const odb_object* referred(const odb_object& from, std::string_view field) const;
  std::vector<const odb_object*> all_referred(const odb_object& from, std::string_view field) const;
  /// The first object of a kind; null if there is none.
  const odb_object* first(std::string_view kind) const;

 private:
  std::map<std::int64_t, odb_object> objects_;
};

}  // namespace zu::platform
