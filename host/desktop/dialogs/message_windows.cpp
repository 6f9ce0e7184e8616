#include "host/desktop/dialogs/message_windows.h"

#include <QApplication>
#include <QMessageBox>

#include "host/desktop/words.h"
#include "zu/platform/zuk_msgs.h"

namespace zu::desktop {
namespace {

int ask(QMessageBox::Icon icon, const wchar_t* text, QMessageBox::StandardButtons buttons) {
  QMessageBox box(icon, QApplication::applicationName(), QString::fromWCharArray(text), buttons,
                  QApplication::activeWindow());
  box.setObjectName(QStringLiteral("message"));
  box.setTextFormat(Qt::PlainText);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse);
  return box.exec();
}

void show_message(const wchar_t* text, void* /*user*/) {
  ask(QMessageBox::Information, text, QMessageBox::Ok);
}

void show_warning(const wchar_t* text, void* /*user*/) {
  ask(QMessageBox::Warning, text, QMessageBox::Ok);
}

bool ask_question(const wchar_t* text, void* /*user*/) {
  return ask(QMessageBox::Question, text, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

}  // namespace

message_windows::message_windows() {
  zu_set_message_sink(&show_message, nullptr);
  Tzu_message_hooks hooks{&show_warning, &ask_question, nullptr};
  zu_set_message_hooks(&hooks);
}

message_windows::~message_windows() {
  zu_set_message_sink(nullptr, nullptr);
  zu_set_message_hooks(nullptr);
}

}  // namespace zu::desktop
