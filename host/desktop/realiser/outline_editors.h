#pragma once
// Editors of cells, of outlines and of tables.

#include <QVariant>

#include "host/desktop/realiser/outline_columns.h"

class QWidget;

namespace zu::desktop {

/// An editor for a cell by its column's kind; null for one that cannot be edited in an editor.
QWidget* make_cell_editor(const shown_column& column, outline_item item, QWidget* parent);
/// Editors of tables' cells.
QWidget* make_text_editor(QWidget* parent);
QWidget* make_integer_editor(std::int32_t minimum, std::int32_t maximum, std::int32_t step,
                             QWidget* parent);
QWidget* make_floating_editor(double step, QWidget* parent);

/// Shows a value in an editor of any kind and remembers it as the one that editing started with.
void show_in_editor(QWidget* editor, const QVariant& value);
QVariant starting_value(const QWidget* editor);
QVariant value_of_editor(QWidget* editor);

}  // namespace zu::desktop
