#include "windowTest.h"

#include "hostBrRegistry.h"
#include "hostError.h"
#include "iteratorSTL.imp.h"

#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QStatusBar>
#include <nlohmann/json.hpp>
#include <sys/stat.h>

// What the window does as a host: with texts and exceptions of a module that nobody knows, with the
// calls that a module may rely on, and with sources that change.

namespace Qv {

namespace {

/// What was called, in order.
Texts& calls() {
  static Texts all;
  return all;
}

class StrangeItem;

/// A scheme of somebody else. While it fails, so does every call to an item.
class StrangeServer : public BrServer {
public:
  StrangeServer() {
    RCShdPtr<BrAttrib> const column = BrAttrib::create(name, BrBrowsable::NAME, BrBrowsable::STRING,
                                                       10, 4000, {}, {}, {}, {}, {});
    column->setDisplayed(true);
    column->setCurrentW(300);
    getAttributesList()->append(column);
  }
  BrServer* clone() const override { return new StrangeServer; }
  RCShdPtr<BrNode> getNode(LiString const& path, LiString& message) override;
  LiString getSchemeName() const override { return "strange"; }
  void selected(RCShdPtr<RCBase<LkCounter<int>>> const& item) override { log("selected", item); }
  void unselected(RCShdPtr<RCBase<LkCounter<int>>> const& item) override {
    log("unselected", item);
  }
  void nodeExpanded(RCShdPtr<BrNode> const& node) override {
    log("nodeExpanded", node->getBrowsable());
  }
  void nodeCollapsed(RCShdPtr<BrNode> const& node) override {
    log("nodeCollapsed", node->getBrowsable());
  }
  void rescanPerformed() override { calls().emplace_back("rescanPerformed"); }

  static inline std::string name = "plain";
  static inline bool fails = false;

private:
  static void log(char const* call, RCShdPtr<RCBase<LkCounter<int>>> const& item);
};

class StrangeItem : public BrBrowsable {
public:
  StrangeItem(BrServer* server, LiString const& path) : BrBrowsable(server), path_(path) {}

  LiString const& getSchemeName() const override {
    static LiString const scheme("strange");
    return scheme;
  }
  LiString getPath() const override { return path_; }
  using BrBrowsable::get;
  void get(int /*attributeId*/, LiString* value) override {
    mayFail();
    *value = StrangeServer::name;
  }
  std::string getTooltip(int /*attributeId*/) const override {
    mayFail();
    return StrangeServer::name;
  }
  RCShdPtr<WsManagedImage> getImage(int /*id*/, GeVector2<int> const& /*size*/) override {
    mayFail();
    return RCShdPtr<WsManagedImage>();
  }
  void notifyClick(int attributeId) override {
    calls().push_back("notifyClick " + std::to_string(attributeId));
    mayFail();
  }
  bool isAContainer() const override { return path_.empty() || path_ == "box"; }
  bool hasChildren(ChildSearchType /*type*/, ChildSearchOption /*option*/) const override {
    mayFail();
    return path_.empty();
  }
  RCShdPtr<BrChildrenQuery> getChildren(FindFilter /*filter*/) override;
  bool isEqualTo(BrBrowsable const& other) const override { return other.getPath() == path_; }

private:
  static void mayFail() {
    if (StrangeServer::fails)
      throw std::runtime_error("strange failure");
  }

