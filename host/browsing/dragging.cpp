#include "dragging.h"

#include "drCarrier.h"
#include "hostDndRegistry.h"
#include "hostDndTool.h"
#include "snItemBasic.h"
#include "typeName.h"
#include "uiViewIdentifier.h"

#include <sstream>

namespace Qv {

namespace {

std::string describe(RCShdPtr<SnItem const> const& item) {
  if (auto const tool = item.dynamicCast<SnItemBasic<RCShdPtr<PiNodeDndInterface const>> const>())
    return "tool \"" + tool->getValue().checkedCast<HostDndTool const>()->getTool()->getName() +
           "\"";
  if (auto const view = item.dynamicCast<SnItemBasic<UiViewIdentifier> const>())
    return "view \"" + view->getValue().getName() + "\"";
  return "something unknown";
}

} // namespace

Drag drag(RCShdPtr<BrBrowsable> const& item) {
  RCShdPtr<BrDndHandler> const handler = HostDndRegistry::getInstance().findHandler(*item);
  if (!handler)
    return {};
  BrDndHandler const& found = *handler;
  RCShdPtr<DrCarrier> const carrier(new DrCarrier(SnSelection::create()));
  Drag drag = {
      typeName(typeid(found)), handler->willPopulateSelection(item),         handler->willCut(item),
      handler->willCopy(item), handler->willConsumeSelection(item, carrier), {}};
  if (!drag.accepted)
    return drag;

  handler->populateSelection(item, carrier);
  for (RCShdPtr<SnItem const> const& dragged : carrier->getSelection()->getItems()) {
    std::ostringstream dump;
    dragged->dump(dump);
    drag.arrivals.push_back({describe(dragged), dump.str()});
  }
  return drag;
}

} // namespace Qv
