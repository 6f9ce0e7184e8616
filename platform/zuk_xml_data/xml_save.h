#pragma once
// What the operations on files work through.

#include <string>

struct Tzu_xml_save_2d {
  std::wstring reason;  ///< why the last operation failed
};
