#pragma once

#include "detailView.h"
#include "listView.h"
#include "searchView.h"
#include "session.h"
#include "treeModel.h"
#include "workspace.h"

#include <QMainWindow>
#include <QTreeView>
#include <atomic>
#include <thread>

class QComboBox;
class QLineEdit;
class QStackedWidget;

namespace Qv {

/// The asset browser: the tree of all schemes, the list of what an item of it holds, and the
/// details of what is selected there.
class BrowserWindow : public QMainWindow {
public:
  /// What is shown first.
  struct Start {
    std::string scheme;
    std::string path;
  };

  /// Shows an empty window's content, and starts to read the sources.
  /// @param session is opened when they have been read. It must outlive the application: what the
  /// module gave out goes with the window's last event.
  BrowserWindow(std::optional<Session>& session, Session::Options options, Start start);
  ~BrowserWindow() override;

  /// Called when nothing is under way any more, with why nothing can be shown, if so.
  std::function<void(std::string const& failure)> settled = [](std::string const&) {};

  /// Reads the sources again, and shows them in place of what was there.
  /// @param retry whether plug-ins that failed are tried again.
  void refresh(bool retry);
  void goTo(std::string const& scheme, std::string const& path);

protected:
  void closeEvent(QCloseEvent* event) override;

private:
  struct Sources;

  void build();
  QWidget* buildBar();
  QWidget* makeView(std::string const& name);
  void takeSources(Sources sources);
  void showProblems();
  void openContainer(QModelIndex const& index);
  void listChanged();
  void select(RCShdPtr<BrBrowsable> const& item);
  void activate(RCShdPtr<BrBrowsable> const& item);
  void goUp();
  void showMenu(RCShdPtr<BrBrowsable> const& item, QPoint const& place);
  void perform(std::string const& action, RCShdPtr<BrBrowsable> const& item);
  void search();
  void say(std::string const& text);
  void showEmpty(QString const& text);

  std::optional<Session>& session_;
  Session::Options options_;
  Start start_;

  Failures failures_;
  Icons icons_;
  std::unique_ptr<TreeModel> tree_;
  std::unique_ptr<ListModel> list_;

  std::thread reader_;
  std::atomic<bool> closed_ = false;

  /// What the list shows the children of, what is selected in it, and what is to be selected.
  RCShdPtr<BrBrowsable> container_;
  RCShdPtr<BrBrowsable> selected_;
  /// The last selected item that has a detail page, for the views of that.
  RCShdPtr<BrBrowsable> detailed_;
  std::optional<std::string> wanted_;
  int wantedOccurrence_ = 0;
  std::optional<int> scrollBack_;

  QComboBox* scheme_ = nullptr;
  QLineEdit* path_ = nullptr;
  QLabel* refusal_ = nullptr;
  QLineEdit* searchText_ = nullptr;
  QTreeView* treeView_ = nullptr;
  ListView* listView_ = nullptr;
  QLabel* empty_ = nullptr;
  QStackedWidget* middle_ = nullptr;
  SearchView* searchView_ = nullptr;
  DetailView* detail_ = nullptr;
  Workspace* workspace_ = nullptr;
  QWidget* problems_ = nullptr;
  QLabel* problemCount_ = nullptr;
  QTableWidget* problemTable_ = nullptr;
};

} // namespace Qv
