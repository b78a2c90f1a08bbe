#pragma once

#include "rcShdPtr.h"
#include "wsManagedImage.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace Qv {

/// The contents of an image file.
class QV_EXPORT HostImage final : public WsManagedImage {
public:
  /// Reads a TIFF file; null if it is missing, unreadable or larger than 4096 x 4096 pixels.
  static RCShdPtr<HostImage> read(std::filesystem::path const& file);

  /// The bare name of the file.
  std::string const& getName() const { return name_; }
  /// In pixels.
  std::uint32_t getWidth() const { return width_; }
  std::uint32_t getHeight() const { return height_; }
  /// Row by row from the top: red in the lowest byte, then green, blue and alpha, premultiplied.
  std::vector<std::uint32_t> const& getPixels() const { return pixels_; }

private:
  HostImage(std::string name, std::uint32_t width, std::uint32_t height,
            std::vector<std::uint32_t> pixels);
  ~HostImage() override;

  std::string name_;
  std::uint32_t width_;
  std::uint32_t height_;
  std::vector<std::uint32_t> pixels_;
};

} // namespace Qv
