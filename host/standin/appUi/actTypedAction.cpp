#include "actTypedAction.h"

#include "snItemBasic.h"

namespace Qv {

namespace {

/// The item's value; a null item gives a default one. @throws ExCastFailed if it carries something
/// else.
template <class T> T valueOf(RCShdPtr<SnItem const> const& item) {
  RCShdPtr<SnItemBasic<T> const> const typed = item.checkedCast<SnItemBasic<T> const>();
  return typed ? typed->getValue() : T();
}

template <class T> bool carries(RCShdPtr<SnItem const> const& item) {
  return !item || item.dynamicCast<SnItemBasic<T> const>();
}

} // namespace

template <class First, class Second> ActTypedAction<First, Second>::ActTypedAction() = default;

// The framework's functions are const, the typed ones are not; an action has no state.

template <class First, class Second>
bool ActTypedAction<First, Second>::inputValid(RCShdPtr<SnItem const> const& first,
                                               RCShdPtr<SnItem const> const& second) const {
  return carries<First>(first) && carries<Second>(second) &&
         const_cast<ActTypedAction*>(this)->typedInputValid(valueOf<First>(first),
                                                            valueOf<Second>(second));
}

template <class First, class Second>
void ActTypedAction<First, Second>::performAction(
    RCShdPtr<SnItem const> const& first, RCShdPtr<SnItem const> const& second,
    RCShdPtr<SnSelection> const& /*selection*/) const {
  const_cast<ActTypedAction*>(this)->typedPerformAction(valueOf<First>(first),
                                                        valueOf<Second>(second));
}

template <class First, class Second>
int ActTypedAction<First, Second>::enumOptions(RCShdPtr<SnItem const> const& first,
                                               RCShdPtr<SnItem const> const& second,
                                               Vector<LiString>& options) const {
  return typedEnumOptions(valueOf<First>(first), valueOf<Second>(second), options);
}

template <class First, class Second>
int ActTypedAction<First, Second>::typedEnumOptions(First const& /*first*/,
                                                    Second const& /*second*/,
                                                    Vector<LiString>& /*options*/) const {
  return 0;
}

template class ActTypedAction<RCShdPtr<BrBrowser>, RCShdPtr<BrNode>>;

} // namespace Qv
