#include "host/desktop/realiser/outline_model.h"

#include <QColor>
#include <QFont>
#include <QMimeData>
#include <algorithm>
#include <deque>

#include "host/desktop/realiser/answers.h"

namespace zu::desktop {
namespace {

/// An item's name, on the stack of whoever asks about it.
class named_item final : public outline_item_impl {
 public:
  named_item(handle parent, int row) : parent_(parent), row_(row) {}
  handle parent() override { return parent_; }
  std::uint32_t row() override { return std::uint32_t(row_); }
  outline_item item() { return outline_item(handle_of<outline_item_impl>(*this)); }

 private:
  handle parent_;
  int row_;
};

}  // namespace

struct outline_model::node {
  node* parent = nullptr;
  int row = -1;
  int count = -1;  // -1: not asked for yet
  std::unordered_map<int, std::unique_ptr<node>> inner;
};

outline_model::outline_model(outline shown, QObject* parent)
    : QAbstractItemModel(parent),
      shown_(shown),
      is_flat_(!call<&outline_impl::is_tree>(shown)),
      root_(std::make_unique<node>()) {
  columns_ = asked_columns();
  read_checks();
}
outline_model::~outline_model() = default;

std::vector<shown_column> outline_model::asked_columns() const {
  std::vector<shown_column> columns;
  auto taking = visitor<outline_column_visitor_impl, handle>(
      [&](handle column) { columns.push_back(read_column(column)); });
  for (std::uint32_t i = 0, n = call<&outline_impl::column_count>(shown_); i < n; ++i) {
    call<&outline_impl::visit_column>(shown_, i, taking.get());
    columns.resize(i + 1);  // a column that does not come is one of no known kind
  }
  return columns;
}

void outline_model::read_checks() {
  checks_ = {};
  auto taking_checks = visitor<outline_checks_visitor_impl, outline_checks>(
      [this](outline_checks checks) { checks_ = checks; });
  call<&outline_impl::visit_checks>(shown_, taking_checks.get());
}

void outline_model::refresh(bool columns) {
  if (columns) {
    std::vector<shown_column> before = columns_;
    std::vector<shown_column> now = asked_columns();
    auto same = [](const shown_column& a, const shown_column& b) {
      return a.column == b.column && a.kind == b.kind;
    };
    const bool same_all = std::equal(before.begin(), before.end(), now.begin(), now.end(), same);
    if (!same_all) {
      beginResetModel();
      root_ = std::make_unique<node>();
    }
    columns_ = std::move(now);
    read_checks();
    if (!same_all) return endResetModel();
    if (!columns_.empty()) Q_EMIT headerDataChanged(Qt::Horizontal, 0, int(columns_.size()) - 1);
  }
  if (root_->count < 0) return;  // nobody has looked yet
  refresh_counts(*root_, {});
}

void outline_model::refresh_counts(node& n, const QModelIndex& at) {
  const int before = n.count, now = int(asked_count(at));
  if (now > before) {
    beginInsertRows(at, before, now - 1);
    n.count = now;
    endInsertRows();
  } else if (now < before) {
    beginRemoveRows(at, now, before - 1);
    n.count = now;
    endRemoveRows();
    std::erase_if(n.inner, [now](const auto& entry) { return entry.first >= now; });
  }
  std::vector<int> asked;  // listeners may open others meanwhile
  for (auto& [row, inner] : n.inner)
    if (inner->count >= 0) asked.push_back(row);
  for (int row : asked) refresh_counts(*n.inner[row], index(row, 0, at));
  if (now > 0 && !columns_.empty())
    Q_EMIT dataChanged(index(0, 0, at), index(now - 1, int(columns_.size()) - 1, at));
}

void outline_model::with_item(const QModelIndex& index, item_use use) const {
  std::vector<int> path;
  if (index.isValid() && !is_flat_) {
    path.push_back(index.row());
    for (auto* n = static_cast<const node*>(index.internalPointer()); n->parent != nullptr;
         n = n->parent)
      path.push_back(n->row);
  }
  auto with_root = visitor<outline_item_visitor_impl, outline_item>([&](outline_item root) {
    if (!index.isValid()) return use(root);
    if (is_flat_) return use(named_item(root, index.row()).item());
    std::deque<named_item> names;  // whose places must not change: each names the one before it
    outline_item item = root;
    for (auto row = path.rbegin(); row != path.rend(); ++row)
      item = names.emplace_back(item, *row).item();
    use(item);
  });
  call<&outline_impl::visit_root>(shown_, with_root.get());
}

template <class result, class function>
result outline_model::ask(const QModelIndex& index, function&& what) const {
  result answer{};
  with_item(index, [&](outline_item item) { answer = what(item); });
  return answer;
}

std::uint32_t outline_model::asked_count(const QModelIndex& parent) const {
  std::uint32_t count = ask<std::uint32_t>(
      parent, [this](outline_item item) { return call<&outline_impl::item_count>(shown_, item); });
  return std::min(count, most_items);
}

outline_model::node* outline_model::node_of(const QModelIndex& index) const {
  if (!index.isValid()) return root_.get();
  auto* owner = static_cast<node*>(index.internalPointer());
  std::unique_ptr<node>& inner = owner->inner[index.row()];
  if (!inner) {
    inner = std::make_unique<node>();
    inner->parent = owner;
    inner->row = index.row();
  }
  return inner.get();
}

QModelIndex outline_model::current() const {
  QModelIndex found;
  auto taking = visitor<outline_item_visitor_impl, outline_item>([&](outline_item item) {
    std::vector<int> path;
    for (handle at = item; at; at = call<&outline_item_impl::parent>(at)) {
      path.push_back(int(std::min(call<&outline_item_impl::row>(at), most_items)));
      if (is_flat_) break;
    }
    found = {};
    for (auto row = path.rbegin(); row != path.rend(); ++row) found = index(*row, 0, found);
  });
  call<&outline_impl::current>(shown_, taking.get());
  return found;
}

bool outline_model::is_marked(const QModelIndex& index) const {
  return ask<bool>(
      index, [this](outline_item item) { return call<&outline_impl::is_marked>(shown_, item); });
}

bool outline_model::draw(const QModelIndex& index, Tzu_drwc* page) const {
  const shown_column& c = column(index.column());
  if (c.kind != column_kind::canvas) return false;
  with_item(index, [&](outline_item item) {
    call<&canvas_outline_column_impl::draw>(c.column, item, page);
  });
  return true;
}

bool outline_model::is_editable(const QModelIndex& index) const {
  return index.isValid() && (flags(index) & Qt::ItemIsEnabled) != 0 &&
         ask<bool>(index, [&](outline_item item) {
           return is_cell_editable(column(index.column()), item);
         });
}

int outline_model::rowCount(const QModelIndex& parent) const {
  if (parent.isValid() && (is_flat_ || parent.column() > 0)) return 0;
  node* n = node_of(parent);
  if (n->count < 0) n->count = int(asked_count(parent));
  return n->count;
}

int outline_model::columnCount(const QModelIndex&) const { return int(columns_.size()); }

bool outline_model::hasChildren(const QModelIndex& parent) const {
  if (!parent.isValid()) return rowCount() > 0;
  if (is_flat_ || parent.column() > 0) return false;
  return ask<bool>(
      parent, [this](outline_item item) { return call<&outline_impl::has_items>(shown_, item); });
}

QModelIndex outline_model::index(int row, int column, const QModelIndex& parent) const {
  if (row < 0 || column < 0 || column >= int(columns_.size()) || row >= rowCount(parent)) return {};
  return createIndex(row, column, node_of(parent));
}

QModelIndex outline_model::parent(const QModelIndex& index) const {
  if (!index.isValid()) return {};
  auto* owner = static_cast<node*>(index.internalPointer());
  return owner->parent == nullptr ? QModelIndex() : createIndex(owner->row, 0, owner->parent);
}

QVariant outline_model::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  return ask<QVariant>(index, [&](outline_item item) -> QVariant {
    QVariant own = cell_data(column(index.column()), item, role);
    if (role == Qt::CheckStateRole && index.column() == 0 && checks_ && !own.isValid())
      return call<&outline_checks_impl::checked>(checks_, item) ? Qt::Checked : Qt::Unchecked;
    if (role == Qt::BackgroundRole && !own.isValid()) {
      std::uint32_t argb = call<&outline_impl::item_background>(shown_, item);
      if (argb != 0) return QColor::fromRgba(argb);
    }
    if (role == Qt::FontRole) {
      const shown_column& c = column(index.column());
      QFont font;
      font.setBold(call<&outline_impl::is_item_bold>(shown_, item) ||
                   (c.kind == column_kind::string &&
                    call<&string_outline_column_impl::is_bold>(c.column, item)));
      return font.bold() ? QVariant(font) : QVariant();
    }
    return own;
  });
}

