#include "brDndHandler.h"

namespace Qv {

BrDndHandler::BrDndHandler() = default;

BrDndHandler::~BrDndHandler() = default;

void BrDndHandler::createUrl(RCShdPtr<BrBrowsable> const& /*item*/,
                             RCShdPtr<DrCarrier> const& /*carrier*/) {}

bool BrDndHandler::willCopy(RCShdPtr<BrBrowsable> const& item) {
  return willPopulateSelection(item);
}

bool BrDndHandler::dragAndDropComplete(RCShdPtr<BrBrowsable> const& /*item*/,
                                       RCShdPtr<DrCarrier> const& /*carrier*/) {
  return true;
}

} // namespace Qv
