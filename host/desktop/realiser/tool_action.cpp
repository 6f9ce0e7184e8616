// The action of each kind of tool.

#include <QActionGroup>
#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QSignalBlocker>
#include <QStyle>
#include <QToolButton>

#include "host/desktop/realiser/answers.h"
#include "host/desktop/realiser/number_box.h"
#include "host/desktop/realiser/pictures.h"
#include "host/desktop/realiser/tool_actions.h"
#include "host/desktop/realiser/tool_icons.h"
#include "host/desktop/realiser/visitors.h"

namespace zu::desktop {
namespace {

/// A picture that a tool draws for itself or for one of its items; null if it draws none.
QIcon drawn_icon(handle tool, std::int32_t item) {
  auto pictures = cast<tool_pictures_impl>(tool);
  QIcon icon;
  if (!pictures) return icon;
  const int side = QApplication::style()->pixelMetric(QStyle::PM_SmallIconSize);
  for (int scale : {1, 2}) {
    const auto pixels = std::uint32_t(side * scale);
    QImage image = picture_by<&tool_pictures_impl::visit>(pictures, item, pixels, pixels).image;
    if (image.isNull()) continue;
    image.setDevicePixelRatio(scale);
    icon.addPixmap(QPixmap::fromImage(image));
  }
  return icon;
}

/// An action with the view of a tool of one kind.
template <class tool> class action_of : public tool_action, protected link<tool> {
 public:
  action_of(const QString& id, handle h) : tool_action(id), link<tool>(h) {
    setObjectName(id);
    setShortcut(tool_shortcut(id));
    setShortcutContext(Qt::WindowShortcut);
  }
  void retranslate() override { heard(notice::language); }

 protected:
  void begin() {
    heard(notice::list);
    this->attach();
  }
  void heard(notice) override {
    handle h = this->element_;
    QString caption = text_by<&tool::caption>(h), hint = text_by<&tool::hint>(h);
    setText(caption);
    QString keys = shortcut().toString(QKeySequence::NativeText);
    setToolTip((hint.isEmpty() ? plain_name(caption) : hint) +
               (keys.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(keys)));
    setStatusTip(text_by<&tool::description>(h));
    const QIcon drawn = drawn_icon(h, -1);
    setIcon(drawn.isNull() ? tool_icon(id()) : drawn);  // of the theme in force
    setEnabled(call<&tool::enabled>(h));
    setVisible(call<&tool::visible>(h));
    set_categories(texts_by<&tool::visit_categories>(h));
  }
  void was_used() { input_reached(plain_name(text())); }
};

class simple_action final : public action_of<action_tool_impl> {
 public:
  simple_action(const QString& id, handle h) : action_of(id, h) {
    connect(this, &QAction::triggered, this, &simple_action::execute);
    begin();
  }

 private:
  void execute() {
    QPointer<QObject> alive(this);
    call<&action_tool_impl::execute>(element_);
    if (alive) was_used();
  }
};

/// Boolean and mode tools.
template <class tool> class checkable_action final : public action_of<tool> {
 public:
  checkable_action(const QString& id, handle h) : action_of<tool>(id, h) {
    this->setCheckable(true);
    QObject::connect(this, &QAction::triggered, this, &checkable_action::mark);
    this->begin();
  }

 protected:
  void heard(notice what) override {
    action_of<tool>::heard(what);
    this->setChecked(call<&tool::checked>(this->element_));
  }

 private:
  void mark(bool checked) {
    QPointer<QObject> alive(this);
    call<&tool::set_checked>(this->element_, checked);
    if (alive) heard(notice::value);
    if (alive) this->was_used();
  }
};

/// Tools with a menu of their own, and a button with it in a tool bar.
template <class tool> class menu_action : public action_of<tool> {
 public:
  menu_action(const QString& id, handle h) : action_of<tool>(id, h), menu_(new QMenu) {
    this->setMenu(menu_.get());
  }

 protected:
  QMenu* menu() { return menu_.get(); }
  QWidget* button(QWidget* parent, QToolButton::ToolButtonPopupMode mode) {
    auto* made = new QToolButton(parent);
    made->setDefaultAction(this);
    made->setPopupMode(mode);
    made->setFocusPolicy(Qt::TabFocus);
    return made;
  }

 private:
  std::unique_ptr<QMenu> menu_;
};

class category_action final : public menu_action<category_tool_impl> {
 public:
  category_action(const QString& id, handle h) : menu_action(id, h) {
    // What is in it is asked when somebody looks.
    connect(menu(), &QMenu::aboutToShow, this, &category_action::fill);
    begin();
  }

