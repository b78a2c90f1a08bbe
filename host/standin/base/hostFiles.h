#pragma once

#include "qvExport.h"

#include <boost/dll/shared_library.hpp>
#include <filesystem>
#include <string>

namespace Qv {

/// The bytes of a file. @throws HostError with nothing but the reason when it cannot be read.
QV_EXPORT std::string readFile(std::filesystem::path const& file);

/// Loads a shared library, which stays loaded as long as the result lives.
/// @throws HostError with nothing but the reason when it cannot be loaded.
QV_EXPORT boost::dll::shared_library loadLibrary(std::filesystem::path const& file);

} // namespace Qv
