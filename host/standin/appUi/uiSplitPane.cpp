#include "uiSplitPane.h"

#include "hostError.h"
#include "hostJournal.h"

#include <algorithm>

namespace Qv {

UiSplitPane::UiSplitPane(std::string const& name) : UiPane(name) {}

UiSplitPane::~UiSplitPane() = default;

RCShdPtr<UiSplitPane> UiSplitPane::create(RCShdPtr<UiContainer> const& parent, char const* name,
                                          UiResTable const* resources) {
  HostJournal::getInstance().record("UiSplitPane::create", name);
  RCShdPtr<UiSplitPane> const pane(new UiSplitPane(name));
  if (resources) {
    UiResTable::Resource const& resource = resources->get(UiResTable::Page, name);
    pane->setSize(resource.width, resource.height);
    if (resource.background)
      pane->setColor(BackgroundColor, *resource.background);
  }
  if (parent)
    parent->add(pane);
  return pane;
}

void UiSplitPane::setOrientation(Orientation orientation) { orientation_ = orientation; }

void UiSplitPane::setPanes(Vector<RCShdPtr<UiPane>> const& panes, Vector<float> const* sizes) {
  HostJournal::getInstance().record("UiSplitPane::setPanes", getName(),
                                    std::to_string(panes.size()));
  if (sizes && sizes->size() != panes.size())
    throw HostError("the split pane \"" + getName() + "\" needs one size a pane");
  sizes_ = sizes ? *sizes : Vector<float>(panes.size(), 1.0F / float(panes.size()));
  removeChildren();
  for (RCShdPtr<UiPane> const& pane : panes)
    addChild(pane);
  openPane_ = RCShdPtr<UiPane>();
}

bool UiSplitPane::openPane(RCShdPtr<UiPane> const& pane) {
  HostJournal::getInstance().record("UiSplitPane::openPane", getName(),
                                    pane ? pane->getName() : "");
  Vector<RCShdPtr<UiWidget>> const& panes = getChildren();
  if (std::find(panes.begin(), panes.end(), pane) == panes.end())
    return false;
  openPane_ = pane;
  return true;
}

} // namespace Qv