 protected:
  QWidget* createWidget(QWidget* parent) override {
    return qobject_cast<QMenu*>(parent) != nullptr ? nullptr
                                                   : button(parent, QToolButton::InstantPopup);
  }

 private:
  void fill() {
    menu()->clear();
    std::vector<std::shared_ptr<tool_action>> now;
    visit_tools<&category_tool_impl::visit_tools>(
        [&](const QString& id, handle tool) {
          if (auto action = tool_action::of_tool(id, tool)) now.push_back(std::move(action));
        },
        element_);
    tools_ = std::move(now);
    for (const auto& action : tools_) {
      action->retranslate();  // one that was there before may show something else by now
      menu()->addAction(action.get());
    }
  }

  std::vector<std::shared_ptr<tool_action>> tools_;
};

class integer_action final : public action_of<integer_tool_impl> {
 public:
  integer_action(const QString& id, handle h) : action_of(id, h) { begin(); }

 protected:
  void heard(notice what) override {
    action_of::heard(what);
    const QList<QWidget*> made = createdWidgets();
    for (QWidget* control : made) show_in(control, what);
  }
  QWidget* createWidget(QWidget* parent) override {
    auto* row = new QWidget(parent);
    auto* line = new QHBoxLayout(row);
    bool in_menu = qobject_cast<QMenu*>(parent) != nullptr;
    line->setContentsMargins(in_menu ? layout_unit(row) : 0, 0, in_menu ? layout_unit(row) : 0, 0);
    auto* label = new QLabel(row);
    auto* box = new number_box(calls(), row);
    label->setBuddy(box);
    line->addWidget(label);
    line->addWidget(box);
    row->setFocusProxy(box);
    show_in(row, notice::value);
    return row;
  }

 private:
  void show_in(QWidget* row, notice what) {
    auto* label = row->findChild<QLabel*>();
    auto* box = row->findChild<number_box*>();
    if (label == nullptr || box == nullptr) return;
    label->setText(text());
    box->setAccessibleName(plain_name(text()));
    box->setToolTip(toolTip());
    box->set_characters(5);
    box->refresh(what == notice::value);
  }
  number_box::number_calls calls() {
    handle h = element_;
    return {[h] { return double(call<&integer_tool_impl::value>(h)); },
            [h] { return double(call<&integer_tool_impl::minimum>(h)); },
            [h] { return double(call<&integer_tool_impl::maximum>(h)); },
            [] { return 1.0; },
            [h](double value) {
              return std::abs(value) <= 2147483647.0 &&
                     call<&integer_tool_impl::set_value>(h, std::int32_t(value));
            },
            [] {},  // a tool's number is meant as soon as it is set
            [](double value) { return QString::number(value, 'f', 0); },
            true};
  }
};

class list_action final : public menu_action<list_tool_impl> {
 public:
  list_action(const QString& id, handle h) : menu_action(id, h) { begin(); }

 protected:
  void heard(notice what) override {
    menu_action::heard(what);
    if (what == notice::list || what == notice::language) fill();
    int current = call<&list_tool_impl::current>(element_);
    const QList<QAction*> entries = menu()->actions();
    for (int i = 0; i < entries.size(); ++i) entries[i]->setChecked(i == current);
    const QList<QWidget*> made = createdWidgets();
    for (QWidget* control : made)
      if (auto* box = qobject_cast<QComboBox*>(control)) show_in(box, what);
  }
  QWidget* createWidget(QWidget* parent) override {
    if (qobject_cast<QMenu*>(parent) != nullptr) return nullptr;
    auto* box = new QComboBox(parent);
    box->setObjectName(id());
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    connect(box, &QComboBox::activated, this, &list_action::choose);
    show_in(box, notice::list);
    return box;
  }

