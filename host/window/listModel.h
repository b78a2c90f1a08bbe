#pragma once

#include "failures.h"
#include "images.h"

#include <QAbstractTableModel>
#include <QThreadPool>
#include <optional>

namespace Qv {

/// The children of one item in the columns of its scheme, sorted by the scheme's sort key. Reading
/// takes place in slices between two events, sorting on another thread; until both are done, what
/// was there before stays.
class ListModel : public QAbstractTableModel {
public:
  /// @param changed is called when what was asked for is there.
  ListModel(Failures& failures, Icons& icons, std::function<void()> changed);
  ~ListModel() override;

  /// Starts reading the children of an item.
  void show(RCShdPtr<BrBrowsable> const& parent);
  bool isReading() const { return reading_.has_value(); }

  std::vector<RCShdPtr<BrAttrib>> const& getColumns() const { return columns_; }
  /// The column of the sort key, or of the first text.
  int getMainColumn() const { return mainColumn_; }
  RCShdPtr<BrBrowsable> const& getItem(int row) const { return items_[std::size_t(row)]; }
  /// The row of that path which comes after `occurrence` others; -1 when there is none.
  int findRow(std::string const& path, int occurrence = 0) const;

  int rowCount(QModelIndex const& parent = {}) const override;
  int columnCount(QModelIndex const& parent = {}) const override;
  Qt::ItemFlags flags(QModelIndex const& index) const override;
  QVariant data(QModelIndex const& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

protected:
  void timerEvent(QTimerEvent* event) override;

private:
  using Keys = std::vector<std::string>;
  struct Reading {
    RCShdPtr<BrBrowsable> parent;
    std::vector<RCShdPtr<BrAttrib>> columns;
    std::optional<int> sortKey;
    RCShdPtr<BrChildrenQuery> query;
    Iterator<RCShdPtr<BrBrowsable>> sequence;
    Items items{};
    Keys keys{};
  };

  /// Reads on until the slice is over. @returns whether all is read.
  bool readOn();
  void startSorting();
  void finish(std::vector<std::uint32_t> const& order);
  void replace(Items items);

  Failures& failures_;
  Icons& icons_;
  std::function<void()> changed_;
  /// Kept by its children, which may refer to it.
  RCShdPtr<BrBrowsable> parent_;
  std::vector<RCShdPtr<BrAttrib>> columns_;
  int mainColumn_ = 0;
  Items items_;
  std::optional<Reading> reading_;
  /// Items that nobody needs any more, let go of in slices.
  Items outdated_;
  int timer_ = 0;
  /// Tells an order that comes late from the one that is awaited.
  unsigned int generation_ = 0;
  QThreadPool sorter_;
};

} // namespace Qv
