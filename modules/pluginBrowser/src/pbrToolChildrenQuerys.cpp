#include "pbrToolChildrenQuerys.h"

#include "omUtil.h"
#include "pbrToolBrowsable.h"

namespace Qv {

PbrToolChildrenQuerys::PbrToolChildrenQuerys(PbrToolBrowsable* browsable,
                                             BrBrowsable::FindFilter filter)
    : BrChildrenQuery(browsable), browsable_(browsable), filter_(filter) {}

PbrToolChildrenQuerys::~PbrToolChildrenQuerys() = default;

void PbrToolChildrenQuerys::reset() { pending_ = true; }

Iterator<RCShdPtr<BrBrowsable>> PbrToolChildrenQuerys::getNextChildSequence() {
  RCStrongPtr<BrBrowsables> const children(new BrBrowsables);
  if (pending_ && browsable_->isAContainer()) {
    std::string path;
    for (Iterator<std::string> names = browsable_->getChildren(); !names.atEnd(); names.next()) {
      OsFilePath const parentPath(browsable_->getPath());
      OsFilePath childPath(parentPath);
      childPath += OsFilePath(names.item());
      if (filter_ == 2 && OmUtil::parsePath(childPath).getCardinality() != 2)
        continue;
      // The string is reused, so that it keeps its storage.
      path = childPath.getChars();
      children->push_back(PbrToolBrowsable::create(browsable_->getServer(), path));
    }
  }
  // Only now: an exception leaves the query pending.
  pending_ = false;
  return makeIterator(children);
}

} // namespace Qv
