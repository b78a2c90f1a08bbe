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
      // No separator: the folder is the scheme's root.
      LiString const childPath(browsable_->getPath() + views.item());
      if (filter_ == 2 && OmUtil::parsePath(OsFilePath(childPath)).getCardinality() != 1)
        continue;
      children->push_back(PbrViewBrowsable::create(browsable_->getServer(), childPath));
    }
  }
  // Only now: an exception leaves the query pending.
  pending_ = false;
  return makeIterator(children);
}

} // namespace Qv
