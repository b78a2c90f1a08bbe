#include "hostTool.h"

#include <utility>

namespace Qv {

PiTool::~PiTool() = default;

HostTool::HostTool(HostToolFacts facts) : facts_(std::move(facts)) {}

HostTool::~HostTool() = default;

} // namespace Qv
