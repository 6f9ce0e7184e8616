#include "host/desktop/realiser/layouts.h"

#include <QLabel>
#include <QPointer>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "host/desktop/realiser/builders.h"
#include "host/desktop/realiser/docker.h"
#include "host/desktop/realiser/visitors.h"

namespace zu::desktop {
namespace {

// More than a person can look at is somebody's mistake.
constexpr std::uint32_t most_cells = 1000;

int bounded(std::uint32_t count) { return int(std::min(count, most_cells)); }

/// The control itself, or those in it, that a key can reach.
QList<QWidget*> reachable(QWidget* control) {
  if (control->focusPolicy() & Qt::TabFocus) return {control};
  QList<QWidget*> inner = control->findChildren<QWidget*>();
  inner.removeIf([](const QWidget* child) {
    return !(child->focusPolicy() & Qt::TabFocus) || child->focusProxy() != nullptr;
  });
  return inner;
}

/// Ends what stands in a control, so that elements lose their views before the element around them:
/// that one may end itself and them.
void end_children(QWidget* control) {
  qDeleteAll(control->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
}

}  // namespace

grid_layout_widget::grid_layout_widget(handle element, QWidget* parent)
    : realised(element, parent), grid_(new QGridLayout(this)) {
  grid_->setContentsMargins(0, 0, 0, 0);
  columns_ = bounded(call<&grid_layout_impl::column_count>(element));
  rows_ = bounded(call<&grid_layout_impl::row_count>(element));
  // Row by row: so the tab key goes, too.
  for (int row = 0; row < rows_; ++row)
    for (int column = 0; column < columns_; ++column) place(column, row);
  name_controls();
  begin();
}

grid_layout_widget::~grid_layout_widget() { end_children(this); }

void grid_layout_widget::place(int column, int row) {
  auto c = std::uint32_t(column), r = std::uint32_t(row);
  visit_elements<&grid_layout_impl::visit_cell>(
      [&](handle child) {
        auto span = [](std::uint32_t wanted, int room) {
          return std::clamp(bounded(wanted), 1, room);
        };
        cell placed{column, row,
                    span(call<&grid_layout_impl::column_span>(element_, c, r), columns_ - column),
                    span(call<&grid_layout_impl::row_span>(element_, c, r), rows_ - row),
                    realise(child, this)};
        grid_->addWidget(placed.control, row, column, placed.rows, placed.columns);
        cells_.push_back(placed);
      },
      element_, c, r);
}

void grid_layout_widget::name_controls() {
  for (const cell& first : cells_) {
    auto* label = qobject_cast<QLabel*>(first.control);
    if (label == nullptr || label->objectName() != QLatin1String("label")) continue;
    auto next = std::find_if(cells_.begin(), cells_.end(), [&](const cell& other) {
      return other.row == first.row && other.column == first.column + first.columns;
    });
    if (next == cells_.end() || qobject_cast<QLabel*>(next->control) != nullptr) continue;
    const QList<QWidget*> controls = reachable(next->control);
    if (controls.isEmpty()) continue;
    label->setBuddy(controls.front());
    // A number and its slider share the label; what has a name of its own keeps it.
    for (QWidget* each : controls)
      if (each == controls.front() || each->accessibleName().isEmpty())
        each->setAccessibleName(plain_name(label->text()));
    // Beside something high a label stands at its first line.
    if (next->control->sizePolicy().verticalPolicy() & QSizePolicy::ExpandFlag)
      grid_->setAlignment(label, Qt::AlignTop);
  }
}

bool grid_layout_widget::any_visible(const cell& placed) const {
  bool column = false, row = false;
  for (int i = 0; i < placed.columns; ++i)
    column |= call<&grid_layout_impl::column_visible>(element_, std::uint32_t(placed.column + i));
  for (int i = 0; i < placed.rows; ++i)
    row |= call<&grid_layout_impl::row_visible>(element_, std::uint32_t(placed.row + i));
  return column && row;
}

int grid_layout_widget::least_width(int column) const {
  int size = bounded(call<&grid_layout_impl::column_size>(element_, std::uint32_t(column)));
  return std::max(size * layout_unit(this), column == 0 ? aligned_ : 0);
}

int grid_layout_widget::label_width() const {
  int width = 0;
  for (const cell& placed : cells_) {
    if (placed.column > 0 || placed.columns > 1 || placed.control->isHidden()) continue;
    auto* label = qobject_cast<QLabel*>(placed.control);
    if (label == nullptr || label->buddy() == nullptr) return 0;
    width = std::max({width, label->sizeHint().width(), label->minimumWidth()});
  }
  return width;
}

int grid_layout_widget::width_beside_labels() const {
  int labels = grid_->columnMinimumWidth(0);
  for (const cell& placed : cells_)
    if (placed.column == 0 && placed.columns == 1 && !placed.control->isHidden())
      labels = std::max(
          {labels, placed.control->minimumSizeHint().width(), placed.control->minimumWidth()});
  return minimumSizeHint().width() - labels;
}

bool grid_layout_widget::align_labels(int width) {
  if (width == aligned_) return false;
  aligned_ = width;
  if (call<&grid_layout_impl::column_visible>(element_, 0u))
    grid_->setColumnMinimumWidth(0, least_width(0));
  return true;
}

void grid_layout_widget::heard(notice what) {
  if (what == notice::language) return;
  for (const cell& placed : cells_)
    set_hidden(placed.control, hidden_by::place, !any_visible(placed));
  int unit = layout_unit(this);
  bool wide = false, high = false;
  for (int i = 0; i < columns_; ++i) {
    auto c = std::uint32_t(i);
    bool shown = call<&grid_layout_impl::column_visible>(element_, c);
    bool stretches = shown && call<&grid_layout_impl::column_stretch>(element_, c);
    grid_->setColumnStretch(i, stretches ? 1 : 0);
    grid_->setColumnMinimumWidth(i, shown ? least_width(i) : 0);
    wide |= stretches;
  }
  for (int i = 0; i < rows_; ++i) {
    auto r = std::uint32_t(i);
    bool shown = call<&grid_layout_impl::row_visible>(element_, r);
    bool stretches = shown && call<&grid_layout_impl::row_stretch>(element_, r);
    grid_->setRowStretch(i, stretches ? 1 : 0);
    int size = bounded(call<&grid_layout_impl::row_size>(element_, r));
    grid_->setRowMinimumHeight(i, shown ? size * unit : 0);
    high |= stretches;
  }
  if (int gap = bounded(call<&grid_layout_impl::spacing>(element_)); gap > 0)
    grid_->setSpacing(gap * unit);
  bool grows = high;
  for (int i = 0; i < grid_->count() && !grows; ++i)
    grows = !grid_->itemAt(i)->isEmpty() &&
            (grid_->itemAt(i)->expandingDirections() & Qt::Vertical) != 0;
  grid_->setAlignment(grows || rows_ == 1 ? Qt::Alignment() : Qt::AlignTop);
  setSizePolicy(wide ? QSizePolicy::Expanding : QSizePolicy::Preferred,
                high ? QSizePolicy::Expanding : QSizePolicy::Preferred);
}

groupbox_widget::groupbox_widget(handle element, QWidget* parent) : realised(element, parent) {
  setObjectName(QStringLiteral("groupbox"));
  setLayout(new QVBoxLayout);
  if (handle inner = call<&groupbox_impl::layout>(element))
    layout()->addWidget(realise(inner, this));
  connect(this, &QGroupBox::clicked, this, &groupbox_widget::mark);
  begin();
}

groupbox_widget::~groupbox_widget() { end_children(this); }

void groupbox_widget::mark(bool checked) {
  QPointer<QObject> alive(this);
  call<&groupbox_impl::set_checked>(element_, checked);
  if (alive) heard(notice::value);
  if (alive) input_reached(name_of(this, title()));
}

void groupbox_widget::heard(notice) {
  setTitle(text_by<&groupbox_impl::caption>(element_));
  setToolTip(text_by<&groupbox_impl::hint>(element_));
  setCheckable(call<&groupbox_impl::checkable>(element_));
  if (isCheckable()) setChecked(call<&groupbox_impl::checked>(element_));
}

stack_layout_widget::stack_layout_widget(handle element, QWidget* parent)
    : realised(element, parent) {
  setObjectName(QStringLiteral("stack"));
  for (int i = 0, n = bounded(call<&stack_layout_impl::count>(element)); i < n; ++i) {
    QWidget* page = nullptr;
    visit_elements<&stack_layout_impl::visit_page>(
        [&](handle child) { page = realise(child, this); }, element, std::uint32_t(i));
    addWidget(page != nullptr ? page : new QWidget(this));
  }
  begin();
}

stack_layout_widget::~stack_layout_widget() { end_children(this); }

void stack_layout_widget::heard(notice) {
  setCurrentIndex(bounded(call<&stack_layout_impl::current>(element_)));
}

tab_layout_widget::tab_layout_widget(handle element, QWidget* parent) : realised(element, parent) {
  setObjectName(QStringLiteral("tabs"));
  for (int i = 0, n = bounded(call<&tab_layout_impl::count>(element)); i < n; ++i)
    visit_dockers<&tab_layout_impl::visit_tab>(
        [&](const QString& id, docker page) { add(id, page); }, element, std::uint32_t(i));
  open_last();
  connect(this, &QTabWidget::currentChanged, this, &tab_layout_widget::chosen);
  begin();
}

tab_layout_widget::~tab_layout_widget() {
  QSignalBlocker quiet(this);
  while (count() > 0) delete widget(0);
}

void tab_layout_widget::add(const QString& id, docker page) {
  auto* panel = new realised_docker(page, this);
  int index = addTab(panel, panel->icon(), panel->title());
  ids_.push_back(id);
  connect(panel, &realised_docker::title_changed, this, [this, index, panel] {
    setTabText(index, panel->title());
    setTabIcon(index, panel->icon());
  });
}

void tab_layout_widget::open_last() {
  if (ids_.empty()) return;
  auto last = std::find(ids_.begin(), ids_.end(), choice(QStringLiteral("tab/") + ids_.front()));
  if (last == ids_.end()) return;
  int index = int(last - ids_.begin());
  if (index != call<&tab_layout_impl::current>(element_))
    call<&tab_layout_impl::set_current>(element_, std::int32_t(index));
}

void tab_layout_widget::chosen(int index) {
  if (index < 0 || std::size_t(index) >= ids_.size()) return;
  keep_choice(QStringLiteral("tab/") + ids_.front(), ids_[std::size_t(index)]);
  QString name = tabText(index);
  QPointer<QObject> alive(this);
  call<&tab_layout_impl::set_current>(element_, std::int32_t(index));
  if (alive) heard(notice::value);
  if (alive) input_reached(name);
}

void tab_layout_widget::heard(notice what) {
  if (what == notice::language) return;  // the panels tell of their titles
  QSignalBlocker quiet(this);
  setCurrentIndex(call<&tab_layout_impl::current>(element_));
}

std::span<const builder> layout_builders() {
  static const builder rows[] = {
      builder_of<grid_layout_impl, grid_layout_widget>(),
      builder_of<groupbox_impl, groupbox_widget>(),
      builder_of<stack_layout_impl, stack_layout_widget>(),
      builder_of<tab_layout_impl, tab_layout_widget>(),
  };
  return rows;
}

}  // namespace zu::desktop
