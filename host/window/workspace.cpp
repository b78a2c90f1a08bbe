#include "workspace.h"

#include "text.h"

#include "hostError.h"
#include "hostViewFactory.h"

#include <QDragEnterEvent>
#include <QHeaderView>
#include <QTabBar>
#include <QTableWidget>
#include <QVBoxLayout>

namespace Qv {

namespace {

std::string getLabel(std::string const& view) {
  std::string const* const label = HostViewFactory::getInstance().findLabel(view);
  return label ? *label : view;
}

} // namespace

void setUpTable(QTableWidget& table, QStringList const& titles, QString const& name) {
  table.setColumnCount(int(titles.size()));
  table.setAccessibleName(name);
  table.setHorizontalHeaderLabels(titles);
  table.horizontalHeader()->setStretchLastSection(true);
  table.verticalHeader()->hide();
  table.setEditTriggers(QAbstractItemView::NoEditTriggers);
  table.setSelectionBehavior(QAbstractItemView::SelectRows);
  table.setTabKeyNavigation(false);
  table.setShowGrid(false);
  table.setWordWrap(false);
}

void addRow(QTableWidget& table, std::vector<std::string> const& cells) {
  int const row = table.rowCount();
  table.setRowCount(row + 1);
  for (std::size_t column = 0; column < cells.size(); ++column) {
    auto* const cell = new QTableWidgetItem(shown(cells[column]));
    cell->setToolTip(shown(cells[column], Place::Tooltip));
    cell->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    table.setItem(row, int(column), cell);
  }
}

Workspace::Workspace(Failures& failures, MakeView makeView)
    : failures_(failures), makeView_(std::move(makeView)), arrivals_(new QTableWidget) {
  setUpTable(*arrivals_, {"Arrived", "What its selection item says"}, "Arrivals");
  setAccessibleName("Workspace");
  setAcceptDrops(true);
  setDocumentMode(true);
  setTabsClosable(true);
  addTab(arrivals_, "Drop items here");
  tabBar()->setTabButton(0, QTabBar::RightSide, nullptr);
  connect(this, &QTabWidget::tabCloseRequested, this, [this](int tab) { delete widget(tab); });
}

void Workspace::open(HostWorkspace::Request const& request) {
  QString const title = shown(getLabel(request.view), Place::Label);
  QString const name = QString::fromStdString(request.view);
  for (int tab = 0; tab < count() && !request.newWindow; ++tab)
    if (widget(tab)->objectName() == name)
      return setCurrentIndex(tab);
  QWidget* const content = makeView_(request.view);
  if (!content)
    throw HostError("unknown view \"" + request.view + "\"");
  content->setObjectName(name);
  if (!request.newWindow)
    return setCurrentIndex(addTab(content, title));

  auto* const window = new QWidget(this, Qt::Window);
  window->setAttribute(Qt::WA_DeleteOnClose);
  window->setWindowTitle(shown(getLabel(request.view)));
  window->resize(640, 480);
  (new QVBoxLayout(window))->addWidget(content);
  window->show();
}

void Workspace::dragEnterEvent(QDragEnterEvent* event) {
  if (dynamic_cast<CarrierData const*>(event->mimeData()))
    event->acceptProposedAction();
}

void Workspace::dropEvent(QDropEvent* event) {
  auto const* const data = dynamic_cast<CarrierData const*>(event->mimeData());
  if (!data || !data->getCarrier())
    return;
  event->acceptProposedAction();
  failures_.guard([&] {
    for (Drag::Arrival const& arrival : getArrivals(*data->getCarrier())) {
      addRow(*arrivals_, {arrival.what, arrival.dump});
      if (arrival.view.empty())
        setCurrentWidget(arrivals_);
      else
        open({arrival.view, false, true});
    }
    arrivals_->scrollToBottom();
  });
}

} // namespace Qv
