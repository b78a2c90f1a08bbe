#include "pbrViewChildrenQuery.h"

#include "omUtil.h"
#include "pbrViewBrowsable.h"
#include "uiViewFactory.h"

namespace Qv {

PbrViewChildrenQuery::PbrViewChildrenQuery(PbrViewBrowsable* browsable,
                                           BrBrowsable::FindFilter filter)
    : BrChildrenQuery(browsable), browsable_(browsable), filter_(filter) {}

PbrViewChildrenQuery::~PbrViewChildrenQuery() = default;

void PbrViewChildrenQuery::reset() { pending_ = true; }

Iterator<RCShdPtr<BrBrowsable>> PbrViewChildrenQuery::getNextChildSequence() {
  RCStrongPtr<BrBrowsables> const children(new BrBrowsables);
  if (pending_ && browsable_->isAContainer()) {
    for (Iterator<LiString> views = UiViewFactory::getViews(); !views.atEnd(); views.next()) {
      // The folder's path ends where a view's name begins.
      LiString const childPath(browsable_->getPath() + views.item());
      if (filter_ == 2 && OmUtil::parsePath(OsFilePath(childPath)).getCardinality() != 1)
        continue;
      children->push_back(PbrViewBrowsable::create(browsable_->getServer(), childPath));
    }
  }
  // Only now: a child that cannot be made leaves the query pending.
  pending_ = false;
  return Iterator<RCShdPtr<BrBrowsable>>(
      RCPvtEngPtr<IteratorImp<RCShdPtr<BrBrowsable>>>(new BrBrowsablesEngine(children)));
}

} // namespace Qv
