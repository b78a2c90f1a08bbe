#pragma once

#include "uiString.h"
#include "uiWidget.h"

namespace Qv {

/// A text that cannot be edited.
class QV_EXPORT UiLabel : public UiWidget {
public:
  explicit UiLabel(std::string const& name);

  /// The text, which the label owns.
  UiString& getLabel() const;

protected:
  ~UiLabel() override;

private:
  mutable UiString label_;
};

} // namespace Qv
