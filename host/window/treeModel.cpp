#include "treeModel.h"

#include "hostBrRegistry.h"
#include "omUtil.h"
#include "osFilePath.h"
#include "text.h"

#include <QGuiApplication>
#include <algorithm>
#include <deque>
#include <unordered_set>

namespace Qv {

struct TreeModel::Node {
  /// Null at the top, above the schemes.
  RCShdPtr<BrBrowsable> item;
  Node* parent = nullptr;
  int row = 0;
  Nodes children{};
  bool fetched = false;
};

namespace {

Items getContainers(BrBrowsable& item) {
  Items children = getChildren(item);
  std::erase_if(children, [](auto const& child) { return !child->isAContainer(); });
  return children;
}

} // namespace

TreeModel::TreeModel(Failures& failures, Icons& icons)
    : failures_(failures), icons_(icons), root_(new Node) {
  root_->fetched = true;
}

TreeModel::~TreeModel() = default;

void TreeModel::refresh() {
  Items schemes;
  failures_.guard([&] {
    for (OPtr<BrServer> const& server : HostBrRegistry::getInstance().getServers())
      schemes.push_back(server->getRootNode()->getBrowsable());
  });
  emit layoutAboutToBeChanged();
  Nodes const left = merge(*root_, schemes);
  QModelIndexList const before = persistentIndexList();
  std::unordered_set<Node const*> present;
  auto const collect = [&](auto const& self, Node const& node) -> void {
    present.insert(&node);
    for (auto const& child : node.children)
      self(self, *child);
  };
  collect(collect, *root_);
  for (QModelIndex const& index : before) {
    auto const* const node = static_cast<Node const*>(index.internalPointer());
    changePersistentIndex(index, present.contains(node) ? indexOf(*node) : QModelIndex());
  }
  emit layoutChanged();
}

TreeModel::Nodes TreeModel::merge(Node& node, Items const& items) {
  // The same path may come again.
  std::map<std::string, std::deque<std::unique_ptr<Node>>> old;
  for (auto& child : node.children)
    old[child->item->getSchemeName() + '\0' + child->item->getPath()].push_back(std::move(child));
  Nodes children;
  Nodes left;
  for (RCShdPtr<BrBrowsable> const& item : items) {
    auto& equal = old[item->getSchemeName() + '\0' + item->getPath()];
    if (equal.empty()) {
      children.emplace_back(new Node{item});
      continue;
    }
    children.push_back(std::move(equal.front()));
    equal.pop_front();
    Node& kept = *children.back();
    kept.item = item;
    if (!kept.fetched)
      continue;
    Nodes gone = merge(kept, failures_.guard([&] { return getContainers(*item); }));
    std::move(gone.begin(), gone.end(), std::back_inserter(left));
  }
  for (auto& [path, nodes] : old)
    std::move(nodes.begin(), nodes.end(), std::back_inserter(left));
  setChildren(node, std::move(children));
  return left;
}

void TreeModel::setChildren(Node& node, Nodes children) {
  node.children = std::move(children);
  node.fetched = true;
  for (std::size_t row = 0; row < node.children.size(); ++row) {
    node.children[row]->parent = &node;
    node.children[row]->row = int(row);
  }
}

RCShdPtr<BrBrowsable> TreeModel::getItem(QModelIndex const& index) const {
  return nodeOf(index).item;
}

QModelIndex TreeModel::findNearest(std::string const& scheme,
                                   std::vector<std::string> const& names) {
  auto const child = [this](QModelIndex const& parent, auto const& matches) {
    for (auto const& node : nodeOf(parent).children)
      if (matches(*node->item))
        return indexOf(*node);
    return QModelIndex();
  };
  QModelIndex found =
      child({}, [&](BrBrowsable const& item) { return item.getSchemeName() == scheme; });
  for (std::size_t count = 1; found.isValid() && count <= names.size(); ++count) {
    if (canFetchMore(found))
      fetchMore(found);
    std::string const path = joinPath({names.begin(), names.begin() + std::ptrdiff_t(count)});
    QModelIndex const next =
        child(found, [&](BrBrowsable const& item) { return item.getPath() == path; });
    if (!next.isValid())
      break;
    found = next;
  }
  return found;
}

TreeModel::Node& TreeModel::nodeOf(QModelIndex const& index) const {
  return index.isValid() ? *static_cast<Node*>(index.internalPointer()) : *root_;
}

QModelIndex TreeModel::indexOf(Node const& node) const {
  return &node == root_.get() ? QModelIndex() : createIndex(node.row, 0, const_cast<Node*>(&node));
}

QModelIndex TreeModel::index(int row, int column, QModelIndex const& parent) const {
  return hasIndex(row, column, parent) ? indexOf(*nodeOf(parent).children[std::size_t(row)])
                                       : QModelIndex();
}

QModelIndex TreeModel::parent(QModelIndex const& child) const {
  return child.isValid() ? indexOf(*nodeOf(child).parent) : QModelIndex();
}

int TreeModel::rowCount(QModelIndex const& parent) const {
  return int(nodeOf(parent).children.size());
}

int TreeModel::columnCount(QModelIndex const& /*parent*/) const { return 1; }

bool TreeModel::hasChildren(QModelIndex const& parent) const {
  return !nodeOf(parent).children.empty() || canFetchMore(parent);
}

bool TreeModel::canFetchMore(QModelIndex const& parent) const {
  return failures_.guard([&] {
    Node const& node = nodeOf(parent);
    return !node.fetched && hasContainerChildren(*node.item);
  });
}

void TreeModel::fetchMore(QModelIndex const& parent) {
  failures_.guard([&] {
    Node& node = nodeOf(parent);
    // Asked once, even where it fails: the view would ask again at each paint.
    node.fetched = true;
    Nodes children;
    for (RCShdPtr<BrBrowsable> const& item : getContainers(*node.item))
      children.emplace_back(new Node{item});
    if (children.empty())
      return;
    beginInsertRows(parent, 0, int(children.size()) - 1);
    setChildren(node, std::move(children));
    endInsertRows();
  });
}

QVariant TreeModel::data(QModelIndex const& index, int role) const {
  return failures_.guard([&]() -> QVariant {
    BrBrowsable& item = *nodeOf(index).item;
    if (role == Qt::DecorationRole)
      return icons_.find(item, qGuiApp->devicePixelRatio());
    return getCell(item, BrBrowsable::NAME, role);
  });
}

QVariant getCell(BrBrowsable& item, unsigned int attributeId, int role) {
  switch (role) {
  case Qt::DisplayRole:
  case Qt::AccessibleTextRole:
    return shown(getAttribute(item, attributeId));
  case Qt::ToolTipRole:
    return shown(item.getTooltip(int(attributeId)), Place::Tooltip);
  case Qt::AccessibleDescriptionRole:
    return shown(getAttribute(item, BrBrowsable::BROWSABLE_TYPE));
  default:
    return QVariant();
  }
}

std::vector<std::string> splitPath(std::string const& path) {
  std::vector<std::string> names;
  Iterator<std::string> components = OmUtil::parsePath(OsFilePath(path));
  for (; !components.atEnd(); components.next())
    names.push_back(components.item());
  return names;
}

std::string joinPath(std::vector<std::string> const& names) {
  OsFilePath path("");
  for (std::string const& name : names)
    path += OsFilePath(name);
  return path.getChars();
}

} // namespace Qv
