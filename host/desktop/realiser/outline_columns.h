#pragma once
// The columns of an outline by their kinds: what a cell shows, and where its edited value goes.

#include <QString>
#include <QVariant>

#include "zu/outline.h"

namespace zu::desktop {

enum class column_kind {
  string,
  assisted,
  integer,
  floating,
  boolean,
  choice,
  picture,
  canvas,
  unknown
};

/// A column as it stood when the list was last built. `handle` is on the table of its kind.
struct shown_column {
  handle column;
  handle sized_pictures;  ///< of a column of pictures that draws them in any size
  column_kind kind = column_kind::unknown;
  QString id, caption, hint;
  bool is_visible = true;
  std::uint32_t width = 0;
  Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
  bool is_sortable = false;
};
shown_column read_column(handle any_kind);

/// The text of a cell, also that of a picture's: an empty one.
QString cell_text(const shown_column& column, outline_item item);
/// What Qt asks a model for, by role; an invalid value where the usual will do.
QVariant cell_data(const shown_column& column, outline_item item, int role);
bool is_cell_enabled(const shown_column& column, outline_item item);
/// Whether a person may give the cell another value, by an editor or, of a mark, by a click.
bool is_cell_editable(const shown_column& column, outline_item item);
/// Gives a person's value to the column; false if it was refused or is no value of the column's.
bool set_cell(const shown_column& column, outline_item item, const QVariant& value);

}  // namespace zu::desktop
