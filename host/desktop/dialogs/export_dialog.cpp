#include "host/desktop/dialogs/export_dialog.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPageSize>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QStandardPaths>
#include <QVBoxLayout>
#include <array>
#include <cmath>

#include "host/core/failure.h"
#include "host/desktop/dialogs/settings_file.h"
#include "host/desktop/words.h"

namespace zu::desktop {
namespace {

constexpr char folder_name[] = "export_folder", format_name[] = "export_format";
constexpr int largest_side = 32767;

struct format {
  const char* name;
  const char* ending;
};
constexpr std::array<format, 4> formats = {
    {{"PNG", ".png"}, {"GeoTIFF", ".tif"}, {"PDF", ".pdf"}, {"SVG", ".svg"}}};

constexpr std::array<QPageSize::PageSizeId, 4> sheets = {QPageSize::A4, QPageSize::A3,
                                                         QPageSize::A2, QPageSize::Letter};

/// Each sheet on its side and upright, as maps mostly are and as texts are.
void add_sheets(QComboBox* box) {
  box->addItem(words("As the window", "Как окно"));
  for (QPageSize::PageSizeId id : sheets) {
    QSizeF upright = QPageSize::size(id, QPageSize::Millimeter);
    QString name = QPageSize::key(id);
    box->addItem(words("%1, landscape", "%1, альбомный").arg(name), upright.transposed());
    box->addItem(words("%1, portrait", "%1, книжный").arg(name), upright);
  }
}

int format_of(const QString& path) {
  std::string ending = host::ending_of(path.toStdString());
  if (ending == ".tiff") ending = ".tif";
  for (std::size_t i = 0; i < formats.size(); ++i)
    if (ending == formats[i].ending) return static_cast<int>(i);
  return -1;
}

QString with_ending(const QString& path, int index) {
  QString stem = path;
  if (format_of(path) >= 0) stem.truncate(path.lastIndexOf(QLatin1Char('.')));
  return stem + QString::fromUtf8(formats[std::size_t(index)].ending);
}

QString first_folder() {
  QString kept = kept_text(folder_name);
  if (!kept.isEmpty() && QFileInfo(kept).isDir()) return kept;
  QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
  return QFileInfo(pictures).isDir() ? pictures : QDir::homePath();
}

bool ask_to_replace(QWidget* parent, const QString& path) {
  QString question = words("\"%1\" exists. Replace it?", "Файл «%1» уже есть. Заменить?")
                         .arg(QFileInfo(path).fileName());
  return QMessageBox::question(parent, words("Export", "Экспорт"), question) == QMessageBox::Yes;
}

QSpinBox* side_box(const char* name, std::uint64_t pixels, QWidget* parent) {
  auto* box = new QSpinBox(parent);
  box->setObjectName(QString::fromUtf8(name));
  box->setRange(1, largest_side);
  box->setValue(static_cast<int>(pixels));
  return box;
}

Tzu_color color_of(const QColor& color) {
  return {static_cast<std::uint8_t>(color.red()), static_cast<std::uint8_t>(color.green()),
          static_cast<std::uint8_t>(color.blue()), static_cast<std::uint8_t>(255 - color.alpha())};
}

/// A framed field of a colour.
QPixmap swatch_of(const QColor& color, const QWidget& on) {
  double ratio = on.devicePixelRatioF();
  QPixmap swatch(QSize(32, 14) * ratio);
  swatch.setDevicePixelRatio(ratio);
  swatch.fill(color);
  QPainter painter(&swatch);
  painter.setPen(on.palette().color(QPalette::Mid));
  painter.drawRect(QRectF(0.5, 0.5, 31, 13));
  return swatch;
}

QHBoxLayout* row_of(std::initializer_list<QWidget*> widgets, bool stretch = true) {
  auto* row = new QHBoxLayout;
  for (QWidget* each : widgets) row->addWidget(each);
  if (stretch) row->addStretch();
  return row;
}

}  // namespace

std::optional<export_request> export_dialog::ask(QWidget* parent, const host::page_request& seen,
                                                 const QString& name) {
  export_dialog dialog(seen, name, parent);
  if (dialog.exec() != QDialog::Accepted) return {};
  return dialog.request();
}

export_dialog::export_dialog(const host::page_request& seen, const QString& name, QWidget* parent)
    : QDialog(parent),
      seen_(seen),
      color_(Qt::white),
      path_(new QLineEdit(this)),
      browse_(new QPushButton(words("&Browse…", "&Обзор…"), this)),
      color_button_(new QPushButton(this)),
      format_(new QComboBox(this)),
      sheet_(new QComboBox(this)),
      legend_(new QComboBox(this)),
      width_(side_box("export_width", seen.picture.nx, this)),
      height_(side_box("export_height", seen.picture.ny, this)),
      dots_(new QDoubleSpinBox(this)),
      keep_shape_(new QCheckBox(words("&Keep the shape", "&Сохранять пропорции"), this)),
      transparent_(new QCheckBox(words("&Transparent", "Про&зрачный"), this)),
      accurate_(new QCheckBox(words("&Full precision", "&Полная точность"), this)),
      as_seen_(new QRadioButton(words("As on &screen", "Ка&к на экране"), this)),
      all_layers_(new QRadioButton(words("&All layers", "&Все слои"), this)),
      paper_(new QLabel(this)),
      problem_(new QLabel(this)) {
  may_replace = [this](const QString& path) { return ask_to_replace(this, path); };
  setObjectName(QStringLiteral("export"));
  setWindowTitle(words("Export picture", "Экспорт изображения"));
  for (const format& each : formats) format_->addItem(QString::fromUtf8(each.name));
  int last = std::max(0, format_of(QStringLiteral("x") + kept_text(format_name)));
  format_->setCurrentIndex(last);
  path_->setText(with_ending(QDir(first_folder()).filePath(name), last));
  add_sheets(sheet_);
  legend_->addItems({words("None", "Нет"), words("Top left", "Слева вверху"),
                     words("Top right", "Справа вверху"), words("Bottom left", "Слева внизу"),
                     words("Bottom right", "Справа внизу")});
  if (seen.legend) legend_->setCurrentIndex(static_cast<int>(*seen.legend) + 1);
  dots_->setRange(10, 1200);
  dots_->setDecimals(0);
  dots_->setSuffix(words(" dots an inch", " точек на дюйм"));
  dots_->setValue(seen.picture.dots_per_inch);
  dots_->setToolTip(
      words("Lines and texts get their size by it", "От этого зависит размер линий и подписей"));
  accurate_->setToolTip(words("Drawn in tiles, without the savings of the screen",
                              "Рисуется по частям, без упрощений экрана"));
  keep_shape_->setChecked(true);
  as_seen_->setChecked(seen.picture.extent.has_value());
  as_seen_->setEnabled(seen.picture.extent.has_value());
  all_layers_->setChecked(!seen.picture.extent);
  transparent_->setChecked(!seen.picture.background);
  if (const auto& ground = seen.picture.background)
    color_ = QColor(ground->r, ground->g, ground->b, 255 - ground->a);
  add_rows();
  connect_rows();
  show_state();
  path_->setFocus();
}

void export_dialog::add_rows() {
  path_->setObjectName(QStringLiteral("export_path"));
  path_->setMinimumWidth(320);
  browse_->setObjectName(QStringLiteral("export_browse"));
  format_->setObjectName(QStringLiteral("export_format"));
  sheet_->setObjectName(QStringLiteral("export_sheet"));
  dots_->setObjectName(QStringLiteral("export_dots"));
  legend_->setObjectName(QStringLiteral("export_legend"));
  keep_shape_->setObjectName(QStringLiteral("export_keep_shape"));
  transparent_->setObjectName(QStringLiteral("export_transparent"));
  accurate_->setObjectName(QStringLiteral("export_accurate"));
  as_seen_->setObjectName(QStringLiteral("export_as_seen"));
  all_layers_->setObjectName(QStringLiteral("export_all_layers"));
  color_button_->setObjectName(QStringLiteral("export_color"));
  paper_->setObjectName(QStringLiteral("export_paper"));
  problem_->setObjectName(QStringLiteral("export_problem"));
  problem_->setWordWrap(true);
  problem_->setTextFormat(Qt::PlainText);
  auto* rows = new QFormLayout;
  auto add = [&](const QString& text, QWidget* first, QHBoxLayout* row) {
    auto* label = new QLabel(text, this);
    label->setBuddy(first);
    rows->addRow(label, row);
  };
  auto* cross = new QLabel(QStringLiteral("\u00d7"), this);
  add(words("&File:", "&Файл:"), path_, row_of({path_, browse_}, false));
  add(words("F&ormat:", "Фор&мат:"), format_, row_of({format_, accurate_}));
  add(words("&Paper:", "Л&ист:"), sheet_, row_of({sheet_}));
  add(words("Si&ze:", "&Размер:"), width_, row_of({width_, cross, height_, keep_shape_}));
  add(words("&Resolution:", "Раз&решение:"), dots_, row_of({dots_, paper_}));
  add(words("Extent:", "Охват:"), as_seen_, row_of({as_seen_, all_layers_}));
  add(words("&Legend:", "&Легенда:"), legend_, row_of({legend_}));
  add(words("Background:", "Фон:"), transparent_, row_of({transparent_, color_button_}));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  ok_ = buttons->button(QDialogButtonBox::Ok);
  ok_->setText(words("&Export", "&Экспортировать"));
  connect(buttons, &QDialogButtonBox::accepted, this, &export_dialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &export_dialog::reject);
  QWidget* before = path_;
  for (QWidget* each : std::initializer_list<QWidget*>{
           browse_, format_, accurate_, sheet_, width_, height_, keep_shape_, dots_, as_seen_,
           all_layers_, legend_, transparent_, color_button_, ok_}) {
    setTabOrder(before, each);
    before = each;
  }
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(rows);
  layout->addWidget(problem_);
  layout->addStretch();
  layout->addWidget(buttons);
}

void export_dialog::connect_rows() {
  connect(path_, &QLineEdit::textChanged, this, &export_dialog::path_edited);
  connect(browse_, &QPushButton::clicked, this, &export_dialog::browse);
  connect(format_, &QComboBox::activated, this, &export_dialog::format_chosen);
  connect(width_, &QSpinBox::valueChanged, this, [this] { side_changed(true); });
  connect(height_, &QSpinBox::valueChanged, this, [this] { side_changed(false); });
  connect(keep_shape_, &QCheckBox::toggled, this, [this] { side_changed(true); });
  connect(sheet_, &QComboBox::activated, this, &export_dialog::paper_chosen);
  connect(dots_, &QDoubleSpinBox::valueChanged, this, &export_dialog::paper_chosen);
  connect(transparent_, &QCheckBox::toggled, this, &export_dialog::show_state);
  connect(color_button_, &QPushButton::clicked, this, [this] {
    QColor chosen = QColorDialog::getColor(color_, this);
    if (chosen.isValid()) color_ = chosen;
    show_state();
  });
}

double export_dialog::shape() const {
  return static_cast<double>(seen_.picture.nx) / static_cast<double>(seen_.picture.ny);
}

/// The sheet at the resolution; the window's own pixels if there is none.
void export_dialog::paper_chosen() {
  const QSizeF sheet = sheet_->currentData().toSizeF();
  const bool is_first = sheet_->currentIndex() == 0;
  if (!is_first || sender() == sheet_) {
    auto pixels = [&](double millimetres) {
      return static_cast<int>(std::lround(millimetres * dots_->value() / 25.4));
    };
    const QSignalBlocker quiet[] = {QSignalBlocker(keep_shape_), QSignalBlocker(width_),
                                    QSignalBlocker(height_)};
    keep_shape_->setChecked(is_first);
    width_->setValue(is_first ? static_cast<int>(seen_.picture.nx) : pixels(sheet.width()));
    height_->setValue(is_first ? static_cast<int>(seen_.picture.ny) : pixels(sheet.height()));
  }
  show_state();
}

void export_dialog::side_changed(bool is_width) {
  sheet_->setCurrentIndex(0);  // a size of the person's own
  if (keep_shape_->isChecked()) {
    QSpinBox* other = is_width ? height_ : width_;
    QSignalBlocker once(other);
    other->setValue(static_cast<int>(
        std::lround(is_width ? width_->value() / shape() : height_->value() * shape())));
  }
  show_state();
}

void export_dialog::format_chosen() {
  path_->setText(with_ending(path_->text(), format_->currentIndex()));
}

void export_dialog::path_edited() {
  if (int found = format_of(path_->text()); found >= 0) format_->setCurrentIndex(found);
  show_state();
}

void export_dialog::browse() {
  QStringList filters;
  for (const format& each : formats)
    filters += QStringLiteral("%1 (*%2)")
                   .arg(QString::fromUtf8(each.name), QString::fromUtf8(each.ending));
  QString filter = filters.value(format_->currentIndex());
  QString path = QFileDialog::getSaveFileName(this, windowTitle(), path_->text(),
                                              filters.join(QStringLiteral(";;")), &filter);
  if (path.isEmpty()) return;
  int chosen = static_cast<int>(filters.indexOf(filter));
  bool named = format_of(path) >= 0;
  replaced_ = named ? path : QString();
  path_->setText(named ? path : with_ending(path, std::max(0, chosen)));
}

void export_dialog::show_state() {
  bool is_document = format_->currentIndex() >= 2;
  accurate_->setEnabled(!is_document);
  color_button_->setEnabled(!transparent_->isChecked());
  QPixmap swatch = swatch_of(transparent_->isChecked() ? QColor(Qt::transparent) : color_, *this);
  color_button_->setIcon(swatch);
  color_button_->setIconSize(swatch.deviceIndependentSize().toSize());
  color_button_->setText(words("&Colour…", "&Цвет…"));
  auto millimetres = [&](int pixels) {
    return QString::number(pixels / dots_->value() * 25.4, 'f', 0);
  };
  paper_->setText(words("%1 × %2 mm", "%1 × %2 мм")
                      .arg(millimetres(width_->value()), millimetres(height_->value())));
  QFileInfo file(path_->text());
  QString problem;
  if (path_->text().trimmed().isEmpty() || file.fileName().isEmpty())
    problem = words("The file has no name.", "У файла нет имени.");
  else if (format_of(path_->text()) < 0)
    problem = words("The name must end in .png, .tif, .pdf or .svg.",
                    "Имя должно кончаться на .png, .tif, .pdf или .svg.");
  else if (!file.absoluteDir().exists())
    problem = words("There is no folder \"%1\".", "Нет папки «%1».").arg(file.absolutePath());
  problem_->setText(problem);
  ok_->setEnabled(problem.isEmpty());
}

export_request export_dialog::request() const {
  export_request made{QFileInfo(path_->text()).absoluteFilePath(), seen_};
  host::picture_request& picture = made.page.picture;
  picture.nx = static_cast<std::uint64_t>(width_->value());
  picture.ny = static_cast<std::uint64_t>(height_->value());
  picture.sized = true;
  picture.dots_per_inch = dots_->value();
  picture.kind = host::page_kind_of(made.path.toStdString(), accurate_->isChecked())
                     .value_or(host::page_kind::screen);
  if (all_layers_->isChecked()) picture.extent.reset();
  picture.background.reset();
  if (!transparent_->isChecked()) picture.background = color_of(color_);
  made.page.legend.reset();
  if (int corner = legend_->currentIndex(); corner > 0)
    made.page.legend = static_cast<host::corner>(corner - 1);
  return made;
}

void export_dialog::accept() {
  if (!ok_->isEnabled()) return;
  QFileInfo file(path_->text());
  if (file.exists() && path_->text() != replaced_ && !may_replace(file.absoluteFilePath())) return;
  try {
    keep_text(folder_name, file.absolutePath());
    keep_text(format_name, QString::fromUtf8(formats[std::size_t(format_->currentIndex())].ending));
  } catch (const host::failure&) {  // where the last picture went is no reason not to make this one
  }
  QDialog::accept();
}

}  // namespace zu::desktop
