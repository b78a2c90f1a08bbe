#pragma once

#include "listModel.h"

#include <QTableView>

namespace Qv {

/// Shows a list, row by row. Items that their handler lets go can be dragged out.
class ListView : public QTableView {
public:
  ListView(Failures& failures, ListModel& list);

  /// Takes the columns of the list over: titles, widths, what may be resized.
  void setColumns();
  void selectRow(int row);

protected:
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  void startDrag(Qt::DropActions actions) override;

private:
  Failures& failures_;
  ListModel& list_;
  QAbstractItemDelegate* icons_;
};

} // namespace Qv
