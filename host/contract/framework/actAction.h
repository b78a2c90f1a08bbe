#pragma once

#include "containers.h"
#include "liString.h"
#include "snSelection.h"

namespace Qv {

/// A command that users can apply to a selection.
class QV_EXPORT ActAction {
public:
  virtual ~ActAction();

protected:
  /// Whether the action is offered for these items.
  virtual bool inputValid(RCShdPtr<SnItem const> const& first,
                          RCShdPtr<SnItem const> const& second) const = 0;
  virtual void performAction(RCShdPtr<SnItem const> const& first,
                             RCShdPtr<SnItem const> const& second,
                             RCShdPtr<SnSelection> const& selection) const = 0;
  /// Appends the action's options; returns how many.
  virtual int enumOptions(RCShdPtr<SnItem const> const& first, RCShdPtr<SnItem const> const& second,
                          Vector<LiString>& options) const = 0;

public:
  /// The name under which the action is registered.
  virtual LiString getName() = 0;
  /// @{
  /// Not overridden by the module.
  virtual std::string getDisplayString() const;
  virtual std::string getGroup() const;
  virtual std::string getCompositeName() const;
  /// @}

protected:
  /// @name Stand-in only
  /// @{
  ActAction();
  /// @}
};

} // namespace Qv
