#include "osFilePath.h"

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
  std::size_t const left = path_.find_last_not_of('/') + 1;
  std::size_t const right = other.path_.find_first_not_of('/');
  path_ = path_.substr(0, left) + '/' +
          (right == std::string::npos ? std::string() : other.path_.substr(right));
  return *this;
}

char const* OsFilePath::getChars() const { return path_.c_str(); }

} // namespace Qv
