#pragma once

#include "qvExport.h"

#include <string>
#include <typeinfo>

namespace Qv {

/// Returns the name of a type as a person writes it, for instance `Qv::PiTool const*`.
QV_EXPORT std::string typeName(std::type_info const& type);

} // namespace Qv
