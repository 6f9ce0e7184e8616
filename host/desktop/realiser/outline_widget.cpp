#include "host/desktop/realiser/outline_widget.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QScrollBar>
#include <QTreeView>
#include <QVBoxLayout>
#include <algorithm>

#include "host/desktop/realiser/realiser.h"

namespace zu::desktop {
namespace {

/// Rows whose contents decide on widths and heights.
constexpr int sampled_rows = 100;
/// What a column gets by its contents alone, in characters.
constexpr int widest_fitted = 40;

/// Unlike its base it makes no item current that nobody has chosen.
class tree_view final : public QTreeView {
 public:
  using QTreeView::QTreeView;

 protected:
  void focusInEvent(QFocusEvent* event) override {
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
  }
};

QString width_name(const shown_column& c) { return QStringLiteral("column/") + c.id; }
QString hidden_name(const shown_column& c) { return QStringLiteral("hidden_column/") + c.id; }
bool is_hidden_by_person(const shown_column& c) {
  return !c.id.isEmpty() && !choice(hidden_name(c)).isEmpty();
}

}  // namespace

outline_widget::outline_widget(handle shown, QWidget* parent)
    : realised(shown, parent),
      model_(new outline_model(outline(shown), this)),
      delegate_(new outline_delegate(model_, this)),
      empty_text_(new QLabel) {
  setObjectName(QStringLiteral("outline"));
  make_view();
  view_->setObjectName(QStringLiteral("outline_view"));
  view_->setModel(model_);
  view_->setItemDelegate(delegate_);
  view_->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked |
                         QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
  view_->installEventFilter(this);
  auto* inside = new QVBoxLayout(this);
  inside->setContentsMargins(0, 0, 0, 0);
  inside->addWidget(view_);
  setFocusProxy(view_);

  auto* over = new QVBoxLayout(view_->viewport());
  over->addWidget(empty_text_);
  empty_text_->setObjectName(QStringLiteral("empty_text"));
  empty_text_->setAlignment(Qt::AlignCenter);
  empty_text_->setWordWrap(true);
  empty_text_->setEnabled(false);
  empty_text_->setAttribute(Qt::WA_TransparentForMouseEvents);

  choice_ = new outline_choice(outline(shown), model_, view_);
  connect_inputs();
  begin();
}

outline_widget::~outline_widget() {
  delete view_;  // while the outline may still be asked: an editor that goes may ask
}

void outline_widget::make_view() {
  if (model_->is_flat()) {
    view_ = flat_ = new flat_view(this);
    flat_->set_cells_for_all_chosen([this](const QModelIndex& index) {
      return model_->column(index.column()).kind == column_kind::picture;
    });
    return;
  }
  view_ = tree_ = new tree_view(this);
  tree_->setUniformRowHeights(true);
  tree_->setAllColumnsShowFocus(false);
  tree_->setSelectionBehavior(QAbstractItemView::SelectRows);
  tree_->setExpandsOnDoubleClick(false);
  tree_->header()->setSectionsMovable(false);
  tree_->header()->setHighlightSections(false);
}

QHeaderView* outline_widget::header() const {
  return flat_ != nullptr ? flat_->header() : tree_->header();
}

void outline_widget::connect_inputs() {
  connect(view_, &QAbstractItemView::clicked, this, &outline_widget::clicked);
  connect(view_, &QAbstractItemView::doubleClicked, this, &outline_widget::activate);
  connect(model_, &outline_model::input_happened, this, &outline_widget::input_happened);
  connect(choice_, &outline_choice::input_happened, this, &outline_widget::input_happened);
  if (flat_ != nullptr)
    connect(flat_, &flat_view::rows_in_sight_changed, choice_,
            &outline_choice::show_marks_in_sight);
  if (tree_ != nullptr)
    connect(model_, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex& parent) { open_items(parent); });
  connect(header(), &QHeaderView::sectionClicked, this, [this](int section) {
    if (!model_->column(section).is_sortable) return;
    const bool shift = QApplication::keyboardModifiers().testFlag(Qt::ShiftModifier);
    call<&outline_impl::caption_clicked>(element_, std::uint32_t(section), shift);
    show_look();
    input_happened();
  });
  header()->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(header(), &QWidget::customContextMenuRequested, this, &outline_widget::open_columns_menu);
  connect(header(), &QHeaderView::sectionHandleDoubleClicked, this,
          [this](int section) { header()->resizeSection(section, fitting_width(section)); });
  connect(header(), &QHeaderView::sectionResized, this, [this](int section, int, int size) {
    // By hand: what the layout does is not a person's wish.
    if (QApplication::mouseButtons() != Qt::LeftButton || !header()->underMouse()) return;
    if (!model_->column(section).id.isEmpty())
      keep_choice(width_name(model_->column(section)), QString::number(size));
  });
}

