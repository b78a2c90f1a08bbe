#pragma once

#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace Qv {

/// The lines of a file of expectations in this directory, without its comments.
inline std::vector<std::string> expectations(std::string const& name) {
  std::ifstream file(EXPECTATION_DIR "/" + name);
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);)
    if (!line.starts_with('#'))
      lines.push_back(line);
  if (lines.empty())
    throw std::runtime_error("there is nothing in " + name);
  return lines;
}

} // namespace Qv
