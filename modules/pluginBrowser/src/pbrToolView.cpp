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

  auto const setLabel = [this](std::size_t field, std::string const& text) {
    getFieldValue(field).checkedCast<UiLabel>()->getLabel().setString(text.c_str());
  };
  setLabel(0, tool ? tool->getInfoText1() : "");
  getFieldValue(1).checkedCast<UiTextEditor>()->setString(tool ? LiString(tool->getInfoText2())
                                                               : LiString());
  setLabel(2, tool ? tool->getInfoText3() : "");
  char const* state = "";
  if (tool)
    state = tool->isActive() ? "Active" : "Inactive";
  setLabel(3, state);

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
  RCShdPtr<BvDetailMgr> manager =
      BvDetailMgr::create(RCShdPtr<UiContainer>(), "InfoCt", resources);
  for (int field = 0; field < 4; ++field) {
    std::string const titleName = "FieldTitle" + LiStringUtil::convertNb(field);
    fieldTitles_.push_back(manager->createAndAddTitleLabel(titleName.c_str(), resources));
    std::string const valueName = "FieldValue" + LiStringUtil::convertNb(field);
    if (field == 1) {
      RCShdPtr<UiTextEditor> const editor =
          manager->createAndAddValueTextEditor(valueName.c_str(), resources);
      editor->setColor(UiWidget::BackgroundColor,
                       UiColorRegistry::getInstance().getColor(UiColorRegistry::NonEditBackground));
      editor->setEditable(false);
      fieldValues_.push_back(editor);
    } else {
      fieldValues_.push_back(manager->createAndAddValueLabel(valueName.c_str(), resources));
    }
  }
  return manager;
}

void PbrToolView::setDetailInfo() {
  addDetailInfoPage(detailMgr_->getGeneralInfoPane(), LiString("Information"));
}

} // namespace Qv
