#pragma once
// Cells of a table by their kinds: what one shows, and where a person's value goes.

#include <QImage>
#include <QString>
#include <QVariant>
#include <functional>

#include "zu/grid_table.h"

namespace zu::desktop {

enum class cell_kind { none, string, integer, floating, check, picture };

/// A place in a table, counted with the fixed columns and rows.
struct grid_place {
  std::uint32_t column = 0;
  std::uint64_t row = 0;
  friend bool operator==(const grid_place&, const grid_place&) = default;
};

/// What a cell showed when it was asked.
struct shown_cell {
  cell_kind kind = cell_kind::none;
  QString text;
  bool is_read_only = true;
  bool is_enabled = true;
  Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
  std::uint32_t background = 0;         ///< 0xAARRGGBB; 0: the usual
  Qt::CheckState mark = Qt::Unchecked;  ///< of a check
  bool is_shown = true;                 ///< a check may be missing
  QImage picture;                       ///< of a picture
};

shown_cell read_cell(handle grid, grid_place at);
QString hint_of_cell(handle grid, grid_place at);
/// The value that editing starts with.
QVariant edited_value(handle grid, grid_place at);
/// An editor that fits the cell; null if it cannot be edited in one.
QWidget* make_editor(handle grid, grid_place at, QWidget* parent);
/// Gives a person's value to the cell; false if it was refused or is no value of the cell's.
bool set_cell(handle grid, grid_place at, const QVariant& value);
/// A click on a check or a picture. False if the cell is neither, or is read only.
bool click_cell(handle grid, grid_place at, bool shift);

}  // namespace zu::desktop
