#include "hostFiles.h"

#include "hostError.h"

#include <array>
#include <cerrno>
#include <dlfcn.h>
#include <fstream>
#include <system_error>

namespace Qv {

std::string readFile(std::filesystem::path const& file) {
  errno = 0;
  std::ifstream stream(file, std::ios::binary);
  std::string text;
  std::array<char, 1 << 16> buffer;
  while (stream.read(buffer.data(), buffer.size()) || stream.gcount() > 0)
    text.append(buffer.data(), std::size_t(stream.gcount()));
  if (!stream.is_open() || stream.bad())
    throw HostError(std::generic_category().message(errno));
  return text;
}

boost::dll::shared_library loadLibrary(std::filesystem::path const& file) {
  std::error_code error;
  std::filesystem::path const absolute = std::filesystem::absolute(file, error);
  if (error)
    throw HostError(error.message());
  boost::dll::shared_library library(absolute, boost::dll::load_mode::rtld_now, error);
  if (!error)
    return library;
  char const* const text = dlerror();
  std::string reason = text ? text : "the loader gives no reason";
  // The loader starts with the path that it was given.
  std::string const prefix = absolute.string() + ": ";
  if (reason.starts_with(prefix))
    reason.erase(0, prefix.size());
  throw HostError(reason);
}

} // namespace Qv
