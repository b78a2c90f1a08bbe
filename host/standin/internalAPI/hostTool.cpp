#include "hostTool.h"

#include <utility>

namespace Qv {

PiTool::~PiTool() = default;

HostTool::HostTool(HostToolInfo info) : info_(std::move(info)) {}

HostTool::~HostTool() = default;

bool HostTool::isActive() const { return info_.active; }

std::string HostTool::getInfoText1() const { return info_.infoTexts[0]; }

std::string HostTool::getInfoText2() const { return info_.infoTexts[1]; }

std::string HostTool::getInfoText3() const { return info_.infoTexts[2]; }

std::string HostTool::getName() const { return info_.name; }

} // namespace Qv
