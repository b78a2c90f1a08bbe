#include "osFilePath.h"

#include "hostPath.h"

namespace Qv {

OsFilePath::OsFilePath(std::string const& path) : path_(path) {}

OsFilePath::OsFilePath(OsFilePath const& other) = default;

OsFilePath::~OsFilePath() = default;

OsFilePath& OsFilePath::operator=(OsFilePath const& other) = default;

OsFilePath& OsFilePath::operator+=(OsFilePath const& other) {
  path_ = HostPath::join(path_, other.path_);
  return *this;
}

char const* OsFilePath::getChars() const { return path_.c_str(); }

} // namespace Qv
