#include "readFile.h"

#include "hostError.h"

#include <array>
#include <cerrno>
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

} // namespace Qv
