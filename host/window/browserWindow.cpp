#include "browserWindow.h"

#include "actions.h"
#include "lookup.h"
#include "text.h"

#include "hostBrRegistry.h"
#include "hostBuildInfoRegistry.h"
#include "hostPackageManager.h"
#include "typeName.h"

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <fmt/format.h>

namespace Qv {

namespace {

/// The views that this window can open.
ToolSource windowViews() {
  ToolSource source;
  source.views = {
      {"toolDetail", "Tool Detail", "The detail page of the tool that was selected last"},
      {"startupJournal", "Start-up Journal", "What the module did while it started"},
      {"packages", "Packages", "The packages and their build information"}};
  return source;
}

QTableWidget* makeStartupJournal(Session const& session) {
  auto* const table = new QTableWidget;
  setUpTable(*table, {"Operation", "Key", "Detail"}, "Start-up Journal");
  for (auto const& [operation, key, detail] : session.getStartup())
    addRow(*table, {operation, key, detail});
  table->resizeColumnsToContents();
  return table;
}

QTableWidget* makePackages() {
  auto* const table = new QTableWidget;
  setUpTable(*table, {"Package", "Depends on", "Build information"}, "Packages");
  HostPackageManager const& manager = HostPackageManager::getInstance();
  std::map<std::string, std::string> builds;
  for (OPtr<InBuildInfo> const& info : HostBuildInfoRegistry::getInstance().getInfos())
    builds[info->getLibraryName()] = fmt::format("{} {}, {}", info->getProductName(),
                                                 info->getVersionString(), info->getBuildDate());
  for (InPackageInit const* const package : manager.getPackages()) {
    std::string dependencies;
    for (std::type_info const* const needed : package->getDependencies()) {
      InPackageInit const* const dependency = manager.find(*needed);
      dependencies += (dependencies.empty() ? "" : ", ") +
                      std::string(dependency ? dependency->getName() : typeName(*needed));
    }
    auto const build = builds.find(package->getName());
    addRow(*table, {package->getName(), dependencies, build == builds.end() ? "" : build->second});
  }
  table->resizeColumnsToContents();
  return table;
}

QLabel* makePlainLabel(QString const& name) {
  auto* const label = new QLabel;
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setAccessibleName(name);
  return label;
}

QSplitter* makeSplitter(Qt::Orientation orientation, std::initializer_list<QWidget*> widgets,
                        QList<int> const& sizes) {
  auto* const splitter = new QSplitter(orientation);
  for (QWidget* const widget : widgets)
    splitter->addWidget(widget);
  splitter->setChildrenCollapsible(false);
  splitter->setSizes(sizes);
  return splitter;
}

} // namespace

/// What came of reading the sources.
struct BrowserWindow::Sources {
  std::vector<ToolSource> sources;
  std::string failure;
  /// What was done without, for instance the cache.
  std::string notice;
};

BrowserWindow::BrowserWindow(std::optional<Session>& session, Session::Options options, Start start)
    : session_(session), options_(std::move(options)), start_(std::move(start)),
      failures_([this](std::string const& reason) { say(reason); }),
      tree_(new TreeModel(failures_, icons_)),
      list_(new ListModel(failures_, icons_, [this] { listChanged(); })) {
  build();
  refresh(false);
}

BrowserWindow::~BrowserWindow() {
  closed_ = true;
  if (reader_.joinable())
    reader_.join();
  // The views first: they hold what the members below them are for.
  treeView_->selectionModel()->disconnect(this);
  listView_->selectionModel()->disconnect(this);
  delete takeCentralWidget();
}

void BrowserWindow::build() {
  setWindowTitle("Asset Browser");
  resize(1280, 800);
  statusBar();

  treeView_ = new QTreeView;
  treeView_->setModel(tree_.get());
  treeView_->setAccessibleName("Schemes");
  treeView_->setHeaderHidden(true);
  treeView_->setUniformRowHeights(true);
  treeView_->setIconSize({24, 24});
  treeView_->setContextMenuPolicy(Qt::CustomContextMenu);
  listView_ = new ListView(failures_, *list_);
  listView_->setContextMenuPolicy(Qt::CustomContextMenu);
  searchView_ = new SearchView(
      failures_, [this](std::string const& text) { say(text); },
      [this](std::string const& scheme, std::string const& path) { goTo(scheme, path); });
  empty_ = makePlainLabel("Items");
  empty_->setAlignment(Qt::AlignCenter);
  middle_ = new QStackedWidget;
  for (QWidget* const widget : {static_cast<QWidget*>(listView_),
                                static_cast<QWidget*>(searchView_), static_cast<QWidget*>(empty_)})
    middle_->addWidget(widget);
  detail_ = new DetailView(failures_);
  workspace_ = new Workspace(failures_, [this](std::string const& name) { return makeView(name); });

  problems_ = new QWidget;
  problemCount_ = makePlainLabel("Plug-ins left out");
  problemTable_ = new QTableWidget;
  setUpTable(*problemTable_, {"Plug-in", "Reason"}, "Plug-ins left out");
  auto* const retry = new QPushButton("&Try again");
  auto* const problemLayout = new QVBoxLayout(problems_);
  auto* const problemHead = new QHBoxLayout;
  problemHead->addWidget(problemCount_, 1);
  problemHead->addWidget(retry);
  problemLayout->addLayout(problemHead);
  problemLayout->addWidget(problemTable_);
  problems_->hide();

  auto* const center = new QWidget;
  auto* const layout = new QVBoxLayout(center);
  layout->addWidget(buildBar());
  layout->addWidget(
      makeSplitter(Qt::Horizontal,
                   {treeView_, makeSplitter(Qt::Vertical, {middle_, problems_}, {600, 160}),
                    makeSplitter(Qt::Vertical, {detail_, workspace_}, {460, 280})},
                   {220, 500, 560}),
      1);
  setCentralWidget(center);

  connect(treeView_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](QModelIndex const& index) { openContainer(index); });
  connect(treeView_, &QTreeView::expanded, this, [this](QModelIndex const& index) {
    failures_.guard([&] {
      RCShdPtr<BrBrowsable> const item = tree_->getItem(index);
      item->getServer()->nodeExpanded(BrNode::create(item));
    });
  });
  connect(treeView_, &QTreeView::collapsed, this, [this](QModelIndex const& index) {
    failures_.guard([&] {
      RCShdPtr<BrBrowsable> const item = tree_->getItem(index);
      item->getServer()->nodeCollapsed(BrNode::create(item));
    });
  });
  connect(treeView_, &QTreeView::customContextMenuRequested, this, [this](QPoint const& place) {
    QModelIndex const index = treeView_->indexAt(place);
    if (index.isValid())
      showMenu(tree_->getItem(index), treeView_->viewport()->mapToGlobal(place));
  });
  connect(listView_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this](QModelIndex const& index) {
            select(index.isValid() ? list_->getItem(index.row()) : RCShdPtr<BrBrowsable>());
          });
  connect(listView_, &QTableView::clicked, this, [this](QModelIndex const& index) {
    failures_.guard([&] {
      BrAttrib const& column = *list_->getColumns()[std::size_t(index.column())];
      list_->getItem(index.row())->notifyClick(int(column.getAttributeId()));
    });
  });
  connect(listView_, &QTableView::activated, this, [this](QModelIndex const& index) {
    activate(RCShdPtr<BrBrowsable>(list_->getItem(index.row())));
  });
  connect(listView_, &QTableView::customContextMenuRequested, this, [this](QPoint const& place) {
    QModelIndex const index = listView_->indexAt(place);
    if (index.isValid())
      showMenu(list_->getItem(index.row()), listView_->viewport()->mapToGlobal(place));
  });
  connect(retry, &QPushButton::clicked, this, [this] { refresh(true); });

  auto const onKey = [this](QKeySequence const& key, auto const& call) {
    connect(new QShortcut(key, this), &QShortcut::activated, this, call);
  };
  onKey(Qt::Key_F5, [this] { refresh(false); });
  onKey(Qt::ALT | Qt::Key_Up, [this] { goUp(); });
  onKey(Qt::CTRL | Qt::Key_L, [this] { path_->setFocus(), path_->selectAll(); });
  onKey(Qt::CTRL | Qt::Key_F, [this] { searchText_->setFocus(), searchText_->selectAll(); });
  onKey(QKeySequence::Quit, [this] { close(); });
  onKey(Qt::CTRL | Qt::Key_W, [this] {
    if (workspace_->currentIndex() > 0)
      delete workspace_->currentWidget();
  });
  onKey(Qt::Key_Escape, [this] {
    searchView_->cancel();
    middle_->setCurrentWidget(list_->rowCount() > 0 ? static_cast<QWidget*>(listView_) : empty_);
    refusal_->clear();
  });
}

