#include "windowTest.h"

#include "hostBrRegistry.h"
#include "hostError.h"
#include "text.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QToolTip>

namespace Qv {

namespace {

constexpr char Catalogue[] = R"({
  "categories": ["Wood", "Metal", "Kit", "Wood"],
  "tools": [
    {"name": "saw", "category": "Wood", "texts": ["Saw", "Cuts\nacross.", "Shop, 1.0"],
     "tooltip": "Sharp.<br>Mind your hands."},
    {"name": "plane", "category": "Wood"}, {"name": "saw", "category": "Wood"},
    {"name": "file", "category": "Metal"},
    {"name": "Kit", "category": "Kit", "superTool": true}]})";

TEST_F(Window, showsTheContainersOfAllSchemes) {
  open(Catalogue);
  QModelIndex const tools = tree().model()->index(0, 0);
  EXPECT_EQ(texts(*tree().model()), (Texts{"Tools", "Views"}));
  EXPECT_EQ(texts(*tree().model(), tools), (Texts{"Wood", "Metal", "Kit", "Wood"}));
  QModelIndex const wood = tree().model()->index(0, 0, tools);
  EXPECT_FALSE(tree().model()->hasChildren(wood)) << "its tools are not containers";
  settle([&] { click(tree(), wood); });
  EXPECT_EQ(texts(*list().model()), (Texts{"plane", "saw", "saw"}));
  // The same path may come again.
  settle([&] { click(tree(), tree().model()->index(3, 0, tools)); });
  EXPECT_EQ(texts(*list().model()), (Texts{"plane", "saw", "saw"}));
}

TEST_F(Window, listsItemsInTheColumnsOfTheirScheme) {
  open(Catalogue, {"tools", "Wood"});
  QHeaderView const& header = *list().horizontalHeader();
  ASSERT_EQ(header.count(), 2);
  EXPECT_EQ(list().model()->headerData(0, Qt::Horizontal), "Type");
  EXPECT_EQ(list().model()->headerData(1, Qt::Horizontal), "Tool");
  EXPECT_EQ(header.sectionSize(0), 32);
  EXPECT_EQ(header.sectionSize(1), 365);
  EXPECT_EQ(header.sectionResizeMode(0), QHeaderView::Fixed);
  EXPECT_EQ(header.sectionResizeMode(1), QHeaderView::Interactive);
  EXPECT_EQ(header.sortIndicatorSection(), 1);
  list().horizontalHeader()->resizeSection(1, 5);
  EXPECT_EQ(header.sectionSize(1), 40) << "the least that the column allows";

  QModelIndex const icon = list().model()->index(0, 0);
  EXPECT_FALSE(icon.data(Qt::DecorationRole).value<QIcon>().isNull());
  EXPECT_EQ(icon.data(Qt::AccessibleTextRole), "Tool");
}

TEST_F(Window, goesWhereATypedPathLeads) {
  struct Case {
    char const* typed;
    Texts listed;
    char const* selected;
    char const* refusal;
  };
  Texts const root = {"Kit", "Metal", "Wood", "Wood"};
  Texts const wood = {"plane", "saw", "saw"};
  open(Catalogue);
  for (Case const& test :
       std::vector<Case>{{"Wood", wood, "", ""},
                         {"/Wood//saw/", wood, "saw", ""},
                         {"", root, "", ""},
                         {"Wood/mill", wood, "", "tools: no item \"Wood/mill\" is listed"},
                         {"Wood/sow", wood, "",
                          "tools: no item \"Wood/sow\" is listed; did you mean \"Wood/saw\"?"},
                         {"Metal", {"file"}, "", ""},
                         {"a/b/c", {"file"}, "", "tools: \"a/b/c\" has more than two components"},
                         {"Stone/axe", {"file"}, "", "tools: no item \"Stone/axe\" is listed"}}) {
    settle([&] {
      auto& path = find<QLineEdit>("Path");
      path.clear();
      QTest::keyClicks(&path, test.typed);
      QTest::keyClick(&path, Qt::Key_Return);
    });
    EXPECT_EQ(texts(*list().model()), test.listed) << test.typed;
    EXPECT_EQ(list().currentIndex().data().toString(), test.selected) << test.typed;
    EXPECT_EQ(find<QLabel>("Why the path is refused").text().toStdString(), test.refusal);
  }
}

TEST_F(Window, isWorkedWithKeysAlone) {
  open(Catalogue);
  list().setFocus();
  settle([&] {
    QTest::keyClick(&list(), Qt::Key_Down);
    QTest::keyClicks(&list(), "woo");
    QTest::keyClick(&list(), Qt::Key_Return);
  });
  EXPECT_EQ(texts(*list().model()), (Texts{"plane", "saw", "saw"}));
  list().setFocus();
  QTest::keyClick(&list(), Qt::Key_End);
  EXPECT_EQ(list().currentIndex().row(), 2);
  EXPECT_EQ(find<QLineEdit>("Path").text(), "Wood/saw");
  settle([&] { QTest::keyClick(window(), Qt::Key_Up, Qt::AltModifier); });
  EXPECT_EQ(list().currentIndex().data(), "Wood") << "where it came from is selected";
}

TEST_F(Window, showsTheTooltipLineByLine) {
  open(Catalogue, {"tools", "Wood/saw"});
  QPoint const place = list().visualRect(list().currentIndex()).center();
  QHelpEvent help(QEvent::ToolTip, place, list().viewport()->mapToGlobal(place));
  QApplication::sendEvent(list().viewport(), &help);
  EXPECT_EQ(QToolTip::text(), "<html>Cuts\\nacross.<br/>Sharp.<br/>Mind your hands.</html>");
}

