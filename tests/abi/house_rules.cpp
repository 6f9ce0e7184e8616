#include "tests/abi/house_rules.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <sstream>

namespace house {
namespace {

namespace fs = std::filesystem;

struct include {
  std::string file;
  std::string path;
  bool quoted;
  std::string text() const {
    return file + " includes " + (quoted ? '"' + path + '"' : '<' + path + '>');
  }
};

bool begins(const std::string& text, const std::string& start) {
  return text.compare(0, start.size(), start) == 0;
}
bool ends(const std::string& text, const std::string& end) {
  return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}
bool is_header(const std::string& file) { return ends(file, ".h") || ends(file, ".def"); }
bool is_source(const std::string& file) { return ends(file, ".cpp") || ends(file, ".c"); }

std::string read(const fs::path& path) {
  std::ifstream in(path);
  return {std::istreambuf_iterator<char>(in), {}};
}

/// The include directive of a line, if it is one.
std::optional<include> directive_in(const std::string& file, const std::string& line) {
  auto skip_blanks = [&](std::size_t at) {
    return std::min(line.find_first_not_of(" \t", at), line.size());
  };
  static const std::string word = "include";
  std::size_t at = skip_blanks(0);
  if (at == line.size() || line[at] != '#') return {};
  at = skip_blanks(at + 1);
  if (line.compare(at, word.size(), word) != 0) return {};
  at = skip_blanks(at + word.size());
  if (at == line.size() || (line[at] != '"' && line[at] != '<')) return {};
  bool quoted = line[at] == '"';
  std::size_t end = line.find(quoted ? '"' : '>', at + 1);
  if (end == std::string::npos) return {};
  return include{file, line.substr(at + 1, end - at - 1), quoted};
}

std::vector<include> includes_of(const tree& t) {
  std::vector<include> all;
  for (const std::string& file : t.files) {
    if (!is_header(file) && !is_source(file)) continue;
    std::istringstream in(read(t.root / file));
    for (std::string line; std::getline(in, line);)
      if (auto found = directive_in(file, line)) all.push_back(*found);
  }
  return all;
}

/// Every text that stands between `before` and the next `after`.
std::vector<std::string> between(const std::string& text, const std::string& before, char after) {
  std::vector<std::string> all;
  for (std::size_t at = 0; (at = text.find(before, at)) != std::string::npos;) {
    at += before.size();
    std::size_t end = text.find(after, at);
    if (end == std::string::npos) break;
    all.push_back(text.substr(at, end - at));
  }
  return all;
}

// Every header of the standard library that C++20 has, and those of C that come without a "c" in
// front in the headers that C programs read too.
const std::set<std::string> standard = {"algorithm",
                                        "any",
                                        "array",
                                        "atomic",
                                        "barrier",
                                        "bit",
                                        "bitset",
                                        "cassert",
                                        "cctype",
                                        "cerrno",
                                        "cfenv",
                                        "cfloat",
                                        "charconv",
                                        "chrono",
                                        "cinttypes",
                                        "climits",
                                        "clocale",
                                        "cmath",
                                        "compare",
                                        "complex",
                                        "concepts",
                                        "condition_variable",
                                        "coroutine",
                                        "csetjmp",
                                        "csignal",
                                        "cstdarg",
                                        "cstddef",
                                        "cstdint",
                                        "cstdio",
                                        "cstdlib",
                                        "cstring",
                                        "ctime",
                                        "cuchar",
                                        "cwchar",
                                        "cwctype",
                                        "deque",
                                        "exception",
                                        "execution",
                                        "filesystem",
                                        "format",
                                        "forward_list",
                                        "fstream",
                                        "functional",
                                        "future",
                                        "initializer_list",
                                        "iomanip",
                                        "ios",
                                        "iosfwd",
                                        "iostream",
                                        "istream",
                                        "iterator",
                                        "latch",
                                        "limits",
                                        "list",
                                        "locale",
                                        "map",
                                        "memory",
                                        "memory_resource",
                                        "mutex",
                                        "new",
                                        "numbers",
                                        "numeric",
                                        "optional",
                                        "ostream",
                                        "queue",
                                        "random",
                                        "ranges",
                                        "ratio",
                                        "regex",
                                        "scoped_allocator",
                                        "semaphore",
                                        "set",
                                        "shared_mutex",
                                        "source_location",
                                        "span",
                                        "sstream",
                                        "stack",
                                        "stdexcept",
                                        "stop_token",
                                        "streambuf",
                                        "string",
                                        "string_view",
                                        "syncstream",
                                        "system_error",
                                        "thread",
                                        "tuple",
                                        "type_traits",
                                        "typeindex",
                                        "typeinfo",
                                        "unordered_map",
                                        "unordered_set",
                                        "utility",
                                        "valarray",
                                        "variant",
                                        "vector",
                                        "version"};
const std::set<std::string> standard_of_c = {"stdbool.h", "stddef.h", "stdint.h", "wchar.h"};
const std::set<std::string> system_of_host = {
    "dlfcn.h",    "fcntl.h",  "poll.h",     "signal.h",    "sys/ioctl.h",
    "sys/stat.h", "unistd.h", "sys/wait.h", "CLI/CLI.hpp", "nlohmann/json.hpp"};

bool is_qt(const std::string& path) {
  return begins(path, "Qt") || (path.size() > 1 && path[0] == 'Q' && std::isupper(path[1]) != 0);
}
bool is_of_tree(const std::string& path) {
  for (const char* top : {"src/", "platform/", "host/", "zu/", "include/", "tests/", "bench/"})
    if (begins(path, top)) return true;
  return false;
}

bool may_bundle(const include& i) {
  // The compiler's own, which turns the names of types into texts.
  if (!i.quoted) return standard.count(i.path) != 0 || i.path == "cxxabi.h";
  return begins(i.path, "src/") || begins(i.path, "zu/") || begins(i.path, "resources/");
}
bool may_platform(const include& i) {
  if (!i.quoted) return !is_of_tree(i.path) && !is_qt(i.path);
  return begins(i.path, "platform/") || begins(i.path, "zu/");
}
bool may_host(const include& i) {
  bool desktop = begins(i.file, "host/desktop/");
  if (!i.quoted)
    return standard.count(i.path) != 0 || system_of_host.count(i.path) != 0 ||
           (desktop && is_qt(i.path));
  if (begins(i.path, "zu/") || begins(i.path, "host/core/")) return true;
  for (const char* own : {"host/cli/", "host/desktop/"})
    if (begins(i.path, own)) return begins(i.file, own);
  return false;
}
bool may_border(const include& i) {
  if (!i.quoted) return standard.count(i.path) != 0 || standard_of_c.count(i.path) != 0;
  if (begins(i.path, "zu/platform/")) return begins(i.file, "include/zu/platform/");
  return begins(i.path, "zu/");
}

// Floors of the platform, from the ground up; a library may include those of its own floor.
const std::map<std::string, int> floors = {
    {"zuk_api", 0},         //
    {"zuk_basic", 0},       //
    {"zuk_os", 0},          //
    {"zuk_msgs", 0},        //
    {"zuk_stat", 0},        //
    {"zuk_prg", 1},         //
    {"zuk_io", 1},          //
    {"zuk_proj4_d2", 1},    //
    {"zuk_dib", 1},         //
    {"zuk_ini_data", 1},    //
    {"zuk_styles", 2},      //
    {"zuk_symbols", 2},     //
    {"zuk_palettes", 2},    //
    {"zuk_file_tos4", 2},   //
    {"zuk_file_segy", 2},   //
    {"zuk_calculator", 2},  //
    {"zuk_datasource", 3},  //
    {"zuk_xml_data", 3},    //
    {"zuk_style_libs", 3},  //
    {"zuk_lr2d", 4},        //
    {"zuk_attr_data", 4},   //
    {"zuk_scn_2d", 4},      //
    {"zuk_rtr_lr2d", 4},    //
    {"zuk_tos_lr2d", 4},    //
    {"zuk_plot_lr2d", 4},   //
    {"zuk_drwc", 5},        //
    {"zuk_render", 5},      //
    {"zuk_bmp_dc", 5},      //
    {"zuk_viewer2d", 6},    //
    {"zuk_select", 6},      //
    {"zuk_tld_data", 6},    //
};

/// Library of the platform that a path belongs to, folder or header; empty if to none.
std::string library_of(const std::string& path) {
  for (const std::string start : {"platform/", "include/zu/platform/", "zu/platform/"})
    if (begins(path, start)) {
      std::size_t end = path.find_first_of("/.", start.size());
      return end == std::string::npos ? "" : path.substr(start.size(), end - start.size());
    }
  return {};
}

}  // namespace

tree::tree(const fs::path& root) : root(root) {
  for (auto entry = fs::recursive_directory_iterator(root); entry != fs::end(entry); ++entry) {
    std::string name = entry->path().filename().string();
    bool build = entry.depth() == 0 && begins(name, "build");
    if (entry->is_directory() && (begins(name, ".") || build || name == "__pycache__"))
      entry.disable_recursion_pending();
    else if (entry->is_regular_file())
      files.insert(fs::relative(entry->path(), root).generic_string());
  }
}

void tree::read_compiled(const fs::path& compile_commands) {
  for (const std::string& file : between(read(compile_commands), "\"file\": \"", '"'))
    compiled.insert(fs::path(file).lexically_relative(root).generic_string());
}

findings includes_across_the_border(const tree& t) {
  findings all;
  for (const include& i : includes_of(t)) {
    bool may = begins(i.file, "src/")        ? may_bundle(i)
               : begins(i.file, "platform/") ? may_platform(i)
               : begins(i.file, "host/")     ? may_host(i)
               : begins(i.file, "include/")  ? may_border(i)
                                             : true;
    if (!may) all.push_back(i.text());
  }
  return all;
}

findings includes_up_the_floors(const tree& t) {
  findings all;
  for (const include& i : includes_of(t)) {
    std::string from = library_of(i.file), to = library_of(i.path);
    if (from.empty() || to.empty() || from == to) continue;
    auto below = floors.find(from), above = floors.find(to);
    if (below == floors.end() || above == floors.end())
      all.push_back(i.text() + ": a library without a floor");
    else if (above->second > below->second)
      all.push_back(i.text() + ": from floor " + std::to_string(below->second) + " to floor " +
                    std::to_string(above->second));
  }
  return all;
}

findings includes_with_dots(const tree& t) {
  findings all;
  for (const include& i : includes_of(t))
    if (i.path.find("..") != std::string::npos || begins(i.path, "./")) all.push_back(i.text());
  return all;
}

findings unused_files(const tree& t) {
  std::set<std::string> included;
  for (const include& i : includes_of(t)) included.insert(i.path);
  findings all;
  for (const std::string& file : t.files) {
    bool product = false;
    for (const char* top : {"src/", "platform/", "host/", "include/", "resources/"})
      product = product || begins(file, top);
    if (!product) continue;
    std::string path = begins(file, "include/") ? file.substr(8) : file;
    if (is_header(file) && included.count(path) == 0) all.push_back(file + " is never included");
    if (is_source(file) && t.compiled.count(file) == 0) all.push_back(file + " is never compiled");
  }
  return all;
}

findings folders_without_readme(const tree& t) {
  std::set<std::string> folders;
  for (const std::string& file : t.files) {
    fs::path folder = fs::path(file).parent_path();
    if (folder.empty()) continue;
    auto part = folder.begin();
    std::string top = part->string();
    folders.insert(top == "include" ? "include/zu" : top);
    bool of_parts = top == "src" || top == "platform" || top == "host" || top == "tests";
    if (of_parts && ++part != folder.end()) folders.insert(top + '/' + part->string());
    if (begins(file, "include/zu/platform/")) folders.insert("include/zu/platform");
  }
  findings all;
  for (const std::string& folder : folders)
    if (folder[0] != '.' && t.files.count(folder + "/README.md") == 0)
      all.push_back(folder + " has no README.md");
  return all;
}

findings dead_links(const tree& t) {
  // Lambdas look like links.
  auto without_code = [](std::string text) {
    static const std::string fence = "```";
    for (std::size_t at = 0; (at = text.find(fence, at)) != std::string::npos;) {
      std::size_t end = text.find(fence, at + fence.size());
      text.erase(at, end == std::string::npos ? end : end + fence.size() - at);
    }
    return text;
  };
  findings all;
  for (const std::string& file : t.files) {
    if (!ends(file, ".md")) continue;
    for (const std::string& link : between(without_code(read(t.root / file)), "](", ')')) {
      std::string target = link.substr(0, link.find_first_of(" #"));
      if (target.empty() || target.find(':') != std::string::npos) continue;
      if (!fs::exists((t.root / file).parent_path() / target))
        all.push_back(file + " links to " + target);
    }
  }
  return all;
}

}  // namespace house
