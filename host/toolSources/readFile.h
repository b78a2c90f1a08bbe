#pragma once

#include <filesystem>
#include <string>

namespace Qv {

/// The bytes of a file. @throws HostError with nothing but the reason when it cannot be read.
std::string readFile(std::filesystem::path const& file);

} // namespace Qv
