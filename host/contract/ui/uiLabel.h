#pragma once

#include "uiString.h"
#include "uiWidget.h"

namespace Qv {

/// A read-only text.
class QV_EXPORT UiLabel : public UiWidget {
public:
  /// Owned by the label.
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
