#include "host/desktop/realiser/button_box.h"

#include <QDialog>
#include <QPointer>
#include <QPushButton>

#include "host/desktop/realiser/builders.h"
#include "host/desktop/realiser/typed_line.h"

namespace zu::desktop {
namespace {

struct role_row {
  std::uint32_t role;
  QDialogButtonBox::ButtonRole place;
  const char* icon;
  bool accepts, cancels;
};
constexpr role_row roles[] = {
    {1, QDialogButtonBox::AcceptRole, "dialog-ok", true, false},
    {2, QDialogButtonBox::AcceptRole, "dialog-ok", true, false},
    {4, QDialogButtonBox::RejectRole, "dialog-cancel", false, true},
    {8, QDialogButtonBox::RejectRole, "dialog-cancel", false, true},
    {16, QDialogButtonBox::ApplyRole, "dialog-ok-apply", false, false},
    {32, QDialogButtonBox::YesRole, "dialog-ok", true, false},
    {64, QDialogButtonBox::NoRole, "dialog-cancel", false, true},
};
constexpr std::uint32_t apply_role = 16;

role_row row_of(std::uint32_t role) {
  for (const role_row& row : roles)
    if (row.role == role) return row;
  return {role, QDialogButtonBox::ActionRole, nullptr, false, false};
}

}  // namespace

button_box_widget::button_box_widget(handle element, QWidget* parent) : realised(element, parent) {
  setObjectName(QStringLiteral("button_box"));
  for (std::uint32_t i = 0, n = call<&button_box_impl::count>(element); i < n; ++i) {
    role_row row = row_of(call<&button_box_impl::role>(element, i));
    auto* button = new QPushButton(this);
    button->setObjectName(QStringLiteral("button_%1").arg(row.role));
    if (row.icon != nullptr) button->setIcon(QIcon::fromTheme(QLatin1String(row.icon)));
    bool is_first_accept =
        row.accepts && std::none_of(entries_.begin(), entries_.end(),
                                    [](const entry& e) { return row_of(e.role).accepts; });
    button->setAutoDefault(row.accepts);
    button->setDefault(is_first_accept);
    connect(button, &QPushButton::clicked, this, [this, index = entries_.size()] { press(index); });
    addButton(button, row.place);
    entries_.push_back({row.role, button});
  }
  call<&button_box_impl::attach_handler>(
      element, button_box_handler(handle_of<button_box_handler_impl>(*this)));
  begin();
}

button_box_widget::~button_box_widget() {
  call<&button_box_impl::attach_handler>(element_, button_box_handler());
}

void button_box_widget::heard(notice) {
  for (std::size_t i = 0; i < entries_.size(); ++i)
    entries_[i].button->setText(text_by<&button_box_impl::caption>(element_, std::uint32_t(i)));
}

bool button_box_widget::lets_cancel() {
  for (std::size_t i = 0; i < entries_.size(); ++i)
    if (row_of(entries_[i].role).cancels)
      return call<&button_box_impl::press>(element_, std::int32_t(i));
  return true;
}

void button_box_widget::press(std::size_t index) {
  entry chosen = entries_[index];
  role_row row = row_of(chosen.role);
  // What is refused in a line is looked at again before a dialog is accepted.
  if (!finish_typing(this) && !row.cancels) return;
  QString name = name_of(this, chosen.button->text());
  QPointer<QDialog> dialog = qobject_cast<QDialog*>(window());
  bool closes = call<&button_box_impl::press>(element_, std::int32_t(index));
  if (!row.cancels) input_reached(name);
  if (closes && dialog && (row.accepts || row.cancels))
    dialog->done(row.accepts ? QDialog::Accepted : QDialog::Rejected);
}

void button_box_widget::pressed(std::uint32_t role) {
  // A button of the dialog's own ends it with its role, which is an acceptance.
  if (role == apply_role) return;
  if (auto* dialog = qobject_cast<QDialog*>(window())) dialog->done(int(role));
}

std::span<const builder> button_box_builders() {
  static const builder rows[] = {builder_of<button_box_impl, button_box_widget>()};
  return rows;
}

}  // namespace zu::desktop
