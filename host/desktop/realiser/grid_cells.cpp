#include "host/desktop/realiser/grid_cells.h"

#include <QWidget>

#include "host/desktop/realiser/answers.h"
#include "host/desktop/realiser/number_text.h"
#include "host/desktop/realiser/outline_editors.h"
#include "host/desktop/realiser/pictures.h"
#include "host/desktop/realiser/realised.h"

namespace zu::desktop {
namespace {

// The first slots are the same in cells of all kinds.
using any_cell = grid_string_cell_impl;

struct cell {
  cell_kind kind = cell_kind::none;
  handle own;
};

cell kind_of(handle any_kind) {
  if (handle own = cast<grid_string_cell_impl>(any_kind)) return {cell_kind::string, own};
  if (handle own = cast<grid_floating_cell_impl>(any_kind)) return {cell_kind::floating, own};
  if (handle own = cast<grid_integer_cell_impl>(any_kind)) return {cell_kind::integer, own};
  if (handle own = cast<grid_check_cell_impl>(any_kind)) return {cell_kind::check, own};
  if (handle own = cast<grid_bitmap_cell_impl>(any_kind)) return {cell_kind::picture, own};
  return {};
}

/// Calls `use` with the cell at a place while it lives.
template <class function> void with_cell(handle grid, grid_place at, function use) {
  auto taking = visitor<grid_cell_visitor_impl, handle>([&](handle any_kind) {
    cell found = kind_of(any_kind);
    if (found.own) use(found);
  });
  call<&grid_impl::visit_cell>(grid, at.column, at.row, taking.get());
}

Qt::Alignment alignment_of(std::uint32_t said, cell_kind kind) {
  if (said == 1) return Qt::AlignLeft | Qt::AlignVCenter;
  if (said == 2) return Qt::AlignCenter;
  const bool is_number = kind == cell_kind::integer || kind == cell_kind::floating;
  if (said == 3 || is_number) return Qt::AlignRight | Qt::AlignVCenter;
  return kind == cell_kind::string ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter;
}

QString text_of(const cell& c) {
  const QStringList said = texts_by<&any_cell::text>(c.own);
  if (!said.isEmpty()) return said.last();
  if (c.kind == cell_kind::integer)
    return QString::number(call<&grid_integer_cell_impl::value>(c.own));
  if (c.kind == cell_kind::floating)
    return number_text(call<&grid_floating_cell_impl::value>(c.own), 0);
  return {};
}

bool set_number(const cell& c, const QString& text) {
  if (c.kind == cell_kind::integer) {
    bool is_whole = false;
    const int number = text.trimmed().toInt(&is_whole);
    return is_whole && call<&grid_integer_cell_impl::set_value>(c.own, number);
  }
  const std::optional<double> number = number_of(text);
  return number && *number >= call<&grid_floating_cell_impl::minimum>(c.own) &&
         *number <= call<&grid_floating_cell_impl::maximum>(c.own) &&
         call<&grid_floating_cell_impl::set_value>(c.own, *number);
}

}  // namespace

shown_cell read_cell(handle grid, grid_place at) {
  shown_cell shown;
  with_cell(grid, at, [&](const cell& c) {
    shown.kind = c.kind;
    shown.text = text_of(c);
    shown.is_read_only = call<&any_cell::is_read_only>(c.own);
    shown.is_enabled = call<&any_cell::is_enabled>(c.own);
    shown.alignment = alignment_of(call<&any_cell::alignment>(c.own), c.kind);
    shown.background = call<&any_cell::background>(c.own);
    if (c.kind == cell_kind::check) {
      shown.is_shown = call<&grid_check_cell_impl::is_shown>(c.own);
      shown.mark = call<&grid_check_cell_impl::is_undecided>(c.own) ? Qt::PartiallyChecked
                   : call<&grid_check_cell_impl::is_checked>(c.own) ? Qt::Checked
                                                                    : Qt::Unchecked;
    }
    if (c.kind == cell_kind::picture)
      shown.picture = picture_by<&grid_bitmap_cell_impl::picture>(c.own).image;
  });
  return shown;
}

QString hint_of_cell(handle grid, grid_place at) {
  QString hint;
  with_cell(grid, at, [&](const cell& c) { hint = text_by<&any_cell::hint>(c.own); });
  return hint;
}

QVariant edited_value(handle grid, grid_place at) {
  QVariant value;
  with_cell(grid, at, [&](const cell& c) {
    if (c.kind == cell_kind::integer)
      value = call<&grid_integer_cell_impl::value>(c.own);
    else if (c.kind == cell_kind::floating)
      value = number_text(call<&grid_floating_cell_impl::value>(c.own), 0);
    else
      value = text_of(c);
  });
  return value;
}

QWidget* make_editor(handle grid, grid_place at, QWidget* parent) {
  QWidget* editor = nullptr;
  with_cell(grid, at, [&](const cell& c) {
    if (call<&any_cell::is_read_only>(c.own) || !call<&any_cell::is_enabled>(c.own)) return;
    if (c.kind == cell_kind::string) editor = make_text_editor(parent);
    if (c.kind == cell_kind::floating) editor = make_floating_editor(1, parent);
    if (c.kind == cell_kind::integer)
      editor = make_integer_editor(call<&grid_integer_cell_impl::minimum>(c.own),
                                   call<&grid_integer_cell_impl::maximum>(c.own), 1, parent);
  });
  if (editor != nullptr) editor->setObjectName(QStringLiteral("cell_editor"));
  return editor;
}

bool set_cell(handle grid, grid_place at, const QVariant& value) {
  bool taken = false;
  with_cell(grid, at, [&](const cell& c) {
    if (c.kind == cell_kind::string)
      taken =
          call<&grid_string_cell_impl::set_text>(c.own, value.toString().toStdWString().c_str());
    else if (c.kind == cell_kind::integer || c.kind == cell_kind::floating)
      taken = set_number(c, value.toString());
  });
  return taken;
}

bool click_cell(handle grid, grid_place at, bool shift) {
  bool taken = false;
  with_cell(grid, at, [&](const cell& c) {
    if (call<&any_cell::is_read_only>(c.own) || !call<&any_cell::is_enabled>(c.own)) return;
    if (c.kind == cell_kind::check && call<&grid_check_cell_impl::is_shown>(c.own)) {
      const bool checked = call<&grid_check_cell_impl::is_checked>(c.own);
      call<&grid_check_cell_impl::set_checked>(c.own, !checked, shift);
      taken = true;
    }
    if (c.kind == cell_kind::picture) {
      call<&grid_bitmap_cell_impl::click>(c.own);
      taken = true;
    }
  });
  return taken;
}

}  // namespace zu::desktop
