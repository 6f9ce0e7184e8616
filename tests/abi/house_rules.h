#pragma once
// The rules of the house, read off a source tree: who may include whom, which files are used, which
// folders explain themselves, which links lead somewhere. Each rule gives its findings, one a line;
// none if the tree keeps it.

#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace house {

using findings = std::vector<std::string>;

/// A tree and the files that its build compiles, both by paths relative to the tree's root.
struct tree {
  std::filesystem::path root;
  std::set<std::string> files;
  std::set<std::string> compiled;

  /// Walks `root`, leaving out hidden folders and folders of builds.
  explicit tree(const std::filesystem::path& root);
  /// Takes the compiled files from a compile_commands.json.
  void read_compiled(const std::filesystem::path& compile_commands);
};

/// src/, platform/, host/ and include/ see only what they may.
findings includes_across_the_border(const tree& t);
/// A library of the platform, and its header, includes none of a higher floor.
findings includes_up_the_floors(const tree& t);
/// Paths of includes start at the tree's root.
findings includes_with_dots(const tree& t);
/// Headers that nothing includes, sources that nothing compiles.
findings unused_files(const tree& t);
/// Folders without a README.md.
findings folders_without_readme(const tree& t);
/// Relative links in documents that lead nowhere.
findings dead_links(const tree& t);

}  // namespace house
