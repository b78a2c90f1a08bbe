#pragma once

#include "uiString.h"
#include "uiWidget.h"

namespace Qv {

/// A text that cannot be edited.
class QV_EXPORT UiLabel : public UiWidget {
public:
  /// The text, which the label owns.
  UiString& getLabel() const;

  /// @name Stand-in only
  /// @{
  explicit UiLabel(std::string const& name);
  /// @}

protected:
  ~UiLabel() override;

private:
  mutable UiString label_;
};

} // namespace Qv
