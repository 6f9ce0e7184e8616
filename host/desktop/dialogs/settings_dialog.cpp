#include "host/desktop/dialogs/settings_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
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
constexpr char language_name[] = "lang", appearance_name[] = "appearance", units_name[] = "units",
               overviews_name[] = "overviews", libraries_name[] = "style_libraries";
constexpr std::array<const char*, 3> languages = {"", "en", "ru"};
constexpr std::array<const char*, 3> appearances = {"", "light", "dark"};
constexpr std::array<const char*, 3> units = {"map", "degrees", "dms"};

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

host::coordinate_units chosen_units() {
  return static_cast<host::coordinate_units>(index_of(units, kept_text(units_name)));
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
      styles_(new QGroupBox(this)),
      language_(new QComboBox(this)),
      appearance_(new QComboBox(this)),
      units_(new QComboBox(this)),
      language_label_(new QLabel(this)),
      appearance_label_(new QLabel(this)),
      units_label_(new QLabel(this)),
      overviews_note_(new QLabel(this)),
      libraries_label_(new QLabel(this)),
      libraries_problem_(new QLabel(this)),
      file_(new QLabel(this)),
      libraries_(new QLineEdit(this)),
      browse_(new QPushButton(this)),
      overviews_(new QCheckBox(this)),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this)) {
  name_and_link();
  place();
  show_kept();
  retranslate();
  check_folder();
  connect(language_, &QComboBox::currentIndexChanged, this, &settings_dialog::show_choice);
  connect(appearance_, &QComboBox::currentIndexChanged, this, &settings_dialog::show_choice);
  connect(libraries_, &QLineEdit::textChanged, this, &settings_dialog::check_folder);
  connect(browse_, &QPushButton::clicked, this, &settings_dialog::choose_folder);
  connect(buttons_, &QDialogButtonBox::accepted, this, &settings_dialog::accept);
  connect(buttons_, &QDialogButtonBox::rejected, this, &settings_dialog::reject);
  setMinimumWidth(460);
}

void settings_dialog::name_and_link() {
  setObjectName(QStringLiteral("settings"));
  language_->setObjectName(QStringLiteral("settings_language"));
  appearance_->setObjectName(QStringLiteral("settings_appearance"));
  units_->setObjectName(QStringLiteral("settings_units"));
  overviews_->setObjectName(QStringLiteral("settings_overviews"));
  libraries_->setObjectName(QStringLiteral("settings_style_libraries"));
  libraries_problem_->setObjectName(QStringLiteral("settings_style_libraries_problem"));
  browse_->setObjectName(QStringLiteral("settings_browse"));
  buttons_->setObjectName(QStringLiteral("settings_buttons"));
  file_->setObjectName(QStringLiteral("settings_file"));
  file_->setTextFormat(Qt::PlainText);
  file_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  for (QLabel* each : {file_, overviews_note_}) each->setWordWrap(true);
  QSizePolicy keeps_room = libraries_problem_->sizePolicy();
  keeps_room.setRetainSizeWhenHidden(true);
  libraries_problem_->setSizePolicy(keeps_room);
  language_label_->setBuddy(language_);
  appearance_label_->setBuddy(appearance_);
  units_label_->setBuddy(units_);
  libraries_label_->setBuddy(libraries_);
  libraries_->setClearButtonEnabled(true);
  browse_->setIcon(QIcon::fromTheme(QStringLiteral("document-open-folder")));
  browse_->setAutoDefault(false);
}

void settings_dialog::place() {
  auto* rows = new QFormLayout(window_);
  rows->addRow(language_label_, language_);
  rows->addRow(appearance_label_, appearance_);
  rows->addRow(units_label_, units_);
  auto* lines = new QVBoxLayout(sections_);
  lines->addWidget(overviews_);
  lines->addWidget(overviews_note_);
  auto* folder = new QGridLayout(styles_);
  folder->addWidget(libraries_label_, 0, 0);
  folder->addWidget(libraries_, 0, 1);
  folder->addWidget(browse_, 0, 2);
  folder->addWidget(libraries_problem_, 1, 1, 1, 2);
  auto* layout = new QVBoxLayout(this);
  for (QWidget* each : std::initializer_list<QWidget*>{window_, sections_, styles_, file_})
    layout->addWidget(each);
  layout->addStretch();
  layout->addWidget(buttons_);
  QWidget* before = language_;
  for (QWidget* each : std::initializer_list<QWidget*>{appearance_, units_, overviews_, libraries_,
                                                       browse_, buttons_}) {
    setTabOrder(before, each);
    before = each;
  }
}

