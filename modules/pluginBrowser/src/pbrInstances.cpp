#include "pbrInstances.h"

#include "ixMemory.h"
#include "pbrToolBrowsable.h"
#include "piTool.h"

namespace Qv {

template RCShdPtr<RCSWCount<LkCounter<int>>>::~RCShdPtr();
template RCShdPtr<BrChildrenQuery>::~RCShdPtr();
template RCShdPtr<PbrToolBrowsable>::~RCShdPtr();
template RCShdPtr<PiTool const>::~RCShdPtr();
template RCShdPtr<WsManagedImage>::~RCShdPtr();
template RCShdPtr<IxMemory>::~RCShdPtr();

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

} // namespace Qv
