#pragma once

#include "piTool.h"

#include <array>
#include <string>

namespace Qv {

/// The host's data of a tool.
struct HostToolInfo {
  std::string name;
  std::string category;
  bool active = true;
  bool internal = false;
  bool superTool = false;
  std::array<std::string, 3> infoTexts{};
};

/// A registered tool.
class QV_EXPORT HostTool final : public PiTool {
public:
  explicit HostTool(HostToolInfo info);

  bool isActive() const override;
  std::string getInfoText1() const override;
  std::string getInfoText2() const override;
  std::string getInfoText3() const override;
  std::string getName() const override;

  HostToolInfo const& getInfo() const { return info_; }

private:
  ~HostTool() override;

  HostToolInfo info_;
};

} // namespace Qv
