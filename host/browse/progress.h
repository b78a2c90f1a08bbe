#pragma once

#include <string>

namespace Qv {

/// Shows a progress line on stderr for its lifetime: on a terminal only, and not before half a
/// second has passed. One at a time.
class Progress {
public:
  Progress();
  ~Progress();
  Progress(Progress const&) = delete;
  Progress& operator=(Progress const&) = delete;
};

/// Sets what is under way, in a text much shorter than a line.
void setProgress(std::string const& text);
/// Takes the line away until it is time to write it again.
void eraseProgress();
/// Takes the line away for good.
void stopProgress();

} // namespace Qv
