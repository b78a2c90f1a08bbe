#pragma once

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

namespace Qv {

/// A directory for each test that derives from it, removed with its contents.
class TemporaryDirectory {
protected:
  TemporaryDirectory() {
    std::string pattern = std::filesystem::temp_directory_path() / "qv-XXXXXX";
    if (!mkdtemp(pattern.data()))
      throw std::system_error(errno, std::generic_category(), "mkdtemp");
    directory_ = pattern;
  }
  ~TemporaryDirectory() { std::filesystem::remove_all(directory_); }

  std::filesystem::path write(std::string const& name, std::string const& text) const {
    std::filesystem::path const file = directory_ / name;
    std::ofstream(file, std::ios::binary) << text;
    return file;
  }
  std::string read(std::string const& name) const {
    std::ifstream file(directory_ / name, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
  }

  std::filesystem::path directory_;
};

} // namespace Qv
