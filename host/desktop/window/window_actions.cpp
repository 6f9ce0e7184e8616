#include "host/desktop/window/window_actions.h"

#include <QActionGroup>
#include <QIcon>
#include <QKeySequence>

#include "host/desktop/words.h"

namespace zu::desktop {
namespace {

struct row {
  QAction* window_actions::*action;
  const char *name, *icon, *keys;  // keys with "; " between
  const char *english, *russian;
};

using actions = window_actions;
const row rows[] = {
    {&actions::file_new, "file_new", "document-new", "Ctrl+N", "&New project", "&Новый проект"},
    {&actions::file_open, "file_open", "document-open", "Ctrl+O", "&Open…", "&Открыть…"},
    {&actions::open_grid, "open_grid", "", "", "&Grid…", "&Сетка…"},
    {&actions::open_picture, "open_picture", "", "", "&Picture…", "&Растр…"},
    {&actions::file_save, "file_save", "document-save", "Ctrl+S", "&Save project",
     "&Сохранить проект"},
    {&actions::file_save_as, "file_save_as", "document-save-as", "Ctrl+Shift+S",
     "Save project &as…", "Сохранить проект &как…"},
    {&actions::file_export, "file_export", "document-export", "Ctrl+Shift+E", "&Export picture…",
     "&Экспорт картинки…"},
    {&actions::file_quit, "file_quit", "application-exit", "Ctrl+Q", "&Quit", "В&ыход"},
    {&actions::edit_undo, "edit_undo", "edit-undo", "Ctrl+Z", "&Undo", "&Отменить"},
    {&actions::edit_redo, "edit_redo", "edit-redo", "Ctrl+Y; Ctrl+Shift+Z", "&Redo", "&Вернуть"},
    {&actions::copy_picture, "copy_picture", "edit-copy", "Ctrl+Shift+C", "Copy &picture",
     "Копировать &картинку"},
    {&actions::copy_command, "copy_command", "utilities-terminal", "Ctrl+Alt+C", "Copy as co&mmand",
     "Копировать как ко&манду"},
    {&actions::select_clear, "select_clear", "edit-select-none", "Ctrl+Shift+A", "C&lear selection",
     "&Снять выделение"},
    {&actions::edit_settings, "edit_settings", "configure", "Ctrl+,", "&Settings…", "&Настройки…"},
    {&actions::zoom_in, "zoom_in", "zoom-in", "Ctrl++; Ctrl+=", "Zoom &in", "При&близить"},
    {&actions::zoom_out, "zoom_out", "zoom-out", "Ctrl+-", "Zoom &out", "&Отдалить"},
    {&actions::zoom_all, "zoom_all", "zoom-fit-best", "Ctrl+0", "Show &all", "Показать &всё"},
    {&actions::zoom_back, "zoom_back", "go-previous", "Alt+Left", "&Back", "&Назад"},
    {&actions::zoom_forward, "zoom_forward", "go-next", "Alt+Right", "&Forward", "Вп&ерёд"},
    {&actions::own_axes, "own_axes", "", "Ctrl+Alt+A", "A scale for each a&xis",
     "Свой масштаб каждой о&си"},
    {&actions::redraw, "redraw", "view-refresh", "F5", "&Redraw", "Пе&рерисовать"},
    {&actions::full_screen, "full_screen", "view-fullscreen", "F11", "F&ull screen",
     "Во весь &экран"},
    {&actions::layer_zoom, "layer_zoom", "crosshairs", "Ctrl+L", "&Zoom to the layer",
     "По&казать слой целиком"},
    {&actions::layer_rename, "layer_rename", "edit-rename", "F2", "Re&name", "Пере&именовать"},
    {&actions::layer_remove, "layer_remove", "edit-delete", "Del", "&Remove", "&Удалить"},
    {&actions::layer_up, "layer_up", "go-up", "Ctrl+Up", "Move &up", "Вы&ше"},
    {&actions::layer_down, "layer_down", "go-down", "Ctrl+Down", "Move &down", "Ни&же"},
    {&actions::layer_source, "layer_source", "document-open-data", "", "Choose the &source…",
     "Выбрать и&сточник…"},
    {&actions::layer_visible, "layer_visible", "", "", "&Visible", "Види&мый"},
    {&actions::layer_load_colors, "layer_load_colors", "color-management", "", "&Load colours…",
     "За&грузить цвета…"},
    {&actions::layer_save_colors, "layer_save_colors", "", "", "Save &colours…",
     "Сохранить &цвета…"},
    {&actions::scene_add, "scene_add", "tab-new", "Ctrl+T", "&New scene", "&Новая сцена"},
    {&actions::scene_rename, "scene_rename", "edit-rename", "", "R&ename scene…",
     "Пере&именовать сцену…"},
    {&actions::scene_remove, "scene_remove", "tab-close", "", "&Remove scene", "&Удалить сцену"},
    {&actions::scene_projection, "scene_projection", "globe", "Ctrl+Shift+P", "&Projection…",
     "&Проекция…"},
    {&actions::scene_next, "scene_next", "go-next", "Ctrl+PgDown", "Ne&xt scene",
     "С&ледующая сцена"},
    {&actions::scene_previous, "scene_previous", "go-previous", "Ctrl+PgUp", "Pre&vious scene",
     "Пред&ыдущая сцена"},
    {&actions::info_tool, "info_tool", "documentinfo", "Ctrl+I", "&Information", "&Информация"},
    {&actions::help_shortcuts, "help_shortcuts", "input-keyboard", "F1", "&Keyboard shortcuts",
     "Сочетания &клавиш"},
    {&actions::help_about, "help_about", "help-about", "", "&About Zugrid", "&О программе"},
    // Each language is named in itself.
    {&actions::language_english, "language_english", "", "", "&English", "&English"},
    {&actions::language_russian, "language_russian", "", "", "&Русский", "&Русский"},
};

}  // namespace

window_actions::window_actions(QObject* parent) : QObject(parent) {
  for (const row& each : rows) {
    auto* action = new QAction(this);
    this->*each.action = action;
    action->setObjectName(QString::fromLatin1(each.name));
    action->setIcon(QIcon::fromTheme(QString::fromLatin1(each.icon)));
    if (*each.keys != '\0')
      action->setShortcuts(QKeySequence::listFromString(QString::fromLatin1(each.keys)));
  }
  for (QAction* action :
       {full_screen, info_tool, own_axes, layer_visible, language_english, language_russian})
    action->setCheckable(true);
  auto* languages = new QActionGroup(this);
  languages->addAction(language_english);
  languages->addAction(language_russian);
  // Keys of a layer mean one only in the list.
  for (QAction* action : {layer_rename, layer_remove, layer_up, layer_down})
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  file_quit->setMenuRole(QAction::QuitRole);
  edit_settings->setMenuRole(QAction::PreferencesRole);
  help_about->setMenuRole(QAction::AboutRole);
  retranslate();
}

void window_actions::name_steps(const QString& undo, const QString& redo) {
  undo_step_ = undo;
  redo_step_ = redo;
  retranslate();
}

void window_actions::retranslate() {
  for (const row& each : rows) {
    QAction* action = this->*each.action;
    action->setText(words(each.english, each.russian));
    QString tip = action->text();
    tip.remove(QLatin1Char('&')).remove(QChar(0x2026));
    if (!action->shortcut().isEmpty())
      tip += QStringLiteral(" (%1)").arg(action->shortcut().toString(QKeySequence::NativeText));
    action->setToolTip(tip);
  }
  if (!undo_step_.isEmpty())
    edit_undo->setText(edit_undo->text() + QStringLiteral(": ") + undo_step_);
  if (!redo_step_.isEmpty())
    edit_redo->setText(edit_redo->text() + QStringLiteral(": ") + redo_step_);
}

}  // namespace zu::desktop
