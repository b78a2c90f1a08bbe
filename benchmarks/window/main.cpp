#include "browserWindow.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QStandardItemModel>
#include <charconv>
#include <cstring>
#include <fstream>
#include <iostream>
#include <utility>

// window N: opens a category with N tools in the browser's window, from the click to the picture.
// standard N: shows the same in the same view through a QStandardItemModel.
// Prints milliseconds: in all, of it the module's to give its items, and the longest time between
// two events without that.

namespace Qv {

namespace {

double milliseconds(QElapsedTimer const& clock) { return double(clock.nsecsElapsed()) / 1e6; }

/// Knows for how long events have been handled.
class Application : public QApplication {
public:
  using QApplication::QApplication;

  bool notify(QObject* receiver, QEvent* event) override {
    QElapsedTimer clock;
    clock.start();
    ++depth_;
    bool const result = QApplication::notify(receiver, event);
    if (--depth_ == 0)
      longest = std::max(longest, milliseconds(clock) - std::exchange(excepted, 0));
    return result;
  }

  double longest = 0;
  /// What does not count of the event that is being handled.
  double excepted = 0;

private:
  int depth_ = 0;
};

template <class Widget> Widget& find(QWidget& window, char const* name) {
  for (Widget* const widget : window.findChildren<Widget*>())
    if (widget->accessibleName() == name)
      return *widget;
  throw std::runtime_error(name);
}

/// The time that the module takes to give its items.
double askModule(BrBrowsable& category) {
  QElapsedTimer clock;
  clock.start();
  RCShdPtr<BrChildrenQuery> const query = category.getChildren(AllChildren);
  query->getNextChildSequence();
  return milliseconds(clock);
}

void showStandard(BrBrowsable& category, QTableView& view, Icons& icons) {
  auto* const model = new QStandardItemModel(&view);
  for (RCShdPtr<BrBrowsable> const& item : getChildren(category))
    model->appendRow(
        {new QStandardItem(icons.find(*item, 1), ""),
         new QStandardItem(QString::fromStdString(getAttribute(*item, BrBrowsable::NAME)))});
  model->sort(1);
  view.setModel(model);
}

int measure(std::string_view what, int tools) {
  setenv("QT_QPA_PLATFORM", "minimal:enable_fonts", 1);
  std::string const catalogue = "/tmp/windowBench-" + std::to_string(getpid()) + ".json";
  std::ofstream file(catalogue);
  file << R"({"categories": ["Wood"], "tools": [)";
  for (int tool = 0; tool < tools; ++tool)
    file << (tool ? "," : "") << R"({"category": "Wood", "name": "tool)" << (tool * 7919L) % tools
         << "\"}";
  file << "]}";
  file.close();

  std::optional<Session> session;
  int count = 1;
  char name[] = "windowBench";
  char* arguments[] = {name, nullptr};
  Application application(count, arguments);
  BrowserWindow window(session, {.sources = {catalogue}}, {});
  bool settled = false;
  auto const wait = [&] {
    settled = false;
    while (!settled)
      QApplication::processEvents(QEventLoop::WaitForMoreEvents);
  };
  window.settled = [&](std::string const&) { settled = true; };
  window.show();
  wait();
  std::remove(catalogue.c_str());
  QApplication::processEvents();

  RCShdPtr<BrBrowsable> const category = findItem("tools", "Wood");
  double const module = askModule(*category);
  QElapsedTimer clock;
  if (what == "window") {
    auto& tree = find<QTreeView>(window, "Schemes");
    auto& list = find<ListView>(window, "Items");
    application.longest = 0;
    clock.start();
    // As an event of its own, as a click is.
    QMetaObject::invokeMethod(
        &tree,
        [&] {
          application.excepted = module;
          tree.setCurrentIndex(tree.model()->index(0, 0, tree.model()->index(0, 0)));
        },
        Qt::QueuedConnection);
    wait();
    list.viewport()->repaint();
    std::cout << milliseconds(clock) << ' ' << module << ' ' << application.longest << '\n';
  } else {
    QTableView view;
    view.setSelectionBehavior(QTableView::SelectRows);
    view.verticalHeader()->setDefaultSectionSize(36);
    view.resize(500, 600);
    view.show();
    QApplication::processEvents();
    Icons icons;
    clock.start();
    showStandard(*category, view, icons);
    view.viewport()->repaint();
    std::cout << milliseconds(clock) << ' ' << module << " 0\n";
  }
  return 0;
}

} // namespace

} // namespace Qv

int main(int argc, char** argv) {
  int tools = 0;
  if (argc != 3 ||
      std::from_chars(argv[2], argv[2] + std::strlen(argv[2]), tools).ec != std::errc() ||
      tools <= 0)
    return 2;
  return Qv::measure(argv[1], tools);
}