bool outline_model::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!index.isValid() || (role != Qt::EditRole && role != Qt::CheckStateRole)) return false;
  const QPersistentModelIndex at = index;  // the outline may answer with fewer items
  bool taken = false;
  with_item(index, [&](outline_item item) {
    const shown_column c = column(index.column());
    if (role == Qt::CheckStateRole && c.kind != column_kind::boolean) {
      call<&outline_checks_impl::set_checked>(checks_, item, value.toInt() == Qt::Checked);
      taken = static_cast<bool>(checks_);
    } else {
      taken = set_cell(c, item, value);
    }
  });
  if (at.isValid()) {
    Q_EMIT dataChanged(at, at);
  }
  if (taken) Q_EMIT input_happened();
  return taken;
}

QVariant outline_model::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= int(columns_.size())) return {};
  const shown_column& c = column(section);
  if (role == Qt::DisplayRole) return c.caption;
  if (role == Qt::ToolTipRole) return c.hint.isEmpty() ? c.caption : c.hint;
  if (role == Qt::TextAlignmentRole) return QVariant::fromValue(c.alignment);
  return {};
}

Qt::ItemFlags outline_model::flags(const QModelIndex& index) const {
  if (!index.isValid())
    return call<&outline_impl::can_move_marked>(shown_) ? Qt::ItemIsDropEnabled : Qt::NoItemFlags;
  return ask<Qt::ItemFlags>(index, [&](outline_item item) -> Qt::ItemFlags {
    if (call<&outline_impl::is_item_disabled>(shown_, item)) return Qt::NoItemFlags;
    const shown_column& c = column(index.column());
    Qt::ItemFlags all = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    const bool editable = is_cell_editable(c, item);
    if (c.kind == column_kind::boolean ? editable : index.column() == 0 && checks_)
      all |= Qt::ItemIsUserCheckable;
    if (c.kind != column_kind::boolean && editable) all |= Qt::ItemIsEditable;
    if (call<&outline_impl::can_move_marked>(shown_)) all |= Qt::ItemIsDragEnabled;
    if (is_flat_) all |= Qt::ItemNeverHasChildren;
    return all;
  });
}

bool outline_model::dropMimeData(const QMimeData*, Qt::DropAction, int row, int,
                                 const QModelIndex& parent) {
  const int count = rowCount(parent);
  if (count == 0) return false;
  const bool behind = row < 0 || row >= count;
  with_item(index(behind ? count - 1 : row, 0, parent),
            [&](outline_item target) { call<&outline_impl::move_marked>(shown_, target, behind); });
  Q_EMIT input_happened();
  return false;  // the outline has moved its items itself: the view is to remove none
}

}  // namespace zu::desktop