QWidget* BrowserWindow::buildBar() {
  auto* const bar = new QWidget;
  auto* const layout = new QHBoxLayout(bar);
  layout->setContentsMargins(0, 0, 0, 0);
  auto* const up = new QToolButton;
  up->setArrowType(Qt::UpArrow);
  up->setAccessibleName("Up");
  up->setToolTip("Up (Alt+Up)");
  scheme_ = new QComboBox;
  scheme_->setAccessibleName("Scheme");
  scheme_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  path_ = new QLineEdit;
  path_->setAccessibleName("Path");
  path_->setPlaceholderText("Path (Ctrl+L)");
  refusal_ = makePlainLabel("Why the path is refused");
  searchText_ = new QLineEdit;
  searchText_->setAccessibleName("Search");
  searchText_->setPlaceholderText("Search (Ctrl+F)");
  searchText_->setClearButtonEnabled(true);
  layout->addWidget(up);
  layout->addWidget(scheme_);
  layout->addWidget(path_, 3);
  layout->addWidget(refusal_, 2);
  layout->addWidget(searchText_, 1);

  connect(up, &QToolButton::clicked, this, [this] { goUp(); });
  connect(scheme_, &QComboBox::activated, this,
          [this] { goTo(scheme_->currentData().toString().toStdString(), ""); });
  connect(path_, &QLineEdit::returnPressed, this, [this] {
    goTo(scheme_->currentData().toString().toStdString(), path_->text().toStdString());
  });
  connect(searchText_, &QLineEdit::returnPressed, this, [this] { search(); });
  return bar;
}