  LiString path_;
};

/// Gives one child in each sequence.
class StrangeQuery : public BrChildrenQuery {
public:
  using BrChildrenQuery::BrChildrenQuery;
  void reset() override { next_ = 0; }
  Iterator<RCShdPtr<BrBrowsable>> getNextChildSequence() override {
    using List = Vector<RCShdPtr<BrBrowsable>>;
    RCStrongPtr<List> const list(new List);
    if (getParent()->getPath().empty() && next_ < 2)
      list->push_back(RCShdPtr<BrBrowsable>(
          new StrangeItem(getParent()->getServer(), next_++ == 0 ? "box" : "thing")));
    return makeIterator(list);
  }

private:
  int next_ = 0;
};

RCShdPtr<BrChildrenQuery> StrangeItem::getChildren(FindFilter /*filter*/) {
  mayFail();
  return RCShdPtr<BrChildrenQuery>(new StrangeQuery(this));
}

RCShdPtr<BrNode> StrangeServer::getNode(LiString const& path, LiString& /*message*/) {
  return BrNode::create(RCShdPtr<BrBrowsable>(new StrangeItem(this, path)));
}

void StrangeServer::log(char const* call, RCShdPtr<RCBase<LkCounter<int>>> const& item) {
  calls().push_back(std::string(call) + ' ' + item.checkedCast<StrangeItem>()->getPath());
}

class StrangeWindow : public Window {
protected:
  void openStrange(std::string const& name) {
    StrangeServer::fails = false;
    StrangeServer::name = name;
    open(R"({"categories": ["Wood"]})");
    HostBrRegistry::getInstance().registerServer(OPtr<BrServer>(new StrangeServer));
    settle([&] { QTest::keyClick(window(), Qt::Key_F5); });
    calls().clear();
    root_ = tree().model()->index(2, 0);
    settle([&] { click(tree(), root_); });
  }

