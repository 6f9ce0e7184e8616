#include "host/desktop/realiser/outline_editors.h"

#include <QComboBox>
#include <QCompleter>
#include <QLineEdit>
#include <QPixmap>
#include <QSpinBox>
#include <QTimer>

#include "host/desktop/realiser/answers.h"
#include "host/desktop/realiser/number_text.h"
#include "host/desktop/realiser/pictures.h"
#include "host/desktop/realiser/realised.h"

namespace zu::desktop {
namespace {

constexpr char starting[] = "starting_value";

/// A number that keeps every digit: the text is the value, the arrows step it.
class floating_editor final : public QAbstractSpinBox {
 public:
  floating_editor(double step, QWidget* parent) : QAbstractSpinBox(parent), step_(step) {
    setFrame(false);
    lineEdit()->setAlignment(Qt::AlignRight);
  }
  QString number() const { return lineEdit()->text(); }
  void show_number(const QString& text) {
    lineEdit()->setText(text);
    selectAll();
  }
  void stepBy(int steps) override {
    if (const std::optional<double> value = number_of(number()))
      show_number(number_text(*value + steps * step_));
  }

 protected:
  StepEnabled stepEnabled() const override { return StepUpEnabled | StepDownEnabled; }

 private:
  double step_;
};

QWidget* make_choice_editor(const shown_column& c, outline_item item, QWidget* parent) {
  auto* editor = new QComboBox(parent);
  editor->setFrame(false);
  for (std::uint32_t i = 0, n = call<&enum_outline_column_impl::count>(c.column, item); i < n;
       ++i) {
    const picture shown = picture_by<&enum_outline_column_impl::choice_picture>(c.column, item, i);
    editor->addItem(icon_of(shown),
                    text_by<&enum_outline_column_impl::choice_text>(c.column, item, i));
    if (!shown.image.isNull())
      editor->setIconSize(editor->iconSize().expandedTo(shown.image.size()));
  }
  // Once it stands in its place.
  auto* soon = new QTimer(editor);
  soon->setSingleShot(true);
  QObject::connect(soon, &QTimer::timeout, editor, [editor] { editor->showPopup(); });
  soon->start(0);
  return editor;
}

QWidget* make_assisted_editor(const shown_column& c, outline_item item, QWidget* parent) {
  auto* editor = new QComboBox(parent);
  editor->setFrame(false);
  editor->setEditable(true);
  editor->setInsertPolicy(QComboBox::NoInsert);
  editor->addItems(
      texts_by<&assisted_string_outline_column_impl::visit_suggestions>(c.column, item));
  editor->completer()->setFilterMode(Qt::MatchContains);
  editor->completer()->setCaseSensitivity(Qt::CaseInsensitive);
  editor->completer()->setCompletionMode(QCompleter::PopupCompletion);
  return editor;
}

}  // namespace

QWidget* make_text_editor(QWidget* parent) {
  auto* editor = new QLineEdit(parent);
  editor->setFrame(false);
  return editor;
}

QWidget* make_integer_editor(std::int32_t minimum, std::int32_t maximum, std::int32_t step,
                             QWidget* parent) {
  auto* editor = new QSpinBox(parent);
  editor->setFrame(false);
  editor->setGroupSeparatorShown(false);
  editor->setAlignment(Qt::AlignRight);
  editor->setRange(minimum, maximum);
  editor->setSingleStep(step);
  return editor;
}

QWidget* make_floating_editor(double step, QWidget* parent) {
  return new floating_editor(step, parent);
}

QWidget* make_cell_editor(const shown_column& c, outline_item item, QWidget* parent) {
  QWidget* editor = nullptr;
  if (c.kind == column_kind::string) {
    auto* line = new QLineEdit(parent);
    line->setFrame(false);
    line->setAlignment(c.alignment);
    std::uint32_t longest = call<&string_outline_column_impl::longest_text>(c.column, item);
    if (longest > 0 && longest < 32767) line->setMaxLength(int(longest));
    editor = line;
  } else if (c.kind == column_kind::integer) {
    editor = make_integer_editor(call<&integer_outline_column_impl::minimum>(c.column, item),
                                 call<&integer_outline_column_impl::maximum>(c.column, item),
                                 call<&integer_outline_column_impl::step>(c.column, item), parent);
  } else if (c.kind == column_kind::floating) {
    editor =
        make_floating_editor(call<&floating_outline_column_impl::step>(c.column, item), parent);
  } else if (c.kind == column_kind::choice) {
    editor = make_choice_editor(c, item, parent);
  } else if (c.kind == column_kind::assisted) {
    editor = make_assisted_editor(c, item, parent);
  }
  if (editor == nullptr) return nullptr;
  editor->setObjectName(QStringLiteral("cell_editor"));
  editor->setAutoFillBackground(true);
  return editor;
}

void show_in_editor(QWidget* editor, const QVariant& value) {
  if (editor == nullptr) return;
  if (auto* line = qobject_cast<QLineEdit*>(editor)) {
    line->setText(value.toString());
    line->selectAll();
  }
  if (auto* number = qobject_cast<QSpinBox*>(editor)) {
    number->setValue(value.toInt());
    number->selectAll();
  }
  if (auto* number = dynamic_cast<floating_editor*>(editor)) number->show_number(value.toString());
  if (auto* choices = qobject_cast<QComboBox*>(editor)) {
    if (QLineEdit* line = choices->lineEdit()) {
      choices->setEditText(value.toString());
      line->selectAll();
    } else {
      choices->setCurrentIndex(value.toInt());
    }
  }
  editor->setProperty(starting, value_of_editor(editor));
}

QVariant starting_value(const QWidget* editor) { return editor->property(starting); }

QVariant value_of_editor(QWidget* editor) {
  if (auto* line = qobject_cast<QLineEdit*>(editor)) return line->text();
  if (auto* number = qobject_cast<QSpinBox*>(editor)) {
    number->interpretText();
    return number->value();
  }
  if (auto* number = dynamic_cast<floating_editor*>(editor)) return number->number();
  if (auto* choices = qobject_cast<QComboBox*>(editor))
    return choices->isEditable() ? QVariant(choices->currentText())
                                 : QVariant(choices->currentIndex());
  return {};
}

}  // namespace zu::desktop
