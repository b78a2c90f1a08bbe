#include "dragging.h"

#include "hostDndRegistry.h"
#include "hostDndTool.h"
#include "snItemBasic.h"
#include "typeName.h"
#include "uiViewIdentifier.h"

#include <sstream>

namespace Qv {

namespace {

Drag::Arrival describe(RCShdPtr<SnItem const> const& item) {
  std::ostringstream dump;
  item->dump(dump);
  if (auto const tool = item.dynamicCast<SnItemBasic<RCShdPtr<PiNodeDndInterface const>> const>())
    return {"tool \"" + tool->getValue().checkedCast<HostDndTool const>()->getTool()->getName() +
                "\"",
            dump.str(), ""};
  if (auto const view = item.dynamicCast<SnItemBasic<UiViewIdentifier> const>())
    return {"view \"" + view->getValue().getName() + "\"", dump.str(), view->getValue().getName()};
  return {"something unknown", dump.str(), ""};
}

} // namespace

Drag drag(RCShdPtr<BrBrowsable> const& item) {
  RCShdPtr<BrDndHandler> const handler = HostDndRegistry::getInstance().findHandler(*item);
  if (!handler)
    return {};
  BrDndHandler const& found = *handler;
  RCShdPtr<DrCarrier> const empty(new DrCarrier(SnSelection::create()));
  RCShdPtr<DrCarrier> const carrier = startDrag(item);
  return {typeName(typeid(found)),
          bool(carrier),
          handler->willCut(item),
          handler->willCopy(item),
          handler->willConsumeSelection(item, empty),
          carrier ? getArrivals(*carrier) : std::vector<Drag::Arrival>()};
}

RCShdPtr<DrCarrier> startDrag(RCShdPtr<BrBrowsable> const& item) {
  RCShdPtr<BrDndHandler> const handler = HostDndRegistry::getInstance().findHandler(*item);
  if (!handler || !handler->willPopulateSelection(item))
    return RCShdPtr<DrCarrier>();
  RCShdPtr<DrCarrier> carrier(new DrCarrier(SnSelection::create()));
  handler->populateSelection(item, carrier);
  return carrier;
}

std::vector<Drag::Arrival> getArrivals(DrCarrier& carrier) {
  std::vector<Drag::Arrival> arrivals;
  for (RCShdPtr<SnItem const> const& item : carrier.getSelection()->getItems())
    arrivals.push_back(describe(item));
  return arrivals;
}

} // namespace Qv
