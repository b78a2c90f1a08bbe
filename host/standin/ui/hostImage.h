#pragma once

#include "rcShdPtr.h"
#include "wsManagedImage.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace Qv {

/// What an image file holds.
class QV_EXPORT HostImage final : public WsManagedImage {
public:
  /// Reads a TIFF file. Null when there is no such file or it holds no readable image.
  static RCShdPtr<HostImage> read(std::filesystem::path const& file);

  /// The bare name of the file that the image was read from.
  std::string const& getName() const { return name_; }
  /// In pixels.
  std::uint32_t getWidth() const { return width_; }
  std::uint32_t getHeight() const { return height_; }
  /// Row by row from the top, one number a pixel: red in the lowest byte, then green, blue and
  /// alpha, by which the colours are multiplied.
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
