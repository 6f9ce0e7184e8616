#include "host/desktop/realiser/outline_columns.h"

#include <QColor>
#include <QFont>

#include "host/desktop/realiser/answers.h"
#include "host/desktop/realiser/number_text.h"
#include "host/desktop/realiser/pictures.h"
#include "host/desktop/realiser/realised.h"

namespace zu::desktop {
namespace {

// The first slots are the same in columns of all kinds, and so are those of enablement and of
// editing in the kinds that have a value.
using any_column = string_outline_column_impl;

bool has_value_slots(column_kind kind) {
  return kind != column_kind::picture && kind != column_kind::canvas &&
         kind != column_kind::unknown;
}

QVariant color(std::uint32_t argb) { return argb == 0 ? QVariant() : QColor::fromRgba(argb); }

template <class x> bool is(handle any_kind, column_kind kind, shown_column& found) {
  handle own = cast<x>(any_kind);
  if (own) found.column = own, found.kind = kind;
  return static_cast<bool>(own);
}

Qt::Alignment alignment_of(std::uint32_t said, column_kind kind) {
  static constexpr Qt::AlignmentFlag by_number[] = {Qt::AlignLeft, Qt::AlignLeft, Qt::AlignHCenter,
                                                    Qt::AlignRight};
  if (said >= 1 && said <= 3) return by_number[said] | Qt::AlignVCenter;
  if (kind == column_kind::integer || kind == column_kind::floating)
    return Qt::AlignRight | Qt::AlignVCenter;
  if (kind == column_kind::boolean || kind == column_kind::picture) return Qt::AlignCenter;
  return Qt::AlignLeft | Qt::AlignVCenter;
}

QString number_cell(const shown_column& c, outline_item item) {
  if (c.kind == column_kind::integer) {
    if (!call<&integer_outline_column_impl::has_value>(c.column, item)) return {};
    QString text = text_by<&integer_outline_column_impl::text>(c.column, item);
    if (!text.isEmpty()) return text;
    return QString::number(call<&integer_outline_column_impl::value>(c.column, item));
  }
  if (!call<&floating_outline_column_impl::has_value>(c.column, item)) return {};
  QString text = text_by<&floating_outline_column_impl::text>(c.column, item);
  if (!text.isEmpty()) return text;
  return number_text(call<&floating_outline_column_impl::value>(c.column, item),
                     call<&floating_outline_column_impl::decimals>(c.column, item));
}

QString choice_cell(const shown_column& c, outline_item item) {
  std::int32_t chosen = call<&enum_outline_column_impl::current>(c.column, item);
  if (chosen < 0) return {};
  return text_by<&enum_outline_column_impl::choice_text>(c.column, item, std::uint32_t(chosen));
}

QVariant picture_cell(const shown_column& c, outline_item item) {
  if (c.kind == column_kind::picture) {
    const QImage image = picture_by<&bitmap_outline_column_impl::picture>(c.column, item).image;
    return image.isNull() ? QVariant() : QVariant(image);
  }
  QIcon icon;
  if (c.kind == column_kind::string)
    icon = icon_by<&string_outline_column_impl::picture>(c.column, item);
  if (c.kind == column_kind::choice) {
    const std::int32_t chosen = call<&enum_outline_column_impl::current>(c.column, item);
    if (chosen >= 0)
      icon =
          icon_by<&enum_outline_column_impl::choice_picture>(c.column, item, std::uint32_t(chosen));
  }
  return icon.isNull() ? QVariant() : QVariant(icon);
}

/// The value that an editor starts with.
QVariant edited_value(const shown_column& c, outline_item item) {
  switch (c.kind) {
    case column_kind::string: {
      QStringList own = texts_by<&string_outline_column_impl::edited_text>(c.column, item);
      return own.isEmpty() ? cell_text(c, item) : own.last();
    }
    case column_kind::integer:
      return call<&integer_outline_column_impl::value>(c.column, item);
    case column_kind::floating:
      return number_text(call<&floating_outline_column_impl::value>(c.column, item), 0);
    case column_kind::choice:
      return call<&enum_outline_column_impl::current>(c.column, item);
    default:
      return cell_text(c, item);
  }
}

Qt::CheckState check_state(const shown_column& c, outline_item item) {
  if (call<&boolean_outline_column_impl::is_undecided>(c.column, item)) return Qt::PartiallyChecked;
  return call<&boolean_outline_column_impl::is_checked>(c.column, item) ? Qt::Checked
                                                                        : Qt::Unchecked;
}

bool set_number(const shown_column& c, outline_item item, const QVariant& value) {
  if (c.kind == column_kind::integer) {
    bool is_whole = false;
    const int number = value.toString().trimmed().toInt(&is_whole);
    return is_whole && call<&integer_outline_column_impl::set_value>(c.column, item, number);
  }
  const std::optional<double> number = number_of(value.toString());
  return number && *number >= call<&floating_outline_column_impl::minimum>(c.column, item) &&
         *number <= call<&floating_outline_column_impl::maximum>(c.column, item) &&
         call<&floating_outline_column_impl::set_value>(c.column, item, *number);
}

}  // namespace

shown_column read_column(handle any_kind) {
  shown_column c;
  if (!is<string_outline_column_impl>(any_kind, column_kind::string, c) &&
      !is<assisted_string_outline_column_impl>(any_kind, column_kind::assisted, c) &&
      !is<integer_outline_column_impl>(any_kind, column_kind::integer, c) &&
      !is<floating_outline_column_impl>(any_kind, column_kind::floating, c) &&
      !is<boolean_outline_column_impl>(any_kind, column_kind::boolean, c) &&
      !is<enum_outline_column_impl>(any_kind, column_kind::choice, c) &&
      !is<bitmap_outline_column_impl>(any_kind, column_kind::picture, c) &&
      !is<canvas_outline_column_impl>(any_kind, column_kind::canvas, c))
    return c;
  if (c.kind == column_kind::picture) c.sized_pictures = cast<sized_pictures_impl>(c.column);
  c.id = text_by<&any_column::id>(c.column);
  c.caption = text_by<&any_column::caption>(c.column);
  c.hint = text_by<&any_column::hint>(c.column);
  c.is_visible = call<&any_column::is_visible>(c.column);
  c.width = call<&any_column::width>(c.column);
  c.alignment = alignment_of(call<&any_column::alignment>(c.column), c.kind);
  c.is_sortable = call<&any_column::is_sortable>(c.column);
  return c;
}

QString cell_text(const shown_column& c, outline_item item) {
  switch (c.kind) {
    case column_kind::string:
      return text_by<&string_outline_column_impl::text>(c.column, item);
    case column_kind::assisted:
      return text_by<&assisted_string_outline_column_impl::text>(c.column, item);
    case column_kind::integer:
    case column_kind::floating:
      return number_cell(c, item);
    case column_kind::choice:
      return choice_cell(c, item);
    default:
      return {};
  }
}

QVariant cell_data(const shown_column& c, outline_item item, int role) {
  if (c.kind == column_kind::unknown) return {};
  switch (role) {
    case Qt::DisplayRole:
      return cell_text(c, item);
    case Qt::EditRole:
      return edited_value(c, item);
    case Qt::DecorationRole:
      return picture_cell(c, item);
    case Qt::ToolTipRole:
      return text_by<&any_column::item_hint>(c.column, item);
    case Qt::BackgroundRole:
      return color(call<&any_column::item_background>(c.column, item));
    case Qt::TextAlignmentRole:
      return QVariant::fromValue(c.alignment);
    case Qt::ForegroundRole:
      if (c.kind != column_kind::string) return {};
      return color(call<&string_outline_column_impl::text_color>(c.column, item));
    case Qt::CheckStateRole:
      if (c.kind != column_kind::boolean) return {};
      return check_state(c, item);
    default:
      return {};
  }
}

bool is_cell_enabled(const shown_column& c, outline_item item) {
  return !has_value_slots(c.kind) || call<&any_column::is_enabled>(c.column, item);
}

bool is_cell_editable(const shown_column& c, outline_item item) {
  return has_value_slots(c.kind) && call<&any_column::is_editable>(c.column, item) &&
         is_cell_enabled(c, item);
}

bool set_cell(const shown_column& c, outline_item item, const QVariant& value) {
  switch (c.kind) {
    case column_kind::string:
      return call<&string_outline_column_impl::set_text>(c.column, item,
                                                         value.toString().toStdWString().c_str());
    case column_kind::assisted:
      return call<&assisted_string_outline_column_impl::set_text>(
          c.column, item, value.toString().toStdWString().c_str());
    case column_kind::integer:
    case column_kind::floating:
      return set_number(c, item, value);
    case column_kind::boolean:
      call<&boolean_outline_column_impl::set_checked>(c.column, item, value.toInt() == Qt::Checked);
      return true;
    case column_kind::choice:
      return value.toInt() >= 0 &&
             call<&enum_outline_column_impl::set_current>(c.column, item, value.toInt());
    default:
      return false;
  }
}

}  // namespace zu::desktop
