#include "pbrToolDndHandler.h"

#include "drCarrier.h"
#include "pbrDraggedItems.h"
#include "pbrToolBrowsable.h"
#include "piToolRegistry.h"

namespace Qv {

PbrToolDndHandler::PbrToolDndHandler() = default;

PbrToolDndHandler::~PbrToolDndHandler() = default;

bool PbrToolDndHandler::willPopulateSelection(RCShdPtr<BrBrowsable> const& item) {
  RCShdPtr<PbrToolBrowsable> const browsable = item.dynamicCast<PbrToolBrowsable>();
  if (!browsable)
    return false;
  LiString type;
  browsable->get(static_cast<int>(BrBrowsable::BROWSABLE_TYPE), &type);
  return type == PbrToolBrowsable::SuperToolId || type == PbrToolBrowsable::ToolId;
}

void PbrToolDndHandler::populateSelection(RCShdPtr<BrBrowsable> const& item,
                                          RCShdPtr<DrCarrier> const& carrier) {
  RCShdPtr<PbrToolBrowsable> const browsable = item.dynamicCast<PbrToolBrowsable>();
  if (browsable && !browsable->getToolName().empty())
    addToolItem(browsable->getToolName(), carrier);
}

bool PbrToolDndHandler::willConsumeSelection(RCShdPtr<BrBrowsable> const& /*item*/,
                                             RCShdPtr<DrCarrier> const& /*carrier*/) {
  return false;
}

void PbrToolDndHandler::consumeSelection(RCShdPtr<BrBrowsable> const& /*item*/,
                                         RCShdPtr<DrCarrier> const& /*carrier*/,
                                         RCShdPtr<SnSelection> const& /*selection*/) {}

bool PbrToolDndHandler::willCut(RCShdPtr<BrBrowsable> const& /*item*/) { return false; }

void PbrToolDndHandler::addToolItem(LiString const& toolName,
                                    RCShdPtr<DrCarrier> const& carrier) const {
  RCShdPtr<PiNodeDndInterface const> const node =
      PiDndTool::create(PiToolRegistry::getInstance().getTool(toolName));
  if (!node)
    return;
  RCShdPtr<DraggedToolItem> const item(new DraggedToolItem(node, RCShdPtr<SnParts>()));
  carrier->getSelection()->addItem(item);
}

} // namespace Qv
