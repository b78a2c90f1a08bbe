#pragma once

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

namespace Qv {

/// A directory of its own for each test, removed with all that is in it.
class TemporaryDirectory : public testing::Test {
protected:
  TemporaryDirectory() {
    std::string pattern = testing::TempDir() + "qvbrowse-XXXXXX";
    if (!mkdtemp(pattern.data()))
      throw std::filesystem::filesystem_error("mkdtemp", pattern,
                                              std::error_code(errno, std::generic_category()));
    directory_ = pattern;
  }
  ~TemporaryDirectory() override { std::filesystem::remove_all(directory_); }

  std::filesystem::path write(std::string const& name, std::string const& text) const {
    std::filesystem::path const file = directory_ / name;
    std::ofstream(file, std::ios::binary) << text;
    return file;
  }

  std::filesystem::path directory_;
};

} // namespace Qv