 private:
  void fill() {
    for (QAction* old : menu()->actions()) old->deleteLater();
    menu()->clear();
    for (std::uint32_t i = 0, n = call<&list_tool_impl::count>(element_); i < n; ++i) {
      auto* entry = new QAction(text_by<&list_tool_impl::item_text>(element_, i), menu());
      menu()->addAction(entry);
      entry->setCheckable(true);
      connect(entry, &QAction::triggered, this, [this, i] { choose(int(i)); });
    }
  }
  void show_in(QComboBox* box, notice what) {
    QSignalBlocker quiet(box);
    if (what == notice::list || what == notice::language) {
      box->clear();
      for (QAction* entry : menu()->actions()) box->addItem(entry->text());
    }
    box->setToolTip(toolTip());
    box->setAccessibleName(plain_name(text()));
    box->setCurrentIndex(call<&list_tool_impl::current>(element_));
  }
  void choose(int index) {
    QPointer<QObject> alive(this);
    call<&list_tool_impl::set_current>(element_, std::int32_t(index));
    if (alive) heard(notice::value);
    if (alive) was_used();
  }
};

class multiaction_action final : public menu_action<multiaction_tool_impl> {
 public:
  multiaction_action(const QString& id, handle h) : menu_action(id, h) {
    connect(this, &QAction::triggered, this, [this] { execute(0); });
    begin();
  }

 protected:
  void heard(notice what) override {
    menu_action::heard(what);
    if (what != notice::list && what != notice::language) return;
    for (QAction* old : menu()->actions()) old->deleteLater();
    menu()->clear();
    for (std::uint32_t i = 0, n = call<&multiaction_tool_impl::count>(element_); i < n; ++i) {
      auto* entry = new QAction(text_by<&multiaction_tool_impl::item_text>(element_, i), menu());
      entry->setIcon(drawn_icon(element_, std::int32_t(i)));
      menu()->addAction(entry);
      connect(entry, &QAction::triggered, this, [this, i] { execute(i); });
    }
  }
  QWidget* createWidget(QWidget* parent) override {
    return qobject_cast<QMenu*>(parent) != nullptr ? nullptr
                                                   : button(parent, QToolButton::MenuButtonPopup);
  }

 private:
  void execute(std::uint32_t index) {
    QPointer<QObject> alive(this);
    call<&multiaction_tool_impl::execute>(element_, index);
    if (alive) was_used();
  }
};

template <class tool, class action>
std::shared_ptr<tool_action> made_for(const QString& id, handle h) {
  auto own = cast<tool>(h);
  return own ? std::make_shared<action>(id, own) : nullptr;
}

}  // namespace

std::shared_ptr<tool_action> tool_action::of_tool(const QString& id, handle tool) {
  static QHash<const void*, std::weak_ptr<tool_action>> living;
  handle polymorphic = to_polymorphic(tool);
  if (auto kept = living.value(polymorphic.instance).lock()) return kept;
  using maker = std::shared_ptr<tool_action> (*)(const QString&, handle);
  static const maker makers[] = {
      made_for<action_tool_impl, simple_action>,
      made_for<boolean_tool_impl, checkable_action<boolean_tool_impl>>,
      made_for<mode_tool_impl, checkable_action<mode_tool_impl>>,
      made_for<category_tool_impl, category_action>,
      made_for<integer_tool_impl, integer_action>,
      made_for<list_tool_impl, list_action>,
      made_for<multiaction_tool_impl, multiaction_action>,
  };
  for (maker make : makers) {
    auto action = make(id, tool);
    if (!action) continue;
    living.removeIf([](auto& entry) { return entry.value().expired(); });
    living.insert(polymorphic.instance, action);
    return action;
  }
  return nullptr;
}

}  // namespace zu::desktop
