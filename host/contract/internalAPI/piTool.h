#pragma once

#include "rcBase.h"

#include <string>

namespace Qv {

/// A registered tool, handled as `RCShdPtr<PiTool const>`. The host has further slots before and
/// between these, which the module does not call.
class QV_EXPORT PiTool : public RCBase<LkCounter<int>> {
protected:
  ~PiTool() override;

public:
  /// Whether the tool can be used.
  virtual bool isActive() const = 0;
  /// The first text of the detail page.
  virtual std::string getInfoText1() const = 0;
  /// The second, longer text; also the first line of the tooltip.
  virtual std::string getInfoText2() const = 0;
  /// The third text.
  virtual std::string getInfoText3() const = 0;
  /// The registry name, a single path component.
  virtual std::string getName() const = 0;
};

} // namespace Qv