void outline_widget::open_columns_menu(const QPoint& at) {
  QMenu menu;
  menu.setObjectName(QStringLiteral("columns_menu"));
  for (int i = 0; i < model_->columnCount(); ++i) {
    const shown_column& c = model_->column(i);
    if (!c.is_visible || c.id.isEmpty() || c.caption.isEmpty()) continue;
    QAction* shown = menu.addAction(c.caption);
    shown->setCheckable(true);
    shown->setChecked(!header()->isSectionHidden(i));
    // The last one stays: without columns there is no way back to this menu. So does the one with
    // the rows' checks.
    const bool is_last = header()->count() - header()->hiddenSectionCount() == 1;
    shown->setEnabled(header()->isSectionHidden(i) ||
                      (!is_last && !(i == 0 && model_->has_checks())));
    connect(shown, &QAction::toggled, this, [this, i, name = hidden_name(c)](bool wanted) {
      keep_choice(name, wanted ? QString() : QStringLiteral("1"));
      header()->setSectionHidden(i, !wanted);
    });
  }
  if (menu.actions().size() > 1) menu.exec(header()->mapToGlobal(at));
}

void outline_widget::heard(notice what) {
  if (what == notice::list || what == notice::language) {
    choice_->while_items_change([this] { model_->refresh(true); });
    show_columns();
    if (what == notice::list && tree_ != nullptr) open_items({});
  } else if (what == notice::all) {
    choice_->while_items_change([this] { model_->refresh(false); });
    is_fitted_ = false;
    if (isVisible()) fit_columns();
  }
  if (what != notice::value) show_look();
  choice_->show();
}

