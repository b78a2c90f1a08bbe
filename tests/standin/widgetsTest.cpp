#include "hostResources.h"
#include "noLeaks.h"
#include "refusal.h"
#include "temporaryDirectory.h"
#include "uiResTable.h"
#include "uiSplitPane.h"

#include <gmock/gmock.h>

namespace Qv {

namespace {

using testing::HasSubstr;

using Pane = RCShdPtr<UiPane>;

class Widgets : public NoLeaks {
protected:
  static Pane pane(char const* name) { return Pane(new UiPane(name)); }
};

TEST_F(Widgets, stayWithTheirParentWhenMemoryRunsOut) {
  Pane const child = pane("child");
  Pane const before = pane("before");
  before->add(child);
  EXPECT_GT(forEachFailingAllocation(
                [&] {
                  Pane const after = pane("after");
                  after->add(child);
                  EXPECT_EQ(child->getParent(), after.get());
                  EXPECT_TRUE(before->getChildren().empty());
                },
                [&] {
                  EXPECT_EQ(child->getParent(), before.get());
                  EXPECT_EQ(before->getChildren().size(), 1U);
                }),
            0);
}

TEST_F(Widgets, ofASplitPaneStayWhenOthersAreRejected) {
  auto const split = UiSplitPane::create(RCShdPtr<UiContainer>(), "split", nullptr);
  Vector<Pane> const panes{pane("one"), pane("two")};
  split->setPanes(panes, nullptr);
  EXPECT_TRUE(split->openPane(panes[1]));
  EXPECT_FALSE(split->openPane(pane("foreign")));
  EXPECT_EQ(nullPointeeOf([&] {
              split->setPanes({pane("three"), Pane()}, nullptr);
            }),
            "Qv::UiPane*");
  EXPECT_EQ(split->getOpenPane(), panes[1]);
  EXPECT_THAT(split->getChildren(), testing::ElementsAre(panes[0], panes[1]));
  EXPECT_EQ(panes[0]->getParent(), split.get());
}

/// A pane "x" and a resource directory for the file that describes it.
class ResourceTable : public testing::Test, protected TemporaryDirectory {
protected:
  ResourceTable() { HostResources::getInstance().setDirectory(directory_); }
  ~ResourceTable() override { HostResources::getInstance().setDirectory(""); }

  void applyFile() const {
    UiResTable(OsFilePath(std::string("x.xml"))).apply(UiResTable::Page, *pane_);
  }

  Pane const pane_{new UiPane("x")};
};

TEST_F(ResourceTable, isRejectedWithTheReason) {
  EXPECT_THAT(refusalOf([&] { applyFile(); }), HasSubstr("File was not found"));
  auto const in = [](std::string const& text) { return "<resources>" + text + "</resources>"; };
  for (auto const& [text, reason] : std::initializer_list<std::pair<std::string, char const*>>{
           {"<resources>", "(byte 10)"},
           {in("text"), "resource \"\": unknown kind <>"},
           {in("<pane name='x'/>"), "resource \"x\": unknown kind <pane>"},
           {in("<page name='x'/><label name='x'/>"), "resource \"x\": duplicate name"},
           {in("<page name='x' text='y'/>"), "unknown attribute text"},
           {in("<page name='x' height='1px'/>"), "the height \"1px\" is not a pixel count"},
           {in("<page name='x' width='-1'/>"), "the width \"-1\" is not a pixel count"},
           {in("<page name='x' background='#12345g'/>"), "\"#12345g\" is not #rrggbb"},
           {in(""), "has no page \"x\""},
           {in("<label name='x'/>"), "describes \"x\" as a label"}}) {
    write("x.xml", text);
    EXPECT_THAT(refusalOf([&] { applyFile(); }),
                testing::AllOf(HasSubstr("resource file \"x.xml\""), HasSubstr(reason)));
  }
}

TEST_F(ResourceTable, setsAWidgetsSizeAndBackground) {
  write("x.xml", "<resources><page name='x' width='12' height='34' background='#ff3300'/>"
                 "</resources>");
  applyFile();
  EXPECT_EQ(pane_->getWidth(), 12);
  EXPECT_EQ(pane_->getHeight(), 34);
  EXPECT_EQ(pane_->getColors().at(UiWidget::BackgroundColor),
            (CoRgbColorTyped<float>{1.0F, 0.2F, 0.0F}));
}

} // namespace

} // namespace Qv
