#pragma once

// The template instances that the module exports. They are instantiated in pbrInstances.cpp, like
// those of pbrDraggedItems.h. The module's headers include this one before any of the host's: g++
// silently hides an instance that was instantiated implicitly before its declaration here, or that
// has a hidden argument, so the classes are declared visible.

#include "iteratorSTL.imp.h"

#include <string>

namespace Qv {

class QV_EXPORT BrBrowsable;
class QV_EXPORT BrChildrenQuery;
class QV_EXPORT IxMemory;
class QV_EXPORT LiString;
class QV_EXPORT PbrToolBrowsable;
class QV_EXPORT PbrToolDndHandler;
class QV_EXPORT PbrViewBrowsable;
class QV_EXPORT PbrViewDndHandler;
class QV_EXPORT PiDndTool;
class QV_EXPORT PiNodeDndInterface;
class QV_EXPORT PiTool;
class QV_EXPORT SnItem;
template <class T> class QV_EXPORT SnItemBasic;
class QV_EXPORT SnParts;
class QV_EXPORT SnSelection;
class QV_EXPORT UiViewIdentifier;
class QV_EXPORT WsManagedImage;

extern template void RCBasePtr<PiNodeDndInterface const>::dump(std::ostream& os) const;
extern template void RCBasePtr<PbrToolDndHandler>::dump(std::ostream& os) const;
extern template void RCBasePtr<PbrViewBrowsable>::dump(std::ostream& os) const;
extern template void RCBasePtr<PbrViewDndHandler>::dump(std::ostream& os) const;

extern template RCShdPtr<RCSWCount<LkCounter<int>>>::~RCShdPtr();
extern template RCShdPtr<BrChildrenQuery>::~RCShdPtr();
extern template RCShdPtr<PbrToolBrowsable>::~RCShdPtr();
extern template RCShdPtr<PbrViewBrowsable>::~RCShdPtr();
extern template RCShdPtr<PbrToolDndHandler>::~RCShdPtr();
extern template RCShdPtr<PbrViewDndHandler>::~RCShdPtr();
extern template RCShdPtr<PiTool const>::~RCShdPtr();
extern template RCShdPtr<PiDndTool const>::~RCShdPtr();
extern template RCShdPtr<PiNodeDndInterface const>::~RCShdPtr();
extern template RCShdPtr<WsManagedImage>::~RCShdPtr();
extern template RCShdPtr<IxMemory>::~RCShdPtr();
extern template RCShdPtr<SnItem>::~RCShdPtr();
extern template RCShdPtr<SnItem const>::~RCShdPtr();
extern template RCShdPtr<SnItemBasic<RCShdPtr<PiNodeDndInterface const>>>::~RCShdPtr();
extern template RCShdPtr<SnItemBasic<UiViewIdentifier>>::~RCShdPtr();
extern template RCShdPtr<SnSelection>::~RCShdPtr();
extern template RCShdPtr<SnParts>::~RCShdPtr();

using BrBrowsables = List<RCShdPtr<BrBrowsable>>;
using Names = Vector<std::string>;

extern template class RCStrongBasePtr<BrBrowsables, LkCounter<int>>;
extern template class RCStrongBasePtr<Names, LkCounter<int>>;
extern template class RCStrongPtr<BrBrowsables>;
extern template class RCStrongPtr<Names>;

extern template class RCPvtEngPtr<IteratorImp<std::string>>;
extern template class RCPvtEngPtr<IteratorImp<RCShdPtr<BrBrowsable>>>;
extern template class RCPvtEngPtr<IteratorImp<RCShdPtr<PiTool const>>>;
extern template class RCPvtEngPtr<IteratorImp<LiString>>;

extern template class IteratorImp<std::string>;
extern template class IteratorImp<RCShdPtr<BrBrowsable>>;

extern template class Iterator<std::string>;
extern template class Iterator<RCShdPtr<BrBrowsable>>;
extern template class Iterator<RCShdPtr<PiTool const>>;
extern template class Iterator<LiString>;

/// The engine over a query's children.
using BrBrowsablesEngine =
    IteratorSTL<BrBrowsables, RCStrongPtr<BrBrowsables>, IteratorAccessorPassthrough>;
/// The engine over a list of names.
using NamesEngine = IteratorSTL<Names, RCStrongPtr<Names>, IteratorAccessorPassthrough>;

extern template class IteratorSTL<BrBrowsables, RCStrongPtr<BrBrowsables>,
                                  IteratorAccessorPassthrough>;
extern template class IteratorSTL<Names, RCStrongPtr<Names>, IteratorAccessorPassthrough>;
extern template class RCPvtEngPtr<BrBrowsablesEngine>;
extern template class RCPvtEngPtr<NamesEngine>;

} // namespace Qv
