#include "bvDetailMgr.h"

#include "hostJournal.h"
#include "uiResTable.h"

namespace Qv {

namespace {

/// Creates the widget that the table describes under `name`.
template <class Widget>
RCShdPtr<Widget> makeWidget(UiResTable::Kind kind, char const* name, UiResTable const* resources) {
  if (!resources)
    RCExUtil::throwExNullPtrOf<UiResTable const*>();
  RCShdPtr<Widget> const widget(new Widget(name));
  UiResTable::Resource const& resource = resources->apply(kind, *widget);
  if constexpr (std::is_same_v<Widget, UiLabel>)
    widget->getLabel().setString(resource.text.c_str());
  if constexpr (std::is_same_v<Widget, UiTextEditor>)
    widget->setString(resource.text);
  return widget;
}

} // namespace

BvDetailMgr::BvDetailMgr(RCShdPtr<UiContainer> const& page)
    : page_(page), generalInfoPane_(new UiPane("GeneralInfo")), iconPane_(new UiPane("Icon")) {
  page_->add(generalInfoPane_);
}

BvDetailMgr::~BvDetailMgr() = default;

void BvDetailMgr::setBrowsable(RCShdPtr<BrBrowsable> const& item) {
  HostJournal::getInstance().record("BvDetailMgr::setBrowsable", item ? item->getPath() : "");
  iconPane_->setImage(item ? item->getImage(int(BrBrowsable::THUMBNAIL), {128, 128})
                           : RCShdPtr<WsManagedImage>());
}

RCShdPtr<BvDetailMgr> BvDetailMgr::create(RCShdPtr<UiContainer> const& /*parent*/, char const* name,
                                          UiResTable const* resources) {
  HostJournal::getInstance().record("BvDetailMgr::create", name);
  RCShdPtr<UiContainer> const page = makeWidget<UiContainer>(UiResTable::Page, name, resources);
  return RCShdPtr<BvDetailMgr>(new BvDetailMgr(page));
}

RCShdPtr<UiLabel> BvDetailMgr::addLabel(char const* name, UiResTable const* resources) {
  RCShdPtr<UiLabel> const label = makeWidget<UiLabel>(UiResTable::Label, name, resources);
  generalInfoPane_->add(label);
  return label;
}

RCShdPtr<UiLabel> BvDetailMgr::createAndAddTitleLabel(char const* name,
                                                      UiResTable const* resources) {
  HostJournal::getInstance().record("BvDetailMgr::createAndAddTitleLabel", name);
  return addLabel(name, resources);
}

RCShdPtr<UiLabel> BvDetailMgr::createAndAddValueLabel(char const* name,
                                                      UiResTable const* resources) {
  HostJournal::getInstance().record("BvDetailMgr::createAndAddValueLabel", name);
  return addLabel(name, resources);
}

RCShdPtr<UiTextEditor> BvDetailMgr::createAndAddValueTextEditor(char const* name,
                                                                UiResTable const* resources) {
  HostJournal::getInstance().record("BvDetailMgr::createAndAddValueTextEditor", name);
  RCShdPtr<UiTextEditor> const editor =
      makeWidget<UiTextEditor>(UiResTable::TextEditor, name, resources);
  generalInfoPane_->add(editor);
  return editor;
}

RCShdPtr<UiPane> BvDetailMgr::getGeneralInfoPane() { return generalInfoPane_; }

RCShdPtr<UiPane> BvDetailMgr::getIconPane() { return iconPane_; }

} // namespace Qv