void outline_widget::show_look() {
  setToolTip(text_by<&outline_impl::visit_hint>(element_));
  view_->setEnabled(!call<&outline_impl::is_disabled>(element_));
  const std::uint32_t mode = call<&outline_impl::selection_mode>(element_);
  view_->setSelectionMode(mode == outline_chooses_none   ? QAbstractItemView::NoSelection
                          : mode == outline_chooses_many ? QAbstractItemView::ExtendedSelection
                                                         : QAbstractItemView::SingleSelection);
  view_->setAlternatingRowColors(call<&outline_impl::alternates_rows>(element_));
  const bool can_move = call<&outline_impl::can_move_marked>(element_);
  view_->setDragDropMode(can_move ? QAbstractItemView::InternalMove
                                  : QAbstractItemView::NoDragDrop);
  header()->setVisible((call<&outline_impl::attributes>(element_) & outline_shows_captions) != 0);
  const std::int32_t order = call<&outline_impl::sort_order>(element_);
  header()->setSortIndicatorShown(order != 0);
  if (order != 0)
    header()->setSortIndicator(std::abs(order) - 1,
                               order > 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
  if (tree_ != nullptr) {
    const std::int32_t bearing = call<&outline_impl::tree_column>(element_);
    tree_->setTreePosition(std::max(bearing, 0));
    tree_->setRootIsDecorated(bearing >= 0);
  }
  if (flat_ != nullptr) {
    flat_->set_lines(call<&outline_impl::shows_lines>(element_));
    flat_->set_row_height(fitting_row_height());
  }
  show_empty_text();
  updateGeometry();
}

void outline_widget::show_columns() {
  bool any_sortable = false;
  for (int i = 0; i < header()->count(); ++i) {
    header()->setSectionHidden(
        i, !model_->column(i).is_visible || is_hidden_by_person(model_->column(i)));
    any_sortable = any_sortable || model_->column(i).is_sortable;
  }
  header()->setSectionsClickable(any_sortable);
  header()->setSectionResizeMode(call<&outline_impl::can_resize_columns>(element_)
                                     ? QHeaderView::Interactive
                                     : QHeaderView::Fixed);
  const int spare = spare_column();
  header()->setStretchLastSection(spare < 0);
  if (spare >= 0) header()->setSectionResizeMode(spare, QHeaderView::Stretch);
  is_fitted_ = false;
  if (isVisible()) fit_columns();
}

int outline_widget::spare_column() const {
  const bool has_captions =
      (call<&outline_impl::attributes>(element_) & outline_shows_captions) != 0;
  const int last = model_->columnCount() - 1;
  if (flat_ != nullptr && !has_captions && last >= 0 && !header()->isSectionHidden(last) &&
      model_->column(last).kind == column_kind::string)
    return last;
  int found = -1;
  bool any_wish = false;
  for (int i = 0; i < model_->columnCount(); ++i) {
    const shown_column& c = model_->column(i);
    if (header()->isSectionHidden(i)) continue;
    any_wish = any_wish || c.width > 0;
    if (c.width > 0 || (c.kind != column_kind::string && c.kind != column_kind::assisted)) continue;
    if (found >= 0) return -1;
    found = i;
  }
  return any_wish ? found : -1;
}

void outline_widget::show_empty_text() {
  const QString text = text_by<&outline_impl::visit_empty_text>(element_);
  empty_text_->setText(text);
  empty_text_->setVisible(!text.isEmpty() && model_->rowCount() == 0);
}

int outline_widget::fitting_width(int column) const {
  int width = header()->isVisibleTo(view_) ? header()->sectionSizeHint(column) : 0;
  if (tree_ != nullptr) {
    width = std::max(width, view_->sizeHintForColumn(column));
    return std::min(width, characters(this, widest_fitted));
  }
  QStyleOptionViewItem option;
  option.initFrom(view_);
  const int first = flat_->first_row();
  const int last = std::min(model_->rowCount() - 1, first + sampled_rows);
  for (int row = first; row <= last; ++row)
    width = std::max(width, delegate_->sizeHint(option, model_->index(row, column)).width());
  return std::min(width, characters(this, widest_fitted));
}

int outline_widget::fitting_row_height() const {
  const std::uint32_t lines = std::clamp(call<&outline_impl::lines_per_row>(element_), 1u, 4u);
  int height = int(lines) * fontMetrics().height() + 6;
  QStyleOptionViewItem option;
  option.initFrom(view_);
  const int rows = std::min(model_->rowCount(), 3);
  for (int c = 0; c < model_->columnCount(); ++c) {
    const column_kind kind = model_->column(c).kind;
    if (kind != column_kind::picture && kind != column_kind::canvas) continue;
    for (int row = 0; row < rows; ++row)
      height = std::max(height, delegate_->sizeHint(option, model_->index(row, c)).height());
  }
  return height;
}

void outline_widget::fit_columns() {
  if (is_fitted_ || model_->columnCount() == 0) return;
  is_fitted_ = model_->rowCount() > 0;  // an empty list is fitted again with its first items
  for (int i = 0; i < model_->columnCount(); ++i) {
    const shown_column& c = model_->column(i);
    const int chosen = c.id.isEmpty() ? 0 : choice(width_name(c)).toInt();
    const int wished = c.width > 0 ? int(std::min(c.width, 1000u)) * layout_unit(this) : 0;
    // A caption in full, if it takes half as much again at most; numbers and texts up to double.
    const int captioned = std::min(header()->sectionSizeHint(i), wished * 3 / 2);
    const bool is_text = c.kind <= column_kind::floating;
    const int filled = is_text ? std::min(fitting_width(i), wished * 2) : 0;
    const int width = chosen > 0   ? chosen
                      : wished > 0 ? std::max({wished, captioned, filled})
                                   : fitting_width(i);
    header()->resizeSection(i, std::max(width, header()->minimumSectionSize()));
  }
  // The last one gives back what it got beyond its caption before anything scrolls sidewards.
  const int last = header()->logicalIndex(header()->count() - 1);
  const int excess = header()->length() - view_->viewport()->width();
  if (header()->stretchLastSection() && excess > 0 &&
      header()->sectionSize(last) - excess >= header()->sectionSizeHint(last))
    header()->resizeSection(last, header()->sectionSize(last) - excess);
}

void outline_widget::showEvent(QShowEvent* event) {
  realised::showEvent(event);
  fit_columns();
}

void outline_widget::changeEvent(QEvent* event) {
  realised::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
    if (flat_ != nullptr) flat_->set_row_height(fitting_row_height());
    show_columns();
  }
}

