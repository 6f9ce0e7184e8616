#include "host/desktop/dialogs/settings_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <array>

#include "host/core/failure.h"
#include "host/core/settings.h"
#include "host/desktop/dialogs/settings_file.h"
#include "zu/platform/zuk_basic.h"
#include "zu/platform/zuk_os.h"

namespace zu::desktop {
namespace {

// Names and values in the settings; the first of each stands for none.
constexpr char language_name[] = "lang", appearance_name[] = "appearance",
               overviews_name[] = "overviews";
constexpr std::array<const char*, 3> languages = {"", "en", "ru"};
constexpr std::array<const char*, 3> appearances = {"", "light", "dark"};

int index_of(const std::array<const char*, 3>& values, const QString& text) {
  for (std::size_t i = 0; i < values.size(); ++i)
    if (text == QLatin1String(values[i])) return static_cast<int>(i);
  return 0;
}

language system_language() {
  for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"})
    if (QByteArray value = qgetenv(variable); !value.isEmpty())
      return value.startsWith("ru") ? language::russian : language::english;
  return language::english;
}

language language_at(int index) {
  if (index == 0) return system_language();
  return index == 2 ? language::russian : language::english;
}

appearance appearance_at(int index) { return static_cast<appearance>(index); }

}  // namespace

language chosen_language() { return language_at(index_of(languages, kept_text(language_name))); }

appearance chosen_appearance() {
  return appearance_at(index_of(appearances, kept_text(appearance_name)));
}

void apply_chosen(std::optional<language> speech, std::optional<appearance> look) {
  host::apply_settings();
  choose_appearance(look ? *look : chosen_appearance());
  choose_language(speech ? *speech : chosen_language());
}

bool settings_dialog::ask(QWidget* parent) {
  return settings_dialog(parent).exec() == QDialog::Accepted;
}

settings_dialog::settings_dialog(QWidget* parent)
    : QDialog(parent),
      language_before_(language_in_force()),
      window_(new QGroupBox(this)),
      sections_(new QGroupBox(this)),
      language_(new QComboBox(this)),
      appearance_(new QComboBox(this)),
      language_label_(new QLabel(this)),
      appearance_label_(new QLabel(this)),
      overviews_note_(new QLabel(this)),
      file_(new QLabel(this)),
      overviews_(new QCheckBox(this)),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this)) {
  setObjectName(QStringLiteral("settings"));
  language_->setObjectName(QStringLiteral("settings_language"));
  appearance_->setObjectName(QStringLiteral("settings_appearance"));
  overviews_->setObjectName(QStringLiteral("settings_overviews"));
  file_->setObjectName(QStringLiteral("settings_file"));
  file_->setWordWrap(true);
  file_->setTextFormat(Qt::PlainText);
  file_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  overviews_note_->setWordWrap(true);
  language_label_->setBuddy(language_);
  appearance_label_->setBuddy(appearance_);
  auto* rows = new QFormLayout(window_);
  rows->addRow(language_label_, language_);
  rows->addRow(appearance_label_, appearance_);
  auto* lines = new QVBoxLayout(sections_);
  lines->addWidget(overviews_);
  lines->addWidget(overviews_note_);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(window_);
  layout->addWidget(sections_);
  layout->addWidget(file_);
  layout->addStretch();
  layout->addWidget(buttons_);
  for (int i = 0; i < 3; ++i) {
    language_->addItem(QString());
    appearance_->addItem(QString());
  }
  language_->setCurrentIndex(index_of(languages, kept_text(language_name)));
  appearance_->setCurrentIndex(index_of(appearances, kept_text(appearance_name)));
  overviews_->setChecked(zu_options_get_build_overviews());
  retranslate();
  connect(language_, &QComboBox::currentIndexChanged, this, &settings_dialog::show_choice);
  connect(appearance_, &QComboBox::currentIndexChanged, this, &settings_dialog::show_choice);
  connect(buttons_, &QDialogButtonBox::accepted, this, &settings_dialog::accept);
  connect(buttons_, &QDialogButtonBox::rejected, this, &settings_dialog::reject);
  setMinimumWidth(420);
}

void settings_dialog::retranslate() {
  setWindowTitle(words("Settings", "Настройки"));
  window_->setTitle(words("Window", "Окно"));
  sections_->setTitle(words("Sections", "Разрезы"));
  language_label_->setText(words("&Language:", "&Язык:"));
  appearance_label_->setText(words("&Appearance:", "&Вид:"));
  language_->setItemText(0, words("As the system", "Как в системе"));
  language_->setItemText(1, QStringLiteral("English"));
  language_->setItemText(2, QStringLiteral("Русский"));
  appearance_->setItemText(0, words("As the system", "Как в системе"));
  appearance_->setItemText(1, words("Light", "Светлый"));
  appearance_->setItemText(2, words("Dark", "Тёмный"));
  overviews_->setText(words("&Make overviews of sections that are opened",
                            "&Строить обзоры разрезов при открытии"));
  overviews_note_->setText(
      words("A section is then read once as a whole; after that it shows at once at any scale.",
            "Разрез тогда один раз читается целиком, а потом сразу виден в любом масштабе."));
}

void settings_dialog::show_choice() {
  choose_appearance(appearance_at(appearance_->currentIndex()));
  language chosen = language_at(language_->currentIndex());
  if (chosen != language_in_force()) choose_language(chosen);
}

void settings_dialog::accept() {
  try {
    keep_text(language_name, QString::fromUtf8(languages[std::size_t(language_->currentIndex())]));
    keep_text(appearance_name,
              QString::fromUtf8(appearances[std::size_t(appearance_->currentIndex())]));
    keep_text(overviews_name, QString::number(overviews_->isChecked() ? 1 : 0));
  } catch (const host::failure& problem) {
    file_->setText(QString::fromUtf8(problem.what()));
    return;
  }
  host::apply_settings();
  show_choice();
  QDialog::accept();
}

void settings_dialog::reject() {
  choose_appearance(chosen_appearance());
  if (language_before_ != language_in_force()) choose_language(language_before_);
  QDialog::reject();
}

void settings_dialog::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) retranslate();
  QDialog::changeEvent(event);
}

}  // namespace zu::desktop