void BrowserWindow::closeEvent(QCloseEvent* event) {
  closed_ = true;
  QMainWindow::closeEvent(event);
}

void BrowserWindow::refresh(bool retry) {
  if (reader_.joinable())
    return;
  say("reading tools");
  if (!session_)
    showEmpty("Reading tools");
  Session::Options options = options_;
  options.scan.retry = retry;
  auto const post = [this](auto call) {
    QMetaObject::invokeMethod(this, std::move(call), Qt::QueuedConnection);
  };
  options.scan.progress = [this, post](std::string const& text) {
    if (closed_)
      throw std::runtime_error("the window is closed");
    post([this, text] { say(text); });
  };
  auto const result = std::make_shared<Sources>();
  options.scan.notice = [result](std::string const& text) { result->notice = text; };
  reader_ = std::thread([this, options, post, result] {
    try {
      result->sources = Session::read(options);
    } catch (...) {
      result->failure = describeException();
    }
    post([this, result] { takeSources(std::move(*result)); });
  });
}

void BrowserWindow::takeSources(Sources sources) {
  reader_.join();
  bool const first = !session_;
  if (sources.failure.empty()) {
    try {
      // Views that only somebody else could open are not offered.
      for (ToolSource& source : sources.sources)
        source.views.clear();
      sources.sources.push_back(windowViews());
      if (first)
        session_.emplace(options_, std::move(sources.sources));
      else
        session_->refill(std::move(sources.sources));
    } catch (...) {
      sources.failure = describeException();
    }
  }
  say(sources.failure.empty() ? sources.notice : sources.failure);
  if (!sources.failure.empty()) {
    if (!session_)
      showEmpty(shown(sources.failure, Place::Box) + "\n\nF5 tries again.");
    return settled(sources.failure);
  }

  showProblems();
  failures_.guard([&] {
    QModelIndex const current = treeView_->currentIndex();
    std::string const path = selected_ ? selected_->getPath() : std::string();
    QPersistentModelIndex const kept(current);
    tree_->refresh();
    scheme_->clear();
    for (OPtr<BrServer> const& server : HostBrRegistry::getInstance().getServers()) {
      std::string const name = server->getSchemeName();
      scheme_->addItem(shown(name), QString::fromStdString(name));
      if (!first)
        server->rescanPerformed();
    }
    if (first) {
      for (int row = 0; row < tree_->rowCount(); ++row)
        treeView_->expand(tree_->index(row, 0));
      if (start_.scheme.empty() && scheme_->count() > 0)
        start_.scheme = scheme_->itemData(0).toString().toStdString();
      goTo(start_.scheme, start_.path);
      if (!treeView_->currentIndex().isValid())
        treeView_->setCurrentIndex(tree_->index(0, 0));
      return;
    }
    if (selected_)
      wanted_ = path;
    scrollBack_ = listView_->verticalScrollBar()->value();
    openContainer(kept.isValid() ? QModelIndex(kept) : tree_->index(0, 0));
  });
}

void BrowserWindow::showProblems() {
  problemTable_->setRowCount(0);
  for (ToolSource::Plugin const& plugin : session_->getPlugins())
    if (!plugin.failure.empty())
      addRow(*problemTable_, {plugin.file.string(), plugin.failure});
  int const count = problemTable_->rowCount();
  problemCount_->setText(
      QString("%1 plug-in%2 left out").arg(count).arg(count == 1 ? " is" : "s are"));
  problemTable_->resizeColumnToContents(0);
  problems_->setVisible(count > 0);
}

void BrowserWindow::goTo(std::string const& scheme, std::string const& path) {
  refusal_->clear();
  try {
    BrServer& server = HostBrRegistry::getInstance().getServer(scheme);
    std::vector<std::string> names =
        splitPath(findItem(scheme, server.resolvePath(path))->getPath());
    QModelIndex const nearest = tree_->findNearest(scheme, names);
    std::size_t const depth = splitPath(tree_->getItem(nearest)->getPath()).size();
    if (depth + 1 < names.size())
      findListedItems(scheme, {path}); // Says what is not listed.
    wanted_.reset();
    if (depth < names.size())
      wanted_ = joinPath(names);
    if (treeView_->currentIndex() == nearest)
      openContainer(nearest);
    else
      treeView_->setCurrentIndex(nearest);
  } catch (...) {
    std::string const reason = describeException();
    refusal_->setText(shown(reason));
    settled(reason);
  }
}

