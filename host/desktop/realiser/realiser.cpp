#include "host/desktop/realiser/realiser.h"

#include <QApplication>
#include <QEvent>
#include <QHash>
#include <QLabel>
#include <QTimer>
#include <algorithm>

#include "host/desktop/realiser/builders.h"
#include "host/desktop/realiser/context_menu.h"
#include "host/desktop/words.h"
#include "zu/tools.h"

namespace zu::desktop {
namespace {

std::function<void(const QString&)> listener;

choice_store of_this_run() {
  auto kept = std::make_shared<QHash<QString, QString>>();
  return {[kept](const QString& name) { return kept->value(name); },
          [kept](const QString& name, const QString& value) { kept->insert(name, value); }};
}
choice_store& store() {
  static choice_store kept = of_this_run();
  return kept;
}

const std::vector<builder>& table() {
  static const std::vector<builder> all = [] {
    std::vector<builder> joined;
    for (auto part :
         {layout_builders(), docker_builders(), button_builders(), button_box_builders(),
          text_builders(), line_builders(), multiline_builders(), number_builders(),
          dropdown_builders(), canvas_builders(), histogram_builders(), toolbar_builders(),
          outline_builders(), viewer_builders()})
      joined.insert(joined.end(), part.begin(), part.end());
    return joined;
  }();
  return all;
}

/// An element that nobody here knows.
class unknown_element final : public QLabel {
 public:
  explicit unknown_element(QWidget* parent) : QLabel(parent) {
    setObjectName(QStringLiteral("unknown_element"));
    setEnabled(false);
    say();
  }

 protected:
  void changeEvent(QEvent* event) override {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) say();
  }

 private:
  void say() {
    setText(words("This part of the panel is of a kind that this program does not know.",
                  "Эта часть панели такого вида, которого программа не знает."));
    setWordWrap(true);
  }
};

QWidget* build(handle element, QWidget* parent) {
  handle polymorphic = to_polymorphic(element);
  for (const builder& row : table()) {
    handle own;
    call<&queried::query>(polymorphic, row.interface, &own.table, &own.instance);
    if (own) return row.build(own, parent);
  }
  return new unknown_element(parent);
}

}  // namespace

QWidget* realise(handle element, QWidget* parent) {
  QWidget* control = build(element, parent);
  if (auto menu = cast<context_menu_impl>(element)) offer_context_menu(control, menu);
  return control;
}

void set_input_listener(std::function<void(const QString&)> wanted) {
  listener = std::move(wanted);
}
void input_reached(const QString& what) {
  if (listener) listener(what);
}
void input_reached_later(const QString& what) {
  auto* soon = new QTimer(qApp);
  soon->setSingleShot(true);
  QObject::connect(soon, &QTimer::timeout, soon, [soon, what] {
    soon->deleteLater();
    input_reached(what);
  });
  soon->start(0);
}

void set_choice_store(choice_store wanted) {
  store() = wanted.get && wanted.set ? std::move(wanted) : of_this_run();
}
QString choice(const QString& name) { return store().get(name); }
void keep_choice(const QString& name, const QString& value) { store().set(name, value); }

}  // namespace zu::desktop
