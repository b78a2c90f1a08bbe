#include "listModel.h"

#include "text.h"
#include "treeModel.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QTimerEvent>
#include <algorithm>
#include <numeric>

namespace Qv {

namespace {

/// How long the window may work between two events.
constexpr qint64 SliceMilliseconds = 6;
/// After how many items the clock is read.
constexpr std::size_t Step = 64;

std::vector<std::uint32_t> orderBy(std::vector<std::string> const& keys) {
  std::vector<std::uint32_t> order(keys.size());
  std::iota(order.begin(), order.end(), 0U);
  std::stable_sort(order.begin(), order.end(), [&](std::uint32_t left, std::uint32_t right) {
    return keys[left] < keys[right];
  });
  return order;
}

} // namespace

ListModel::ListModel(Failures& failures, Icons& icons, std::function<void()> changed)
    : failures_(failures), icons_(icons), changed_(std::move(changed)) {}

ListModel::~ListModel() { sorter_.waitForDone(); }

void ListModel::show(RCShdPtr<BrBrowsable> const& parent) {
  ++generation_;
  reading_.reset();
  failures_.guard([&] {
    RCShdPtr<BrAttribList> const list = parent->getServer()->getAttributesList();
    std::vector<RCShdPtr<BrAttrib>> columns;
    std::copy_if(list->getAttribs().begin(), list->getAttribs().end(), std::back_inserter(columns),
                 [](RCShdPtr<BrAttrib> const& column) { return column->isDisplayed(); });
    RCShdPtr<BrChildrenQuery> const query = parent->getChildren(AllChildren);
    reading_.emplace(
        Reading{parent, columns, list->getSortKey(), query, query->getNextChildSequence()});
  });
  if (!reading_) {
    replace({});
    return changed_();
  }
  if (!timer_)
    timer_ = startTimer(0);
}

void ListModel::timerEvent(QTimerEvent* event) {
  if (event->timerId() != timer_)
    return;
  if (reading_ && reading_->query) {
    // What fails half-way is shown as far as it came.
    if (failures_.guard([&] { return !readOn(); }))
      return;
    failures_.guard([&] { startSorting(); });
  }
  QElapsedTimer clock;
  clock.start();
  while (!outdated_.empty() && clock.elapsed() < SliceMilliseconds)
    outdated_.resize(outdated_.size() - std::min(outdated_.size(), Step));
  if (outdated_.empty()) {
    killTimer(timer_);
    timer_ = 0;
    outdated_.shrink_to_fit();
  }
}

bool ListModel::readOn() {
  QElapsedTimer clock;
  clock.start();
  for (;;) {
    if (reading_->sequence.atEnd())
      return true;
    for (std::size_t count = 0; count < Step && !reading_->sequence.atEnd(); ++count) {
      RCShdPtr<BrBrowsable> const item = std::as_const(reading_->sequence).item();
      reading_->keys.push_back(reading_->sortKey ? getAttribute(*item, unsigned(*reading_->sortKey))
                                                 : std::string());
      reading_->items.push_back(item);
      reading_->sequence.next();
    }
    if (reading_->sequence.atEnd())
      reading_->sequence = reading_->query->getNextChildSequence();
    if (clock.elapsed() >= SliceMilliseconds)
      return false;
  }
}

void ListModel::startSorting() {
  reading_->query = RCShdPtr<BrChildrenQuery>();
  auto const keys = std::make_shared<Keys>(std::move(reading_->keys));
  keys->resize(reading_->items.size());
  sorter_.start([this, keys, generation = generation_] {
    auto const order = std::make_shared<std::vector<std::uint32_t>>(orderBy(*keys));
    keys->clear();
    QMetaObject::invokeMethod(
        this,
        [this, order, generation] {
          if (generation == generation_)
            failures_.guard([&] { finish(*order); });
        },
        Qt::QueuedConnection);
  });
}

void ListModel::finish(std::vector<std::uint32_t> const& order) {
  Items sorted;
  sorted.reserve(order.size());
  for (std::uint32_t const place : order)
    sorted.push_back(std::move(reading_->items[place]));

  parent_ = reading_->parent;
  columns_ = std::move(reading_->columns);
  mainColumn_ = 0;
  for (std::size_t column = columns_.size(); column-- > 0;)
    if (columns_[column]->getDataType() == BrBrowsable::STRING)
      mainColumn_ = int(column);
  for (std::size_t column = 0; column < columns_.size(); ++column)
    if (reading_->sortKey == int(columns_[column]->getAttributeId()))
      mainColumn_ = int(column);
  reading_.reset();
  replace(std::move(sorted));
}

void ListModel::replace(Items items) {
  beginResetModel();
  std::swap(items_, items);
  endResetModel();
  if (outdated_.empty())
    outdated_ = std::move(items);
  else
    std::move(items.begin(), items.end(), std::back_inserter(outdated_));
  if (!timer_)
    timer_ = startTimer(0);
  changed_();
}

int ListModel::findRow(std::string const& path, int occurrence) const {
  for (std::size_t row = 0; row < items_.size(); ++row)
    if (items_[row]->getPath() == path && occurrence-- == 0)
      return int(row);
  return -1;
}

int ListModel::rowCount(QModelIndex const& parent) const {
  return parent.isValid() ? 0 : int(items_.size());
}

int ListModel::columnCount(QModelIndex const& parent) const {
  return parent.isValid() ? 0 : int(columns_.size());
}

Qt::ItemFlags ListModel::flags(QModelIndex const& index) const {
  // Whether the item lets itself be dragged is asked when somebody tries.
  return QAbstractTableModel::flags(index) | Qt::ItemIsDragEnabled;
}

QVariant ListModel::data(QModelIndex const& index, int role) const {
  return failures_.guard([&]() -> QVariant {
    BrBrowsable& item = *items_[std::size_t(index.row())];
    BrAttrib const& column = *columns_[std::size_t(index.column())];
    if (column.getDataType() == BrBrowsable::ICON) {
      if (role == Qt::DecorationRole)
        return icons_.find(item, qGuiApp->devicePixelRatio());
      if (role == Qt::DisplayRole)
        return QVariant();
    }
    return getCell(item, column.getAttributeId(), role);
  });
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal)
    return QVariant();
  std::string const& title = columns_[std::size_t(section)]->getName();
  if (role == Qt::ToolTipRole)
    return shown(title, Place::Tooltip);
  return role == Qt::DisplayRole ? QVariant(shown(title)) : QVariant();
}

} // namespace Qv