void BrowserWindow::openContainer(QModelIndex const& index) {
  failures_.guard([&] {
    if (!index.isValid())
      return;
    container_ = tree_->getItem(index);
    scheme_->setCurrentIndex(
        scheme_->findData(QString::fromStdString(container_->getSchemeName())));
    list_->show(container_);
  });
}

void BrowserWindow::listChanged() {
  listView_->setColumns();
  middle_->setCurrentWidget(listView_);
  if (list_->rowCount() == 0)
    showEmpty("Nothing here.");
  int row = -1;
  std::string reason;
  if (wanted_) {
    row = list_->findRow(*wanted_);
    if (row < 0) {
      try {
        findListedItems(container_->getSchemeName(), {*wanted_});
      } catch (...) {
        reason = describeException();
        refusal_->setText(shown(reason));
      }
    }
  }
  wanted_.reset();
  if (row >= 0)
    listView_->selectRow(row);
  else
    select(RCShdPtr<BrBrowsable>());
  if (scrollBack_)
    listView_->verticalScrollBar()->setValue(*scrollBack_);
  scrollBack_.reset();
  settled(reason);
}

void BrowserWindow::select(RCShdPtr<BrBrowsable> const& item) {
  failures_.guard([&] {
    if (RCShdPtr<BrBrowsable> const before = std::exchange(selected_, item)) {
      before->select(false);
      before->getServer()->unselected(before);
    }
    if (item) {
      item->select(true);
      item->getServer()->selected(item);
    }
  });
  failures_.guard([&] {
    RCShdPtr<BrBrowsable> const shownItem = item ? item : container_;
    path_->setText(QString::fromStdString(shownItem->getPath()));
    if (detail_->show(shownItem)) {
      detailed_ = shownItem;
      for (QWidget* const widget : workspace_->findChildren<QWidget*>())
        if (auto* const view = dynamic_cast<DetailView*>(widget))
          view->show(detailed_);
    }
    setWindowTitle(shown(getAttribute(*shownItem, BrBrowsable::NAME)) + " - Asset Browser");
  });
}

void BrowserWindow::activate(RCShdPtr<BrBrowsable> const& item) {
  failures_.guard([&] {
    if (item->isAContainer())
      return goTo(item->getSchemeName(), item->getPath());
    for (OfferedAction const& action : getActions(item))
      if (action.valid)
        return perform(action.name, item);
  });
}

void BrowserWindow::goUp() {
  failures_.guard([&] {
    if (!container_ || container_->getPath().empty())
      return;
    std::string const path = container_->getPath();
    std::string const parent = container_->getServer()->getParentPath(path);
    goTo(container_->getSchemeName(), parent);
    wanted_ = path;
  });
}

void BrowserWindow::showMenu(RCShdPtr<BrBrowsable> const& item, QPoint const& place) {
  failures_.guard([&] {
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (OfferedAction const& action : getActions(item))
      if (action.valid)
        connect(
            menu->addAction(shown(action.display, Place::Label)), &QAction::triggered, this,
            [this, item, name = action.name] { failures_.guard([&] { perform(name, item); }); });
    if (menu->isEmpty())
      menu->addAction("No actions for this item")->setEnabled(false);
    menu->popup(place);
  });
}

void BrowserWindow::perform(std::string const& action, RCShdPtr<BrBrowsable> const& item) {
  for (HostWorkspace::Request const& request : performAction(action, item))
    workspace_->open(request);
}

QWidget* BrowserWindow::makeView(std::string const& name) {
  if (name == "toolDetail") {
    auto* const view = new DetailView(failures_);
    view->show(detailed_);
    return view;
  }
  if (name == "startupJournal")
    return makeStartupJournal(*session_);
  return name == "packages" ? makePackages() : nullptr;
}

void BrowserWindow::search() {
  failures_.guard([&] {
    if (!container_ || searchText_->text().isEmpty())
      return;
    middle_->setCurrentWidget(searchView_);
    searchView_->start(container_->getServer()->getRootNode()->getBrowsable(),
                       searchText_->text().toStdString());
    searchView_->setFocus();
  });
}

void BrowserWindow::say(std::string const& text) { statusBar()->showMessage(shown(text)); }

void BrowserWindow::showEmpty(QString const& text) {
  empty_->setText(text);
  middle_->setCurrentWidget(empty_);
}

} // namespace Qv