void settings_dialog::show_kept() {
  for (int i = 0; i < 3; ++i)
    for (QComboBox* each : {language_, appearance_, units_}) each->addItem(QString());
  language_->setCurrentIndex(index_of(languages, kept_text(language_name)));
  appearance_->setCurrentIndex(index_of(appearances, kept_text(appearance_name)));
  units_->setCurrentIndex(index_of(units, kept_text(units_name)));
  overviews_->setChecked(zu_options_get_build_overviews());
  libraries_->setText(kept_text(libraries_name));
}

void settings_dialog::retranslate() {
  setWindowTitle(words("Settings", "Настройки"));
  window_->setTitle(words("Window", "Окно"));
  sections_->setTitle(words("Sections", "Разрезы"));
  styles_->setTitle(words("Styles", "Стили"));
  language_label_->setText(words("&Language:", "&Язык:"));
  appearance_label_->setText(words("&Appearance:", "&Вид:"));
  language_->setItemText(0, words("As the system", "Как в системе"));
  language_->setItemText(1, QStringLiteral("English"));
  language_->setItemText(2, QStringLiteral("Русский"));
  appearance_->setItemText(0, words("As the system", "Как в системе"));
  appearance_->setItemText(1, words("Light", "Светлый"));
  appearance_->setItemText(2, words("Dark", "Тёмный"));
  units_label_->setText(words("&Coordinates:", "&Координаты:"));
  units_->setToolTip(words("In the status bar, of the place under the pointer",
                           "В строке состояния, места под указателем"));
  units_->setItemText(0, words("Units of the map", "Единицы карты"));
  units_->setItemText(1, words("Degrees: 36.61934°E", "Градусы: 36.61934° в.д."));
  units_->setItemText(2, words("Degrees, minutes, seconds: 36°37′09.6″E",
                               "Градусы, минуты, секунды: 36°37′09.6″ в.д."));
  libraries_label_->setText(words("&Folder of libraries:", "&Папка библиотек:"));
  libraries_->setPlaceholderText(words("The program's own", "Собственная папка программы"));
  libraries_->setToolTip(
      words("Where plug-ins look for libraries of styles; empty: zugrid/styles in the folder "
            "of your data",
            "Где модули ищут библиотеки стилей; пусто: zugrid/styles в папке "
            "ваших данных"));
  browse_->setText(words("&Browse…", "&Обзор…"));
  libraries_problem_->setText(words("Name a folder that is there, by its full path.",
                                    "Нужен полный путь существующей папки."));
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

void settings_dialog::choose_folder() {
  QString chosen = QFileDialog::getExistingDirectory(
      this, words("Folder of libraries", "Папка библиотек"), libraries_->text());
  if (!chosen.isEmpty()) libraries_->setText(chosen);
}

/// Where the folder is meant from must not hang on where the program was started.
void settings_dialog::check_folder() {
  QFileInfo folder(libraries_->text());
  bool is_right = libraries_->text().isEmpty() || (folder.isAbsolute() && folder.isDir());
  libraries_problem_->setVisible(!is_right);
  buttons_->button(QDialogButtonBox::Ok)->setEnabled(is_right);
}

void settings_dialog::accept() {
  try {
    keep_text(language_name, QString::fromUtf8(languages[std::size_t(language_->currentIndex())]));
    keep_text(appearance_name,
              QString::fromUtf8(appearances[std::size_t(appearance_->currentIndex())]));
    keep_text(units_name, QString::fromUtf8(units[std::size_t(units_->currentIndex())]));
    keep_text(libraries_name, libraries_->text());
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
