#include "moduleTest.h"

#include "hostError.h"
#include "pbrToolView.h"
#include "snSelection.h"
#include "uiColorRegistry.h"

namespace Qv {

namespace {

using testing::ElementsAre;

using Browsable = RCShdPtr<BrBrowsable>;

Texts const none = {"", "", "", ""};
Texts const full = {"Full", "Has all the texts", "Core", "Active"};
Texts const old = {"Old", "", "", "Inactive"};
Texts const grade = {"", "Grades", "", "Active"};

RCShdPtr<SnSelection> const noSelection;

class ToolView : public ModuleTest {
protected:
  ToolView() {
    tools_.addTool({.name = "full", .category = "x", .infoTexts = {full[0], full[1], full[2]}});
    tools_.addTool({.name = "old", .category = "x", .active = false, .infoTexts = {"Old", "", ""}});
    tools_.addTool(
        {.name = "Grade", .category = "x", .superTool = true, .infoTexts = {"", "Grades", ""}});
  }

  static void build(PbrToolView& detail) {
    detail.buildUi(noSelection);
    detail.setDetailInfo();
  }
  /// The fields on the page: a title before each value.
  static Vector<RCShdPtr<UiWidget>> const& fields(PbrToolView const& detail) {
    return detail.getPages().at(0).widget->getChildren();
  }
  /// The texts of the titles from field 0 on, of the values from field 1 on.
  static Texts texts(PbrToolView const& detail, std::size_t first) {
    Texts result;
    for (std::size_t i = first; i < fields(detail).size(); i += 2) {
      auto const editor = fields(detail)[i].dynamicCast<UiTextEditor>();
      result.push_back(editor ? std::string(editor->getString())
                              : fields(detail)[i].checkedCast<UiLabel>()->getLabel().getString());
    }
    return result;
  }
  static Texts values(PbrToolView const& detail) { return texts(detail, 1); }
};

/// What building asks of the host, in order.
Texts const building = {
    "UiSplitPane::create(PbrToolViewIconPane)",
    "UiSplitPane::setOrientation(PbrToolViewIconPane)",
    "BvDetailMgr::create(InfoCt)",
    "BvDetailMgr::createAndAddTitleLabel(FieldTitle0)",
    "BvDetailMgr::createAndAddValueLabel(FieldValue0)",
    "BvDetailMgr::createAndAddTitleLabel(FieldTitle1)",
    "BvDetailMgr::createAndAddValueTextEditor(FieldValue1)",
    "UiColorRegistry::getColor(NonEditBackground)",
    "UiWidget::setColor(FieldValue1)",
    "UiTextEditor::setEditable(FieldValue1)",
    "BvDetailMgr::createAndAddTitleLabel(FieldTitle2)",
    "BvDetailMgr::createAndAddValueLabel(FieldValue2)",
    "BvDetailMgr::createAndAddTitleLabel(FieldTitle3)",
    "BvDetailMgr::createAndAddValueLabel(FieldValue3)",
    "UiSplitPane::setPanes(PbrToolViewIconPane)",
    "BrDetailView::setIconPane(PbrToolView)",
};

TEST_F(ToolView, buildsItsWidgetsInOrder) {
  PbrToolView detail;
  journal_.start();
  detail.buildUi(noSelection);
  EXPECT_EQ(calls(), building);

  auto const split = detail.getIconPane().checkedCast<UiSplitPane>();
  EXPECT_EQ(split->getOrientation(), 2);
  ASSERT_EQ(split->getChildren().size(), 1U);
  EXPECT_EQ(split->getChildren()[0]->getName(), "Icon");

  detail.setDetailInfo();
  ASSERT_EQ(detail.getPages().size(), 1U);
  EXPECT_EQ(detail.getPages()[0].title, "Information");
  EXPECT_EQ(detail.getPages()[0].widget->getName(), "GeneralInfo");
  EXPECT_THAT(texts(detail, 0), ElementsAre("Full name", "Description", "Origin", "State"));
  EXPECT_EQ(values(detail), none);
  for (RCShdPtr<UiWidget> const& field : fields(detail))
    EXPECT_EQ(field->getRefCount(), 2) << "the page and the view hold " << field->getName();
  auto const editor = fields(detail)[3].checkedCast<UiTextEditor>();
  EXPECT_FALSE(editor->isEditable());
  EXPECT_THAT(
      editor->getColors(),
      ElementsAre(testing::Pair(UiWidget::BackgroundColor,
                                UiColorRegistry::getInstance().getColor("NonEditBackground"))));
}

TEST_F(ToolView, showsEachItemInPlaceOfTheLast) {
  PbrToolView detail;
  build(detail);
  auto const split = detail.getIconPane().checkedCast<UiSplitPane>();
  auto const icon = split->getChildren().at(0).checkedCast<UiPane>();
  struct Case {
    Browsable item;
    bool understood;
    Texts values;
    char const* image;
  };
  for (Case const& item :
       {Case{tool("x/nosuch"), true, none, "toolThumbnail.tif"},
        Case{tool("/x/full"), true, full, "toolThumbnail.tif"},
        Case{tool("x/old"), true, old, "toolThumbnail.tif"},
        Case{tool("x/Grade"), true, grade, "superToolThumbnail.tif"},
        Case{tool("Grade"), true, grade, "superToolThumbnail.tif"},
        Case{tool(""), false, none, "folderThumbnail.tif"},
        Case{tool("full"), false, full, "folderThumbnail.tif"},
        Case{view("full"), false, none, "viewThumbnail.tif"}, Case{Browsable(), false, none, ""}}) {
    SCOPED_TRACE(item.item ? item.item->getPath() : "null");
    EXPECT_EQ(detail.understands(item.item), item.understood);
    detail.setContent(item.item, noSelection);
    EXPECT_EQ(values(detail), item.values);
    EXPECT_EQ(split->getOpenPane(), icon);
    auto const image = icon->getImage().checkedCast<HostImage>();
    EXPECT_EQ(image ? image->getName() : "", item.image);
  }
  Browsable const item = tool("x/full");
  journal_.start();
  detail.setContent(item, noSelection);
  EXPECT_THAT(calls(), ElementsAre("PiToolRegistry::getTool(full)",
                                   "UiSplitPane::openPane(PbrToolViewIconPane)",
                                   "BvDetailMgr::setBrowsable(x/full)",
                                   "BrRegistry::getThumbnail(toolThumbnail)"));
  detail.externalClose();
  EXPECT_EQ(values(detail), full);

  tools_.clear();
  journal_.start();
  journal_.failAt(1);
  EXPECT_THROW(detail.setContent(item, noSelection), HostError);
  EXPECT_EQ(values(detail), none) << "the fields are written before a pane is opened";
}

TEST_F(ToolView, reportsWhatHasNotBeenBuilt) {
  Browsable const item = tool("x/full");
  for (std::size_t failing = 0; failing < building.size(); ++failing) {
    SCOPED_TRACE(building[failing]);
    PbrToolView detail;
    journal_.start();
    journal_.failAt(failing);
    EXPECT_THROW(detail.buildUi(noSelection), HostError);
    journal_.stop();
    if (failing <= 13) {
      // Of the four values, only the second is an editor.
      EXPECT_EQ(nullPointeeOf([&] { detail.setContent(item, noSelection); }),
                failing >= 5 && failing <= 9 ? "Qv::UiTextEditor*" : "Qv::UiLabel*");
      EXPECT_EQ(nullPointeeOf([&] { detail.setDetailInfo(); }), "Qv::BvDetailMgr*");
      detail.buildUi(noSelection);
    }
    detail.setDetailInfo();
    detail.setContent(item, noSelection);
    EXPECT_EQ(values(detail), full);
  }
}

TEST_F(ToolView, isClonedWithoutWidgets) {
  PbrToolView detail;
  build(detail);
  detail.setContent(tool("x/full"), noSelection);
  OPtr<BrView> const owner = detail.clone();
  auto& clone = dynamic_cast<PbrToolView&>(*owner);
  EXPECT_EQ(clone.getName(), "PbrToolView");
  EXPECT_NE(clone.getResTable(), detail.getResTable());
  EXPECT_FALSE(clone.getIconPane());
  EXPECT_EQ(nullPointeeOf([&] { clone.setContent(Browsable(), noSelection); }), "Qv::UiLabel*");
  build(clone);
  EXPECT_EQ(values(clone), none);
}

} // namespace

} // namespace Qv
