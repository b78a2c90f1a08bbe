#pragma once

#include "failures.h"
#include "images.h"

#include <QAbstractItemModel>
#include <memory>

namespace Qv {

/// The containers of all schemes as a tree. Children are asked for when an item is opened.
class TreeModel : public QAbstractItemModel {
public:
  TreeModel(Failures& failures, Icons& icons);
  ~TreeModel() override;

  /// Shows the schemes as the registry has them now. Of what is there already, the indexes stay.
  void refresh();

  RCShdPtr<BrBrowsable> getItem(QModelIndex const& index) const;
  /// The container nearest to the path, from the root of the scheme on.
  QModelIndex findNearest(std::string const& scheme, std::vector<std::string> const& names);

  QModelIndex index(int row, int column, QModelIndex const& parent = {}) const override;
  QModelIndex parent(QModelIndex const& child) const override;
  int rowCount(QModelIndex const& parent = {}) const override;
  int columnCount(QModelIndex const& parent = {}) const override;
  bool hasChildren(QModelIndex const& parent = {}) const override;
  bool canFetchMore(QModelIndex const& parent) const override;
  void fetchMore(QModelIndex const& parent) override;
  QVariant data(QModelIndex const& index, int role) const override;

private:
  struct Node;
  using Nodes = std::vector<std::unique_ptr<Node>>;

  Node& nodeOf(QModelIndex const& index) const;
  QModelIndex indexOf(Node const& node) const;
  static void setChildren(Node& node, Nodes children);
  /// Puts items into a node, in the nodes of equal ones where there are any. @returns what is left.
  Nodes merge(Node& node, Items const& items);

  Failures& failures_;
  Icons& icons_;
  std::unique_ptr<Node> root_;
};

/// What a cell of an item shows, in a model's roles.
QVariant getCell(BrBrowsable& item, unsigned int attributeId, int role);
/// The components of a path, and the path of such components.
std::vector<std::string> splitPath(std::string const& path);
std::string joinPath(std::vector<std::string> const& names);

} // namespace Qv
