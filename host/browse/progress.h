#pragma once

#include <string>

namespace Qv {

/// Tells a person who waits what is under way, while it lives: on a line of stderr, on a terminal
/// only, and not before half a second has passed. One at a time.
class Progress {
public:
  Progress();
  ~Progress();
  Progress(Progress const&) = delete;
  Progress& operator=(Progress const&) = delete;
};

/// Says what is under way from now on, in a text much shorter than a line.
void sayProgress(std::string const& text);
/// Takes the line away until it is time to write it again.
void eraseProgress();
/// Takes the line away for good.
void stopProgress();

} // namespace Qv
