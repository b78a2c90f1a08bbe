#include "listView.h"

#include "workspace.h"

#include "hostDndRegistry.h"

#include <QDrag>
#include <QHeaderView>
#include <QPointer>
#include <QStyledItemDelegate>

namespace Qv {

namespace {

/// Draws an icon in the whole of its cell, since a column of icons has no room for margins.
class IconDelegate : public QStyledItemDelegate {
public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, QStyleOptionViewItem const& option,
             QModelIndex const& index) const override {
    QStyleOptionViewItem cell = option;
    cell.decorationSize = {0, 0};
    QStyledItemDelegate::paint(painter, cell, index);
    index.data(Qt::DecorationRole).value<QIcon>().paint(painter, option.rect);
  }
};

} // namespace

ListView::ListView(Failures& failures, ListModel& list)
    : failures_(failures), list_(list), icons_(new IconDelegate(this)) {
  setModel(&list);
  setAccessibleName("Items");
  setSelectionBehavior(SelectRows);
  setSelectionMode(SingleSelection);
  setIconSize({32, 32});
  setShowGrid(false);
  setWordWrap(false);
  setTabKeyNavigation(false);
  setDragEnabled(true);
  setVerticalScrollMode(ScrollPerPixel);
  verticalHeader()->hide();
  // Rows of one height need no measuring.
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(36);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSortIndicatorShown(true);
  connect(horizontalHeader(), &QHeaderView::sectionResized, this,
          [this](int section, int /*before*/, int width) {
            BrAttrib const& column = *list_.getColumns()[std::size_t(section)];
            int const allowed = std::clamp(width, column.getMinW(), column.getMaxW());
            if (allowed != width)
              horizontalHeader()->resizeSection(section, allowed);
          });
}

void ListView::setColumns() {
  // Of the flags, 0 marks a column that users may resize.
  constexpr BrAttrib::AttribAttributes Resizable{0};
  auto const& columns = list_.getColumns();
  QHeaderView& header = *horizontalHeader();
  header.setMinimumSectionSize(16);
  for (std::size_t section = 0; section < columns.size(); ++section) {
    BrAttrib const& column = *columns[section];
    auto const& flags = column.getAttributes();
    bool const resizable = std::find(flags.begin(), flags.end(), Resizable) != flags.end();
    header.setSectionResizeMode(int(section),
                                resizable ? QHeaderView::Interactive : QHeaderView::Fixed);
    header.resizeSection(int(section), column.getCurrentW());
    setItemDelegateForColumn(int(section),
                             column.getDataType() == BrBrowsable::ICON ? icons_ : nullptr);
  }
  header.setSortIndicator(list_.getMainColumn(), Qt::AscendingOrder);
}

void ListView::selectRow(int row) { setCurrentIndex(list_.index(row, list_.getMainColumn())); }

QModelIndex ListView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  // A row counts as a whole: its cells are not visited one by one.
  if (action == MoveLeft || action == MoveRight)
    return currentIndex();
  if (action == MoveHome || action == MoveEnd)
    return list_.index(action == MoveHome ? 0 : list_.rowCount() - 1, list_.getMainColumn());
  QModelIndex const target = QTableView::moveCursor(action, modifiers);
  return target.siblingAtColumn(list_.getMainColumn());
}

void ListView::startDrag(Qt::DropActions /*actions*/) {
  failures_.guard([this] {
    RCShdPtr<BrBrowsable> const item = list_.getItem(currentIndex().row());
    RCShdPtr<DrCarrier> const carrier = Qv::startDrag(item);
    if (!carrier)
      return;
    auto* const data = new CarrierData(carrier);
    QPointer<CarrierData> const held(data);
    auto* const drag = new QDrag(this);
    drag->setMimeData(data);
    auto const icon =
        list_.data(list_.index(currentIndex().row(), 0), Qt::DecorationRole).value<QIcon>();
    drag->setPixmap(icon.pixmap(iconSize()));
    drag->exec(Qt::CopyAction);
    if (held)
      held->release();
    HostDndRegistry::getInstance().findHandler(*item)->dragAndDropComplete(item, carrier);
  });
}

} // namespace Qv
