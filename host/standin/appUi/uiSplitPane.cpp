#include "uiSplitPane.h"

#include "hostJournal.h"
#include "uiResTable.h"

#include <algorithm>

namespace Qv {

UiSplitPane::UiSplitPane(std::string const& name) : UiPane(name) {}

UiSplitPane::~UiSplitPane() = default;

RCShdPtr<UiSplitPane> UiSplitPane::create(RCShdPtr<UiContainer> const& /*parent*/, char const* name,
                                          UiResTable const* resources) {
  HostJournal::getInstance().record("UiSplitPane::create", name);
  RCShdPtr<UiSplitPane> const pane(new UiSplitPane(name));
  if (resources)
    resources->apply(UiResTable::Page, *pane);
  return pane;
}

void UiSplitPane::setOrientation(Orientation orientation) {
  HostJournal::getInstance().record("UiSplitPane::setOrientation", getName(),
                                    std::to_string(orientation));
  orientation_ = orientation;
}

void UiSplitPane::setPanes(Vector<RCShdPtr<UiPane>> const& panes, Vector<float> const* /*sizes*/) {
  HostJournal::getInstance().record("UiSplitPane::setPanes", getName(),
                                    std::to_string(panes.size()));
  for (RCShdPtr<UiPane> const& pane : panes)
    static_cast<void>(*pane); // Throws for a null pane before the old ones go.
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