  QModelIndex root_;
};

TEST_F(StrangeWindow, tellsTheSchemeWhatUsersDo) {
  openStrange("plain");
  tree().expand(root_);
  tree().collapse(root_);
  click(list(), list().model()->index(1, 0));
  click(list(), list().model()->index(0, 0));
  settle([&] { QTest::keyClick(window(), Qt::Key_F5); });
  EXPECT_EQ(calls(), (Texts{"nodeExpanded ", "nodeCollapsed ", "selected thing", "notifyClick 1",
                            "unselected thing", "selected box", "notifyClick 1", "rescanPerformed",
                            "unselected box", "selected box"}));
  EXPECT_EQ(texts(*tree().model(), tree().model()->index(2, 0)), Texts{"plain"})
      << "only what is a container";
}

TEST_F(StrangeWindow, goesOnWhereAnItemFails) {
  openStrange("plain");
  click(list(), list().model()->index(1, 0));
  StrangeServer::fails = true;
  window()->statusBar()->clearMessage();
  QModelIndex const cell = list().model()->index(0, 0);
  EXPECT_FALSE(cell.data().isValid());
  EXPECT_EQ(window()->statusBar()->currentMessage(), "strange failure");
  click(list(), cell);
  tree().expand(root_);
  EXPECT_FALSE(tree().grab().isNull());
  settle([&] { QTest::keyClick(window(), Qt::Key_F5); });
  EXPECT_EQ(list().model()->rowCount(), 0);
  StrangeServer::fails = false;
  settle([&] { QTest::keyClick(window(), Qt::Key_F5); });
  EXPECT_EQ(texts(*list().model()), (Texts{"plain", "plain"}));
}

TEST_F(StrangeWindow, showsTextsOfStrangersAsTheyAre) {
  // Qt would wait for ever for what comes out of the pipe.
  std::string const pipe = directory_ / "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  for (std::string const& text :
       {"<img src='" + pipe + "'>", "<html><b>&amp;bold</b><br><img src=\"file://" + pipe + "\">",
        std::string(1 << 20, 'x'), std::string("a\x1b[31m\xff\n\tb&c"),
        std::string("safe\xe2\x80\xaegnp.exe")}) {
    openStrange(text);
    QModelIndex const cell = list().model()->index(1, 0);
    click(list(), cell);
    EXPECT_FALSE(window()->grab().isNull());
    EXPECT_LE(cell.data().toString().size(), 5'000);
    QString const tooltip = cell.data(Qt::ToolTipRole).toString();
    EXPECT_TRUE(tooltip.startsWith("<html>"));
    EXPECT_FALSE(tooltip.contains("<img"));
    QHelpEvent help(QEvent::ToolTip, list().visualRect(cell).center(), QPoint(5, 5));
    QApplication::sendEvent(list().viewport(), &help);
    EXPECT_FALSE(cell.data().toString().contains('\x1b'));
    for (QLabel const* const label : window()->findChildren<QLabel*>()) {
      if (!label->text().isEmpty() && label->text() != tooltip) {
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->text().left(80).toStdString();
      }
    }

    // The same as name, texts and tooltip of a tool, as path, and as view.
    using Json = nlohmann::json;
    Json const tool = {
        {"name", "t"}, {"category", "c"}, {"texts", {text, text, text}}, {"tooltip", text}};
    open(Json{{"tools", {tool}}}.dump(-1, ' ', false, Json::error_handler_t::replace),
         {"tools", "c/t"});
    EXPECT_FALSE(window()->grab().isNull());
    settle([&] { window()->goTo("tools", text); });
    find<Workspace>("Workspace").open({"packages", false, true});
    EXPECT_FALSE(window()->grab().isNull());
  }
}

TEST_F(Window, mergesWhatHasChanged) {
  std::string many;
  for (int tool = 100; tool < 400; ++tool)
    many += R"({"name": "tool)" + std::to_string(tool) + R"(", "category": "Wood"},)";
  auto const catalogue = [&](std::string const& categories) {
    return R"({"categories": [)" + categories + R"(], "tools": [)" + many +
           R"({"name": "saw", "category": "Wood"}]})";
  };
  open(catalogue(R"("Metal", "Wood", "Wood")"), {"tools", "Wood/tool250"});
  QModelIndex const tools = tree().model()->index(0, 0);
  settle([&] { click(tree(), tree().model()->index(2, 0, tools)); });
  select("tool250");
  list().verticalScrollBar()->setValue(1234);
  write("catalogue.json", catalogue(R"("Wood", "Air", "Wood")"));
  settle([&] { QTest::keyClick(window(), Qt::Key_F5); });
  EXPECT_EQ(texts(*tree().model(), tools), (Texts{"Wood", "Air", "Wood"}));
  EXPECT_TRUE(tree().isExpanded(tools));
  EXPECT_EQ(tree().currentIndex(), tree().model()->index(2, 0, tools)) << "the second of its name";
  EXPECT_EQ(list().currentIndex().data(), "tool250");
  EXPECT_EQ(list().verticalScrollBar()->value(), 1234);

  write("catalogue.json", "{");
  settle([&] { QTest::keyClick(window(), Qt::Key_F5); });
  EXPECT_NE(failure_, "");
  EXPECT_EQ(window()->statusBar()->currentMessage().toStdString(), failure_);
  EXPECT_EQ(texts(*tree().model(), tools).size(), 3U) << "what there was stays";
}

TEST_F(Window, searchesAndLeadsToAHit) {
  open(
      R"({"tools": [{"name": "saw", "category": "Wood"}, {"name": "SAWMILL", "category": "Big"}]})");
  auto& text = find<QLineEdit>("Search");
  auto& hits = find<SearchView>("Hits");
  QTest::keyClicks(&text, "saw");
  QTest::keyClick(&text, Qt::Key_Return);
  wait([&] { return hits.rowCount() > 0; });
  EXPECT_EQ(texts(*hits.model(), {}, 0), (Texts{"saw", "SAWMILL"}));
  settle([&] {
    QTest::keyClick(&hits, Qt::Key_Down);
    QTest::keyClick(&hits, Qt::Key_Return);
  });
  EXPECT_EQ(list().currentIndex().data(), "SAWMILL");

  QTest::keyClick(&text, Qt::Key_Return);
  QTest::keyClick(window(), Qt::Key_Escape);
  EXPECT_TRUE(window()->statusBar()->currentMessage().startsWith("search stopped"));
  EXPECT_TRUE(list().isVisible());
}

TEST_F(Window, saysWhichPluginsAreLeftOut) {
  setenv("XDG_CACHE_HOME", directory_.c_str(), 1);
  write("broken.so", "not a library");
  openSource("frei0r:" + directory_.string());
  auto const& table = find<QTableWidget>("Plug-ins left out");
  ASSERT_TRUE(table.isVisible());
  EXPECT_EQ(table.item(0, 0)->text().toStdString(), directory_ / "broken.so");
  EXPECT_NE(table.item(0, 1)->text(), "");
  QPushButton& retry = *window()->findChild<QPushButton*>();
  settle([&] { QTest::mouseClick(&retry, Qt::LeftButton); });
  EXPECT_EQ(table.rowCount(), 1) << "it fails again";
}

} // namespace

} // namespace Qv
