#include "osFilePath.h"

#include <algorithm>

namespace Qv {

OsFilePath::OsFilePath(std::string const& path) : path_(path) {}

OsFilePath::OsFilePath(OsFilePath const& other) = default;

OsFilePath::~OsFilePath() = default;

OsFilePath& OsFilePath::operator=(OsFilePath const& other) = default;

OsFilePath& OsFilePath::operator+=(OsFilePath const& other) {
  if (path_.empty() || other.path_.empty()) {
    path_ += other.path_;
    return *this;
  }
  // A path may be appended to itself.
  std::size_t const right = std::min(other.path_.find_first_not_of('/'), other.path_.size());
  std::string joined;
  joined.reserve(path_.size() + 1 + other.path_.size());
  joined.append(path_, 0, path_.find_last_not_of('/') + 1).append(1, '/');
  joined.append(other.path_, right);
  path_.swap(joined);
  return *this;
}

char const* OsFilePath::getChars() const { return path_.c_str(); }

} // namespace Qv
