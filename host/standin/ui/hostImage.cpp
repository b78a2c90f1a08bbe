#include "hostImage.h"

#include <memory>
#include <tiffio.h>
#include <utility>

namespace Qv {

WsManagedImage::~WsManagedImage() = default;

HostImage::HostImage(std::string name, std::uint32_t width, std::uint32_t height,
                     std::vector<std::uint32_t> pixels)
    : name_(std::move(name)), width_(width), height_(height), pixels_(std::move(pixels)) {}

HostImage::~HostImage() = default;

RCShdPtr<HostImage> HostImage::read(std::filesystem::path const& file) {
  // libtiff would write to stderr; null is enough for the caller.
  TIFFSetErrorHandler(nullptr);
  TIFFSetWarningHandler(nullptr);

  std::unique_ptr<TIFF, decltype(&TIFFClose)> const tiff(TIFFOpen(file.c_str(), "r"), &TIFFClose);
  std::uint32_t width = 0;
  std::uint32_t height = 0;
  if (!tiff || !TIFFGetField(tiff.get(), TIFFTAG_IMAGEWIDTH, &width) ||
      !TIFFGetField(tiff.get(), TIFFTAG_IMAGELENGTH, &height))
    return RCShdPtr<HostImage>();
  constexpr std::uint32_t LargestSide = 4096;
  if (width > LargestSide || height > LargestSide)
    return RCShdPtr<HostImage>();

  std::vector<std::uint32_t> pixels(std::size_t(width) * height);
  if (!TIFFReadRGBAImageOriented(tiff.get(), width, height, pixels.data(), ORIENTATION_TOPLEFT, 1))
    return RCShdPtr<HostImage>();
  return RCShdPtr<HostImage>(new HostImage(file.filename(), width, height, std::move(pixels)));
}

} // namespace Qv