void outline_widget::open_items(const QModelIndex& parent) {
  for (int row = 0, rows = model_->rowCount(parent); row < rows; ++row) {
    const QModelIndex index = model_->index(row, 0, parent);
    bool open = false;
    model_->with_item(
        index, [&](outline_item item) { open = call<&outline_impl::is_open>(element_, item); });
    if (!open || tree_->isExpanded(index)) continue;
    tree_->expand(index);
    open_items(index);
  }
}

void outline_widget::clicked(const QModelIndex& index) {
  if (!index.isValid() || (model_->flags(index) & Qt::ItemIsEnabled) == 0 ||
      model_->is_editable(index))
    return;
  const handle column = model_->column(index.column()).column;
  const QPointer<outline_widget> self = this;
  model_->with_item(index, [&](outline_item item) {
    // The slot is the same in columns of all kinds.
    call<&string_outline_column_impl::click>(column, item);
  });
  if (self) input_happened();
}

void outline_widget::activate(const QModelIndex& index) {
  if (!index.isValid() || (model_->flags(index) & Qt::ItemIsEnabled) == 0 ||
      model_->is_editable(index))
    return;
  if (tree_ != nullptr && model_->hasChildren(index.siblingAtColumn(0)))
    tree_->setExpanded(index.siblingAtColumn(0), !tree_->isExpanded(index.siblingAtColumn(0)));
  const QPointer<outline_widget> self = this;
  model_->with_item(index,
                    [&](outline_item item) { call<&outline_impl::activate>(element_, item); });
  if (self) input_happened();
}

void outline_widget::toggle_checks() {
  const QModelIndex current = view_->currentIndex().siblingAtColumn(0);
  const QVariant wanted =
      current.data(Qt::CheckStateRole).toInt() == Qt::Checked ? Qt::Unchecked : Qt::Checked;
  QModelIndexList rows = view_->selectionModel()->selectedRows();
  if (!rows.contains(current)) rows = {current};
  for (const QModelIndex& row : rows)
    if (row.data(Qt::CheckStateRole) != wanted) model_->setData(row, wanted, Qt::CheckStateRole);
}

bool outline_widget::edit_in_row(const QModelIndex& row) {
  for (int column = 0; column < model_->columnCount(); ++column) {
    const QModelIndex cell = row.siblingAtColumn(column);
    const bool is_typed = model_->column(column).kind != column_kind::boolean;
    if (!is_typed || header()->isSectionHidden(column) || !model_->is_editable(cell)) continue;
    view_->edit(cell);
    return true;
  }
  return false;
}

bool outline_widget::key_pressed(QKeyEvent* event) {
  const QModelIndex current = view_->currentIndex();
  if (!current.isValid() || (model_->flags(current) & Qt::ItemIsEnabled) == 0) return false;
  const column_kind kind = model_->column(current.column()).kind;
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      activate(current);
      return false;  // a dialog's default button hears of it too
    case Qt::Key_F2:
      if (model_->is_editable(current)) return false;
      return delegate_->press_button(current) || (tree_ != nullptr && edit_in_row(current));
    case Qt::Key_Space:
      if (kind == column_kind::picture || kind == column_kind::canvas) {
        clicked(current);
        return true;
      }
      if (kind == column_kind::boolean || !model_->has_checks()) return false;
      toggle_checks();
      return true;
    default:
      return false;
  }
}

bool outline_widget::eventFilter(QObject* watched, QEvent* event) {
  if (watched == view_ && event->type() == QEvent::KeyPress)
    return key_pressed(static_cast<QKeyEvent*>(event));
  return realised::eventFilter(watched, event);
}

void outline_widget::input_happened() { input_reached_later(name_of(this)); }

int outline_widget::rows_height(int rows) const {
  const int row = flat_ != nullptr ? flat_->row_height() : fontMetrics().height() + 6;
  const int captions = header()->isVisibleTo(view_) ? header()->sizeHint().height() : 0;
  return captions + rows * row + 2 * view_->frameWidth();
}

QSize outline_widget::sizeHint() const {
  const int rows = int(std::min(call<&outline_impl::visible_rows>(element_), 100u));
  const int width = int(std::min(call<&outline_impl::width>(element_), 400u));
  return QSize(width > 0
                   ? width * layout_unit(this)
                   : std::clamp(header()->length(), characters(this, 24), characters(this, 100)),
               rows_height(rows > 0 ? rows : 8));
}

QSize outline_widget::minimumSizeHint() const {
  return QSize(characters(this, 12), rows_height(3));
}

}  // namespace zu::desktop
