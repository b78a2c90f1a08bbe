#include "pbrToolView.h"

#include "liStringUtil.h"
#include "pbrToolBrowsable.h"
#include "piToolRegistry.h"
#include "uiColorRegistry.h"

namespace Qv {

PbrToolView::PbrToolView() : BrDetailView(LiString("PbrToolView"), ResourceFile) {}

PbrToolView::~PbrToolView() = default;

OPtrRet<BrView> PbrToolView::clone() const { return OPtrRet<BrView>(new PbrToolView); }

bool PbrToolView::understands(RCShdPtr<BrBrowsable> const& item) {
  RCShdPtr<PbrToolBrowsable> const browsable = item.dynamicCast<PbrToolBrowsable>();
  if (!browsable)
    return false;
  PbrToolBrowsable::Type const type = browsable->getToolBrowsableType();
  return type == PbrToolBrowsable::TOOL ||
         (type == PbrToolBrowsable::CATEGORY && browsable->isSuperTool());
}

RCShdPtr<UiWidget> PbrToolView::getFieldValue(std::size_t field) const {
  return field < fieldValues_.size() ? fieldValues_[field] : RCShdPtr<UiWidget>();
}

void PbrToolView::setContent(RCShdPtr<BrBrowsable> const& item,
                             RCShdPtr<SnSelection> const& /*selection*/) {
  RCShdPtr<PbrToolBrowsable> const browsable = item.dynamicCast<PbrToolBrowsable>();
  RCShdPtr<PiTool const> tool;
  if (browsable)
    tool = PiToolRegistry::getInstance().getTool(browsable->getToolName());

  // Each widget is looked up before the tool is asked for its text.
  auto const label = [this](std::size_t field) -> UiString& {
    return getFieldValue(field).checkedCast<UiLabel>()->getLabel();
  };
  label(0).setString((tool ? tool->getInfoText1() : std::string()).c_str());
  getFieldValue(1).checkedCast<UiTextEditor>()->setString(tool ? LiString(tool->getInfoText2())
                                                               : LiString());
  label(2).setString((tool ? tool->getInfoText3() : std::string()).c_str());
  label(3).setString(!tool ? "" : tool->isActive() ? "Active" : "Inactive");

  iconSplitPane_->openPane(detailMgr_->getIconPane());
  detailMgr_->setBrowsable(item);
}

void PbrToolView::externalClose() {}

void PbrToolView::buildUi(RCShdPtr<SnSelection> const& /*selection*/) {
  iconSplitPane_ = UiSplitPane::create(RCShdPtr<UiContainer>(), "PbrToolViewIconPane", nullptr);
  iconSplitPane_->setOrientation(UiSplitPane::Orientation(2));
  detailMgr_ = buildDetails(getResTable());
  Vector<RCShdPtr<UiPane>> panes;
  panes.push_back(detailMgr_->getIconPane());
  iconSplitPane_->setPanes(panes, nullptr);
  setIconPane(iconSplitPane_);
}

RCShdPtr<BvDetailMgr> PbrToolView::buildDetails(UiResTable const* resources) {
  RCShdPtr<BvDetailMgr> manager = BvDetailMgr::create(RCShdPtr<UiContainer>(), "InfoCt", resources);
  fieldTitles_.clear();
  fieldValues_.clear();
  for (int field = 0; field < 4; ++field) {
    std::string const titleName = "FieldTitle" + LiStringUtil::convertNb(field);
    fieldTitles_.push_back(manager->createAndAddTitleLabel(titleName.c_str(), resources));
    std::string const valueName = "FieldValue" + LiStringUtil::convertNb(field);
    if (field == 1) {
      RCShdPtr<UiTextEditor> const editor =
          manager->createAndAddValueTextEditor(valueName.c_str(), resources);
      CoRgbColorTyped<float> const background =
          UiColorRegistry::getInstance().getColor(UiColorRegistry::NonEditBackground);
      editor->setColor(UiWidget::BackgroundColor, background);
      editor->setEditable(false);
      fieldValues_.push_back(editor);
    } else {
      fieldValues_.push_back(manager->createAndAddValueLabel(valueName.c_str(), resources));
    }
  }
  return manager;
}

void PbrToolView::setDetailInfo() {
  RCShdPtr<UiPane> const pane = detailMgr_->getGeneralInfoPane();
  addDetailInfoPage(pane, LiString("Information"));
}

} // namespace Qv
