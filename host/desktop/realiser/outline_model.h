#pragma once
// An outline of a bundle as a model of Qt. It keeps no values: every cell is asked for when it is
// shown. Kept are the counts of items that were asked for, since Qt must hear of changes in them.

#include <QAbstractItemModel>
#include <memory>
#include <type_traits>
#include <unordered_map>
#include <vector>

#include "host/desktop/realiser/outline_columns.h"

namespace zu::desktop {

/// A function that is called with an item before the call that it is given to ends.
class item_use {
 public:
  template <class function>
  requires(!std::is_same_v<std::remove_cvref_t<function>, item_use>)
      item_use(function&& use)  // NOLINT: a lambda is passed as it stands
      : object_(const_cast<void*>(static_cast<const void*>(&use))),
        call_([](void* object, outline_item item) {
          (*static_cast<std::remove_reference_t<function>*>(object))(item);
        }) {}
  void operator()(outline_item item) const { call_(object_, item); }

 private:
  void* object_;
  void (*call_)(void*, outline_item);
};

class outline_model final : public QAbstractItemModel {
  Q_OBJECT
 public:
  /// More items of one parent are not shown: their places on the screen would be no numbers.
  static constexpr std::uint32_t most_items = 30'000'000;

  outline_model(outline shown, QObject* parent);
  ~outline_model() override;

  /// Shows what the outline says now: counts and values, with `columns` its columns too.
  void refresh(bool columns);
  const shown_column& column(int index) const { return columns_[std::size_t(index)]; }
  /// Calls `use` with the item at an index, or the root's for an invalid one. Not at all if the
  /// outline has no root.
  void with_item(const QModelIndex& index, item_use use) const;
  /// The place of the outline's current item; invalid for none.
  QModelIndex current() const;
  bool is_marked(const QModelIndex& index) const;
  /// Draws a cell of a canvas column; false if the column is none.
  bool draw(const QModelIndex& index, Tzu_drwc* page) const;
  bool is_flat() const { return is_flat_; }
  bool has_checks() const { return static_cast<bool>(checks_); }
  bool is_editable(const QModelIndex& index) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  bool hasChildren(const QModelIndex& parent = {}) const override;
  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& index) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
  bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                    const QModelIndex& parent) override;

 Q_SIGNALS:
  void input_happened();  ///< a person's value reached the outline

 private:
  struct node;  // an item whose items were asked for
  node* node_of(const QModelIndex& index) const;
  std::uint32_t asked_count(const QModelIndex& parent) const;
  std::vector<shown_column> asked_columns() const;
  void read_checks();
  void refresh_counts(node& n, const QModelIndex& at);
  template <class result, class function>
  result ask(const QModelIndex& index, function&& what) const;

  const outline shown_;
  const bool is_flat_;
  outline_checks checks_;
  std::vector<shown_column> columns_;
  std::unique_ptr<node> root_;
};

}  // namespace zu::desktop