TEST_F(Window, drawsTheDetailPageWithTheSizesAndColoursOfItsLayout) {
  open(Catalogue, {"tools", "Wood/saw"});
  auto const& box = find<QPlainTextEdit>("Description");
  EXPECT_EQ(box.toPlainText(), "Cuts\nacross.");
  EXPECT_EQ(box.size(), QSize(340, 120));
  EXPECT_TRUE(box.isReadOnly());
  EXPECT_EQ(box.palette().color(QPalette::Base), QColor("#404040"));
  EXPECT_EQ(box.palette().color(QPalette::Text), QColor("white"));
  auto const& title = find<QLabel>("Full name");
  EXPECT_EQ(title.size(), QSize(120, 24));
  EXPECT_EQ(title.palette().color(QPalette::WindowText), QColor("white"));
  EXPECT_EQ(find<QLabel>("Shop, 1.0").text(), "Shop, 1.0");
  auto* const page = box.parentWidget()->parentWidget();
  EXPECT_EQ(page->size(), QSize(480, 260));
  EXPECT_EQ(page->palette().color(QPalette::Window), QColor("#3a3a3a"));
  QImage const picture = page->grab().toImage();
  EXPECT_EQ(picture.pixelColor(2, 2), QColor("#3a3a3a"));
  EXPECT_FALSE(isOneColour(picture.copy(title.geometry()))) << "its text is missing";
  EXPECT_EQ(find<QLabel>("Thumbnail").pixmap().size(), QSize(128, 128));

  // The page stays and shows the next item.
  QTest::keyClick(&list(), Qt::Key_Up);
  QTest::keyClick(&list(), Qt::Key_Up);
  EXPECT_EQ(list().currentIndex().data(), "plane");
  EXPECT_EQ(&find<QPlainTextEdit>("Description"), &box);
  EXPECT_EQ(box.toPlainText(), "");
}

TEST_F(Window, opensViewsFromTheMenu) {
  open(Catalogue, {"views", "packages"});
  auto const choose = [&](int downs) {
    QPoint const place = list().visualRect(list().currentIndex()).center();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, place, list().mapToGlobal(place));
    QApplication::sendEvent(list().viewport(), &event);
    QMenu& menu = *window()->findChild<QMenu*>();
    Texts actions;
    for (QAction const* const action : menu.actions())
      actions.push_back(action->text().toStdString());
    EXPECT_EQ(actions, (Texts{"Open", "Open in Window"}));
    for (int down = 0; down < downs; ++down)
      QTest::keyClick(&menu, Qt::Key_Down);
    QTest::keyClick(&menu, Qt::Key_Return);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  };
  auto& workspace = find<Workspace>("Workspace");
  choose(1);
  EXPECT_EQ(workspace.tabText(workspace.currentIndex()), "Packages");
  auto const& packages = find<QTableWidget>("Packages");
  EXPECT_FALSE(packages.findItems("pluginBrowserQvmodule", Qt::MatchExactly).empty());
  choose(1);
  EXPECT_EQ(workspace.count(), 2) << "an open view is brought to the front";
  choose(2);
  EXPECT_EQ(workspace.count(), 2);
  Texts titles;
  for (QWidget const* const top : QApplication::topLevelWidgets())
    titles.push_back(top->windowTitle().toStdString());
  EXPECT_EQ(std::count(titles.begin(), titles.end(), "Packages"), 1);
}

TEST_F(Window, keepsTheToolDetailOnTheLastTool) {
  open(Catalogue, {"tools", "Wood/saw"});
  settle([&] { window()->goTo("views", "toolDetail"); });
  QTest::keyClick(&list(), Qt::Key_Return);
  auto& workspace = find<Workspace>("Workspace");
  auto const& box = *workspace.currentWidget()->findChild<QPlainTextEdit*>();
  EXPECT_EQ(box.toPlainText(), "Cuts\nacross.");
  settle([&] { window()->goTo("tools", "Metal/file"); });
  EXPECT_EQ(box.toPlainText(), "");
  QTest::keyClick(window(), Qt::Key_W, Qt::ControlModifier);
  EXPECT_EQ(workspace.count(), 1);
}

TEST_F(Window, followsADarkPalette) {
  QPalette const before = QApplication::palette();
  QPalette dark(QColor("#202020"));
  QApplication::setPalette(dark);
  open(Catalogue, {"tools", "Wood"});
  list().clearSelection();
  QImage const picture = list().viewport()->grab().toImage();
  EXPECT_LT(picture.pixelColor(picture.width() - 2, 2).lightness(), 80);
  QRect const text = list().visualRect(list().model()->index(0, 1));
  int lightest = 0;
  for (int x = text.left(); x < text.right(); ++x)
    lightest = std::max(lightest, picture.pixelColor(x, text.center().y()).lightness());
  EXPECT_GT(lightest, 180);
  close();
  QApplication::setPalette(before);
}

TEST_F(Window, dropsWhatTheHandlerLetsGo) {
  struct Case {
    BrowserWindow::Start start;
    char const* item;
    Texts arrived;
    Qt::Key key;
  };
  for (Case const& test :
       std::vector<Case>{{{"tools", "Wood"}, "saw", {"tool \"saw\""}, {}},
                         {{"tools", "Wood"}, "saw", {}, Qt::Key_Escape},
                         {{"tools", ""}, "Kit", {"tool \"Kit\""}, {}},
                         {{"tools", ""}, "Wood", {}, {}},
                         {{"views", ""}, "Packages", {"view \"packages\""}, {}}}) {
    open(Catalogue, test.start);
    select(test.item);
    dragTo(find<QTableWidget>("Arrivals"), test.key);
    EXPECT_EQ(texts(*find<QTableWidget>("Arrivals").model(), {}, 0), test.arrived) << test.item;
    close();
  }
}

} // namespace

} // namespace Qv
