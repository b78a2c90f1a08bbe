#include "hostTool.h"

#include <utility>

namespace Qv {

PiTool::~PiTool() = default;

HostTool::HostTool(HostToolFacts facts) : facts_(std::move(facts)) {}

HostTool::~HostTool() = default;

bool HostTool::isActive() const { return facts_.active; }

std::string HostTool::getInfoText1() const { return facts_.infoTexts[0]; }

std::string HostTool::getInfoText2() const { return facts_.infoTexts[1]; }

std::string HostTool::getInfoText3() const { return facts_.infoTexts[2]; }

std::string HostTool::getName() const { return facts_.name; }

} // namespace Qv
