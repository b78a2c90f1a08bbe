#pragma once

#include "browserWindow.h"
#include "temporaryDirectory.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDrag>
#include <QLabel>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace Qv {

using Texts = std::vector<std::string>;

/// Opens windows on the one platform without a screen that draws texts and can drag.
class Window : public testing::Test, protected TemporaryDirectory {
protected:
  Window() {
    // Of this process alone, for the program's whole life.
    static int count = 1;
    static char name[] = "windowTests";         // NOLINT(modernize-avoid-c-arrays)
    static char* arguments[] = {name, nullptr}; // NOLINT(modernize-avoid-c-arrays)
    setenv("QT_QPA_PLATFORM", "minimal:enable_fonts", 1);
    static auto* const application = new QApplication(count, arguments);
    static_cast<void>(application);
  }
  ~Window() override { close(); }

  void open(std::string const& catalogue, BrowserWindow::Start const& start = {}) {
    openSource(write("catalogue.json", catalogue), start);
  }
  void openSource(std::string const& source, BrowserWindow::Start const& start = {}) {
    close();
    settle([&] {
      window_ =
          std::make_unique<BrowserWindow>(session_, Session::Options{.sources = {source}}, start);
      window_->show();
    });
  }
  void close() {
    window_.reset();
    session_.reset();
  }

  /// Waits until what the call starts has come to its end.
  template <class Call> void settle(Call const& call) {
    settled_ = false;
    call();
    window_->settled = [this](std::string const& failure) {
      settled_ = true;
      failure_ = failure;
    };
    wait([this] { return settled_; });
  }
  template <class Condition> void wait(Condition const& condition) {
    constexpr int AtMost = 120'000;
    ASSERT_TRUE(QTest::qWaitFor(condition, AtMost));
  }

  BrowserWindow* window() { return window_.get(); }
  /// The widget that a screen reader calls by that name.
  template <class Widget> Widget& find(char const* name) {
    for (Widget* const widget : window_->findChildren<Widget*>())
      if (widget->accessibleName() == name)
        return *widget;
    throw std::runtime_error(std::string("no widget \"") + name + "\"");
  }
  QTreeView& tree() { return find<QTreeView>("Schemes"); }
  QTableView& list() { return find<ListView>("Items"); }

  /// What a column shows, by default the last.
  static Texts texts(QAbstractItemModel const& model, QModelIndex const& parent = {},
                     int column = -1) {
    Texts result;
    for (int row = 0; row < model.rowCount(parent); ++row)
      result.push_back(model.index(row, column < 0 ? model.columnCount(parent) - 1 : column, parent)
                           .data()
                           .toString()
                           .toStdString());
    return result;
  }
  static void click(QAbstractItemView& view, QModelIndex const& index) {
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
  }
  void select(std::string const& text) {
    Texts const all = texts(*list().model());
    auto const row = std::find(all.begin(), all.end(), text) - all.begin();
    click(list(), list().model()->index(int(row), 1));
  }

  /// Drags the selected item to a widget, and drops it there or presses a key.
  void dragTo(QWidget& target, Qt::Key key) {
    QWidget& source = *list().viewport();
    QPoint const from = list().visualRect(list().currentIndex()).center();
    QWidget& top = *window();
    auto const at = [&](QWidget& widget, QPoint const& place) { return widget.mapTo(&top, place); };
    QPoint const to = at(target, target.rect().center());
    // The drag has a loop of its own.
    QTimer inDrag;
    QObject::connect(&inDrag, &QTimer::timeout, &top, [&] {
      if (!list().findChild<QDrag*>())
        return;
      inDrag.stop();
      QTest::mouseMove(top.windowHandle(), to);
      QTest::mouseMove(top.windowHandle(), to + QPoint(3, 3));
      if (key)
        QTest::keyClick(top.windowHandle(), key);
      else
        QTest::mouseRelease(top.windowHandle(), Qt::LeftButton, {}, to + QPoint(3, 3));
    });
    inDrag.start(0);
    QPoint const start = at(source, from);
    QTest::mousePress(top.windowHandle(), Qt::LeftButton, {}, start);
    QTest::mouseMove(top.windowHandle(), start + QPoint(0, 12));
    QTest::mouseMove(top.windowHandle(), start + QPoint(0, 30));
    if (key)
      QTest::mouseRelease(top.windowHandle(), Qt::LeftButton, {}, to);
    QApplication::processEvents();
  }

  static bool isOneColour(QImage const& image) {
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        if (image.pixel(x, y) != image.pixel(0, 0))
          return false;
    return true;
  }

  std::optional<Session> session_;
  std::unique_ptr<BrowserWindow> window_;
  std::string failure_;

private:
  bool settled_ = false;
};

} // namespace Qv
