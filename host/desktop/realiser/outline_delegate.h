#pragma once
// Cells of outlines: painted by the kind of their column, edited by a fitting editor.

#include <QPersistentModelIndex>
#include <QStyledItemDelegate>

#include "host/desktop/realiser/outline_model.h"

namespace zu::desktop {

class outline_delegate final : public QStyledItemDelegate {
  Q_OBJECT
 public:
  outline_delegate(outline_model* model, QObject* parent);

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model,
                    const QModelIndex& index) const override;
  void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const override;
  bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;
  /// Presses the "…" of a cell; false if it has none.
  bool press_button(const QModelIndex& index) const;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

 private:
  const shown_column& column_of(const QModelIndex& index) const;
  bool has_button(const QModelIndex& index) const;
  void paint_canvas(QPainter* painter, const QStyleOptionViewItem& option,
                    const QModelIndex& index) const;
  void paint_mark(QPainter* painter, const QStyleOptionViewItem& option,
                  const QModelIndex& index) const;
  QImage sized_picture(QPainter* painter, const QStyleOptionViewItem& option,
                       const QModelIndex& index) const;
  void paint_picture(QPainter* painter, const QStyleOptionViewItem& option,
                     const QModelIndex& index) const;
  void commit_and_close(QWidget* editor) const;

  outline_model* model_;
  QPersistentModelIndex pressed_;  // a mark or a button
};

}  // namespace zu::desktop
