#pragma once
// What a handed out node is.

#include <memory>
#include <pugixml.hpp>

#include "zu/platform/zuk_io.h"

/// A place in a tree; the root's holds the tree.
struct Tzu_xnode {
  pugi::xml_node node;
  std::unique_ptr<pugi::xml_document> tree;
};
