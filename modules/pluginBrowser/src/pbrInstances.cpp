#include "pbrInstances.h"

#include "ixMemory.h"
#include "oPtr.h"
#include "pbrDraggedItems.h"
#include "pbrToolBrowsable.h"
#include "pbrToolDndHandler.h"
#include "pbrViewBrowsable.h"
#include "pbrViewDndHandler.h"
#include "piTool.h"
#include "snSelection.h"

namespace Qv {

template void RCBasePtr<PiNodeDndInterface const>::dump(std::ostream& os) const;
template void RCBasePtr<PbrToolDndHandler>::dump(std::ostream& os) const;
template void RCBasePtr<PbrViewBrowsable>::dump(std::ostream& os) const;
template void RCBasePtr<PbrViewDndHandler>::dump(std::ostream& os) const;

template RCShdPtr<RCSWCount<LkCounter<int>>>::~RCShdPtr();
template RCShdPtr<BrChildrenQuery>::~RCShdPtr();
template RCShdPtr<PbrToolBrowsable>::~RCShdPtr();
template RCShdPtr<PbrViewBrowsable>::~RCShdPtr();
template RCShdPtr<PbrToolDndHandler>::~RCShdPtr();
template RCShdPtr<PbrViewDndHandler>::~RCShdPtr();
template RCShdPtr<PiTool const>::~RCShdPtr();
template RCShdPtr<PiDndTool const>::~RCShdPtr();
template RCShdPtr<PiNodeDndInterface const>::~RCShdPtr();
template RCShdPtr<WsManagedImage>::~RCShdPtr();
template RCShdPtr<IxMemory>::~RCShdPtr();
template RCShdPtr<SnItem>::~RCShdPtr();
template RCShdPtr<SnItem const>::~RCShdPtr();
template RCShdPtr<SnItemBasic<RCShdPtr<PiNodeDndInterface const>>>::~RCShdPtr();
template RCShdPtr<SnItemBasic<UiViewIdentifier>>::~RCShdPtr();
template RCShdPtr<SnSelection>::~RCShdPtr();
template RCShdPtr<SnParts>::~RCShdPtr();

template class RCStrongBasePtr<BrBrowsables, LkCounter<int>>;
template class RCStrongBasePtr<Names, LkCounter<int>>;
template class RCStrongPtr<BrBrowsables>;
template class RCStrongPtr<Names>;

template class RCPvtEngPtr<IteratorImp<std::string>>;
template class RCPvtEngPtr<IteratorImp<RCShdPtr<BrBrowsable>>>;
template class RCPvtEngPtr<IteratorImp<RCShdPtr<PiTool const>>>;
template class RCPvtEngPtr<IteratorImp<LiString>>;

template class IteratorImp<std::string>;
template class IteratorImp<RCShdPtr<BrBrowsable>>;

template class Iterator<std::string>;
template class Iterator<RCShdPtr<BrBrowsable>>;
template class Iterator<RCShdPtr<PiTool const>>;
template class Iterator<LiString>;

template class IteratorSTL<BrBrowsables, RCStrongPtr<BrBrowsables>, IteratorAccessorPassthrough>;
template class IteratorSTL<Names, RCStrongPtr<Names>, IteratorAccessorPassthrough>;
template class RCPvtEngPtr<BrBrowsablesEngine>;
template class RCPvtEngPtr<NamesEngine>;

template class SnItemBasic<RCShdPtr<PiNodeDndInterface const>>;
template class SnItemBasic<UiViewIdentifier>;

} // namespace Qv
