#pragma once

#include "actAction.h"
#include "brBrowser.h"
#include "brNode.h"

namespace Qv {

/// An action on a `First` and a `Second`, taken from the selection items.
template <class First, class Second> class QV_EXPORT ActTypedAction : public ActAction {
protected:
  /// False if an item is of the wrong class.
  bool inputValid(RCShdPtr<SnItem const> const& first,
                  RCShdPtr<SnItem const> const& second) const override;
  /// @throws ExCastFailed if an item is of the wrong class.
  void performAction(RCShdPtr<SnItem const> const& first, RCShdPtr<SnItem const> const& second,
                     RCShdPtr<SnSelection> const& selection) const override;
  /// @throws ExCastFailed if an item is of the wrong class.
  int enumOptions(RCShdPtr<SnItem const> const& first, RCShdPtr<SnItem const> const& second,
                  Vector<LiString>& options) const override;

public:
  /// Whether the action is offered for these; both may be null.
  virtual bool typedInputValid(First const& first, Second const& second) = 0;
  /// Performs the action. May be called even where the action is not offered.
  virtual void typedPerformAction(First const& first, Second const& second) = 0;
  /// Appends the action's options; returns how many.
  virtual int typedEnumOptions(First const& first, Second const& second,
                               Vector<LiString>& options) const;

protected:
  ActTypedAction();
};

extern template class ActTypedAction<RCShdPtr<BrBrowser>, RCShdPtr<BrNode>>;

} // namespace Qv
