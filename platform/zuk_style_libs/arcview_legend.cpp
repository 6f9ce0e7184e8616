#include "platform/zuk_style_libs/arcview_legend.h"

#include <algorithm>
#include <stdexcept>

#include "platform/zuk_basic/text_of.h"
#include "zu/platform/zuk_os.h"

namespace zu::platform {
namespace {

constexpr double point = 25.4 / 72.0;
/// What ArcView draws as thin as the screen can.
constexpr double hair = 0.1;
constexpr std::uint8_t invisible = 255;
constexpr std::size_t most_dashes = 16;  // as many as ArcView writes

/// ArcView writes the code page of its system, which it does not say; editors save UTF-8.
std::wstring wide(std::string_view text) {
  std::wstring utf8 = from_utf8(text);
  if (utf8.find(L'\xFFFD') == std::wstring::npos) return utf8;
  constexpr std::uint32_t cyrillic = 1251, western = 1252;
  return text_of([&](Tzu_string_adp* adapter) {
    zu_os_multibyte_to_wide(zu_res_get_lng() == 0 ? cyrillic : western, text.data(),
                            static_cast<std::int64_t>(text.size()), adapter);
  });
}

/// Words of 16 bits a colour; what is not there is 0.
Tzu_color color_in(const odb_object* color, Tzu_color otherwise) {
  if (color == nullptr) return otherwise;
  if (color->text("Name") == "Transparent") return {0, 0, 0, invisible};
  auto byte = [&](const char* name) {
    double word = std::clamp(color->number(name).value_or(0.0), 0.0, 65535.0);
    return static_cast<std::uint8_t>(static_cast<unsigned>(word) >> 8);
  };
  return {byte("Red"), byte("Green"), byte("Blue"), 0};
}

double length_in(const odb_object& from, const char* name) {
  return std::clamp(from.number(name).value_or(0.0), 0.0, 1000.0) * point;
}

bool ends(const std::string& text, std::string_view end) {
  return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

/// The first part of a composite symbol that is none itself; parts may go round in circles.
const odb_object* basic(const odb_file& file, const odb_object* symbol) {
  for (int depth = 0; symbol != nullptr && depth < 16; ++depth) {
    const odb_object* parts = file.referred(*symbol, "Symbols");
    if (parts == nullptr) return symbol;
    symbol = file.referred(*parts, "Child");
  }
  return nullptr;
}

std::vector<double> dashes_in(const odb_object& line) {
  std::vector<double> dashes;
  for (double length : line.numbers("Pattern", most_dashes)) {
    if (!(length > 0.0)) break;
    dashes.push_back(std::min(length, 1000.0) * point);
  }
  return dashes;
}

std::optional<legend_symbol> symbol_in(const odb_file& file, const odb_object* found) {
  found = basic(file, found);
  if (found == nullptr) return {};
  constexpr Tzu_color black{0, 0, 0, 0};
  legend_symbol symbol;
  symbol.color = color_in(file.referred(*found, "Color"), black);
  if (ends(found->kind, "MkSym")) {
    symbol.kind = legend_symbol::kinds::marker;
    symbol.size = std::max(length_in(*found, "Size"), hair);
    symbol.angle = found->number("Angle").value_or(0.0);
  } else if (ends(found->kind, "LnSym")) {
    symbol.kind = legend_symbol::kinds::line;
    symbol.width = std::max(length_in(*found, "Width"), hair);
    symbol.dashes = dashes_in(*found);
  } else if (ends(found->kind, "ShSym")) {
    Tzu_color background = color_in(file.referred(*found, "BgColor"), {0, 0, 0, invisible});
    if (found->text("Stipple") && background.a != invisible) symbol.color = background;
    symbol.outline = color_in(file.referred(*found, "OutlineColor"), black);
    symbol.outline_width = std::max(length_in(*found, "OutlineWidth"), hair);
  } else {
    return {};
  }
  return symbol;
}

legend_class class_in(const odb_object& object) {
  legend_class found;
  found.caption = wide(object.text("Label").value_or(""));
  found.minimum = object.number("MinNum");
  found.maximum = object.number("MaxNum");
  if (std::optional<std::string_view> text = object.text("MinStr")) found.text = wide(*text);
  return found;
}

bool is_no_data(const odb_object& object) { return object.number("IsNoData").value_or(0.0) != 0.0; }

bool is_limited(const legend_class& c) { return c.minimum || c.maximum || c.text; }

/// A class without limits among others that have some is that of all other values.
void take_others_out(arcview_legend& legend) {
  auto& all = legend.classes;
  auto first = std::stable_partition(all.begin(), all.end(), is_limited);
  if (first != all.end()) legend.other = std::move(*first);
  all.erase(first, all.end());
}

arcview_legend::forms form_of(const odb_object& legend, const std::vector<legend_class>& classes) {
  constexpr double graduated = 0x02, unique = 0x08;
  using forms = arcview_legend::forms;
  if (std::none_of(classes.begin(), classes.end(), is_limited)) return forms::single;
  std::optional<double> type = legend.number("LegType");
  if (type == unique) return forms::values;
  bool values = std::all_of(classes.begin(), classes.end(),
                            [](const legend_class& c) { return c.text || c.minimum == c.maximum; });
  return values && type != graduated ? forms::values : forms::ranges;
}

}  // namespace

arcview_legend legend_in(const odb_file& file) {
  const odb_object* root = file.first("ODB");
  const odb_object* object = root != nullptr ? file.referred(*root, "Roots") : nullptr;
  if (object == nullptr || object->kind != "Legend") object = file.first("Legend");
  if (object == nullptr) throw std::runtime_error("holds no legend");

  std::vector<const odb_object*> symbols;
  if (const odb_object* list = file.referred(*object, "Symbols"))
    symbols = list->kind == "SymList" ? file.all_referred(*list, "Child") : std::vector{list};
  std::vector<const odb_object*> classes = file.all_referred(*object, "Class");
  auto without = static_cast<std::size_t>(
      std::count_if(classes.begin(), classes.end(), [](auto* c) { return is_no_data(*c); }));
  // The class of no data has a symbol in some lists, and in others none.
  bool all_have = symbols.size() + without > classes.size();

  arcview_legend legend;
  auto symbol = symbols.begin();
  for (const odb_object* each : classes) {
    bool no_data = is_no_data(*each), has = all_have || !no_data;
    legend_class one = class_in(*each);
    if (has && symbol != symbols.end()) one.symbol = symbol_in(file, *symbol++);
    if (!no_data) {
      legend.classes.push_back(std::move(one));
    } else {
      if (!one.symbol) one.symbol = symbol_in(file, file.referred(*object, "NullSymbol"));
      legend.other = std::move(one);
    }
  }
  if (classes.empty() && !symbols.empty()) {
    legend.classes.emplace_back();
    legend.classes.back().symbol = symbol_in(file, symbols.front());
  }
  if (std::none_of(legend.classes.begin(), legend.classes.end(),
                   [](const legend_class& c) { return c.symbol.has_value(); }))
    throw std::runtime_error("holds a legend without symbols");
  legend.form = form_of(*object, legend.classes);
  if (legend.form != arcview_legend::forms::single) take_others_out(legend);
  if (const odb_object* names = file.referred(*object, "FieldNames"))
    legend.field = wide(names->text("S").value_or(""));
  return legend;
}

}  // namespace zu::platform
