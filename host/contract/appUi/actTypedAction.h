#pragma once

#include "actAction.h"
#include "brBrowser.h"
#include "brNode.h"

namespace Qv {

/// An action on a `First` and a `Second`, which it takes from the selection items.
template <class First, class Second> class QV_EXPORT ActTypedAction : public ActAction {
protected:
  /// False when an item is not of the right class.
  bool inputValid(RCShdPtr<SnItem const> const& first,
                  RCShdPtr<SnItem const> const& second) const override;
  /// @throws ExCastFailed when an item is not of the right class.
  void performAction(RCShdPtr<SnItem const> const& first, RCShdPtr<SnItem const> const& second,
                     RCShdPtr<SnSelection> const& selection) const override;
  /// @throws ExCastFailed when an item is not of the right class.
  int enumOptions(RCShdPtr<SnItem const> const& first, RCShdPtr<SnItem const> const& second,
                  Vector<LiString>& options) const override;

public:
  /// Whether the action is offered for these; both may be null.
  virtual bool typedInputValid(First const& first, Second const& second) = 0;
  /// Performs the action. It is called also where the action is not offered.
  virtual void typedPerformAction(First const& first, Second const& second) = 0;
  /// Appends the options that the action offers; returns how many.
  virtual int typedEnumOptions(First const& first, Second const& second,
                               Vector<LiString>& options) const;

protected:
  ActTypedAction();
};

extern template class ActTypedAction<RCShdPtr<BrBrowser>, RCShdPtr<BrNode>>;

} // namespace Qv
