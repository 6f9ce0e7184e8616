// Trees as text and in files.

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fstream>
#include <memory>
#include <new>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "platform/zuk_basic/guarded.h"
#include "platform/zuk_basic/utf8.h"
#include "platform/zuk_io/atomic_file.h"
#include "platform/zuk_io/xnode.h"

using zu::platform::from_utf8;
using zu::platform::guarded;
using zu::platform::to_utf8;

namespace {

constexpr std::uint64_t longest = std::uint64_t{256} << 20;
constexpr int deepest = 64;

struct refused : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// What `work` gives; null, and the reason told, if it throws.
template <class result, class work>
result telling(Tzu_string_adp* reason, result otherwise, work w) noexcept {
  try {
    return w();
  } catch (const std::bad_alloc&) {
    zu_string_adp_feed(reason, L"not enough memory");
  } catch (const std::exception& problem) {
    try {
      zu_string_adp_feed(reason, from_utf8(problem.what()).c_str());
    } catch (...) {
      return otherwise;
    }
  }
  return otherwise;
}

void check_depth(const pugi::xml_document& tree) {
  struct walker : pugi::xml_tree_walker {
    bool for_each(pugi::xml_node&) override { return depth() < deepest; }
  } depths;
  pugi::xml_document& walked = const_cast<pugi::xml_document&>(tree);
  if (!walked.traverse(depths)) throw refused("is nested too deeply");
}

/// Blank text is no content; where character references have made it, it is not to stay either,
/// since it would be gone once the tree is written and read again.
void drop_blank_texts(pugi::xml_document& tree) {
  struct walker : pugi::xml_tree_walker {
    std::vector<pugi::xml_node> blank;
    bool for_each(pugi::xml_node& node) override {
      std::string_view text = node.value();
      if (node.type() == pugi::node_pcdata &&
          text.find_first_not_of(" \t\r\n") == std::string_view::npos)
        blank.push_back(node);
      return true;
    }
  } texts;
  tree.traverse(texts);
  for (pugi::xml_node& node : texts.blank) node.parent().remove_child(node);
}

std::size_t line_of(std::string_view text, std::ptrdiff_t offset) {
  std::string_view before = text.substr(0, static_cast<std::size_t>(offset > 0 ? offset : 0));
  return static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n')) + 1;
}

Tzu_xnode* parsed(std::string_view text) {
  if (text.size() > longest) throw refused("is larger than 256 MiB");
  if (text.empty()) throw refused("is empty");
  if (text.find('\0') != std::string_view::npos)
    throw refused("is no XML in UTF-8: it holds a NUL");
  auto tree = std::make_unique<pugi::xml_document>();
  constexpr unsigned how = pugi::parse_default | pugi::parse_comments | pugi::parse_doctype;
  pugi::xml_parse_result result =
      tree->load_buffer(text.data(), text.size(), how, pugi::encoding_utf8);
  if (!result && result.status != pugi::status_no_document_element)
    throw refused("is no XML: " + std::string(result.description()) + " in line " +
                  std::to_string(line_of(text, result.offset)));
  pugi::xml_node root;
  for (const pugi::xml_node& each : tree->children()) {
    if (each.type() == pugi::node_doctype) throw refused("declares a document type");
    if (each.type() != pugi::node_element) continue;
    if (root) throw refused("is no XML: it has more than one root");
    root = each;
  }
  if (!root) throw refused("is no XML: it has no root");
  check_depth(*tree);
  drop_blank_texts(*tree);
  return new Tzu_xnode{root, std::move(tree)};
}

std::string content_of(const std::string& path) {
  struct stat status;
  if (stat(path.c_str(), &status) != 0)
    throw refused(errno == ENOENT || errno == ENOTDIR ? "no such file"
                                                      : std::generic_category().message(errno));
  if (S_ISDIR(status.st_mode)) throw refused("is a folder");
  if (!S_ISREG(status.st_mode)) throw refused("is not a regular file");
  if (static_cast<std::uint64_t>(status.st_size) > longest) throw refused("is larger than 256 MiB");
  std::ifstream file(path, std::ios::binary);
  if (!file) throw refused("cannot be opened");
  std::string content(static_cast<std::size_t>(status.st_size), '\0');
  file.read(content.data(), static_cast<std::streamsize>(content.size()));
  content.resize(static_cast<std::size_t>(file.gcount()));
  if (file.bad()) throw refused("cannot be read");
  return content;
}

std::string text_of(const Tzu_xnode& root) {
  if (root.tree == nullptr) throw refused("is no root");
  std::ostringstream out;
  out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
  root.tree->save(out, "  ", pugi::format_indent | pugi::format_no_declaration,
                  pugi::encoding_utf8);
  // pugixml writes a carriage return inside a text bare, and would read a line's end there.
  std::string text = out.str(), escaped;
  for (char letter : text) letter == '\r' ? escaped += "&#13;" : escaped += letter;
  return escaped;
}

void write(const std::string& path, const std::string& text) {
  zu::platform::atomic_file file(path);
  std::FILE* out = std::fopen(file.temporary().c_str(), "wb");
  if (out == nullptr) throw refused(std::generic_category().message(errno));
  bool whole = std::fwrite(text.data(), 1, text.size(), out) == text.size();
  int error = errno;
  bool closed = std::fclose(out) == 0;
  if (whole && !closed) error = errno;
  if (!whole || !closed)
    throw refused(error == ENOSPC || error == EFBIG || error == EDQUOT
                      ? "no space left on the device"
                      : std::generic_category().message(error));
  file.commit();
}

}  // namespace

Tzu_xnode* zu_xnode_read(const char* text, uint64_t size, Tzu_string_adp* reason) {
  return telling(reason, static_cast<Tzu_xnode*>(nullptr), [&] {
    return parsed(text != nullptr ? std::string_view(text, size) : std::string_view());
  });
}

Tzu_xnode* zu_xnode_load_file_w(const wchar_t* path, Tzu_string_adp* reason) {
  return telling(reason, static_cast<Tzu_xnode*>(nullptr),
                 [&] { return parsed(content_of(to_utf8(path))); });
}

void zu_xnode_get_text(Tzu_xnode* root, Tzu_string_adp* adapter) {
  guarded(root, [&](Tzu_xnode& r) { zu_string_adp_feed_narrow(adapter, text_of(r).c_str()); });
}

bool zu_io_write_file_w(const wchar_t* path, const char* bytes, uint64_t size,
                        Tzu_string_adp* reason) {
  return telling(reason, false, [&] {
    if (bytes == nullptr) throw refused("there is nothing to write");
    write(to_utf8(path), std::string(bytes, size));
    return true;
  });
}

bool zu_xnode_save_file_w(Tzu_xnode* root, const wchar_t* path, Tzu_string_adp* reason) {
  return telling(reason, false, [&] {
    if (root == nullptr) throw refused("there is nothing to write");
    write(to_utf8(path), text_of(*root));
    return true;
  });
}
