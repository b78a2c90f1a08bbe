// Draws the module's icons and the host's standard thumbnails. One drawing serves both sizes: it is
// made of shapes on a field of 32 by 32 units, so that whole units are whole pixels of an icon.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <functional>
#include <memory>
#include <numbers>
#include <stdexcept>
#include <string>
#include <tiffio.h>
#include <utility>
#include <vector>

namespace {

namespace fs = std::filesystem;

constexpr double Field = 32;
constexpr int IconSide = 32;
constexpr int ThumbnailSide = 128;

struct Point {
  double x;
  double y;
};

/// The distance of a point from the border of a shape, negative inside.
using Shape = std::function<double(Point)>;

Shape nothing() {
  return [](Point) { return Field; };
}

Shape box(Point from, Point to, double radius) {
  return [=](Point p) {
    double const x = std::abs(p.x - (from.x + to.x) / 2) - (to.x - from.x) / 2 + radius;
    double const y = std::abs(p.y - (from.y + to.y) / 2) - (to.y - from.y) / 2 + radius;
    return std::hypot(std::max(x, 0.0), std::max(y, 0.0)) + std::min(std::max(x, y), 0.0) - radius;
  };
}

Shape disc(Point center, double radius) {
  return [=](Point p) { return std::hypot(p.x - center.x, p.y - center.y) - radius; };
}

Shape polygon(std::vector<Point> corners) {
  return [corners = std::move(corners)](Point p) {
    double nearest = Field;
    bool inside = false;
    Point a = corners.back();
    for (Point const b : corners) {
      double const along = ((p.x - a.x) * (b.x - a.x) + (p.y - a.y) * (b.y - a.y)) /
                           (std::pow(b.x - a.x, 2) + std::pow(b.y - a.y, 2));
      double const t = std::clamp(along, 0.0, 1.0);
      nearest =
          std::min(nearest, std::hypot(p.x - a.x - t * (b.x - a.x), p.y - a.y - t * (b.y - a.y)));
      if ((a.y > p.y) != (b.y > p.y) && p.x < a.x + (p.y - a.y) / (b.y - a.y) * (b.x - a.x))
        inside = !inside;
      a = b;
    }
    return inside ? -nearest : nearest;
  };
}

Shape unite(Shape const& a, Shape const& b) {
  return [=](Point p) { return std::min(a(p), b(p)); };
}

Shape cut(Shape const& a, Shape const& b) {
  return [=](Point p) { return std::max(a(p), -b(p)); };
}

Shape grow(Shape const& shape, double width) {
  return [=](Point p) { return shape(p) - width; };
}

Shape shift(Shape const& shape, Point by) {
  return [=](Point p) { return shape({p.x - by.x, p.y - by.y}); };
}

Shape star(Point center, double outer, double inner) {
  constexpr int Rays = 5;
  std::vector<Point> corners;
  for (int i = 0; i < 2 * Rays; ++i) {
    double const angle = std::numbers::pi * (double(i) / Rays - 0.5);
    double const radius = i % 2 == 0 ? outer : inner;
    corners.push_back({center.x + radius * std::cos(angle), center.y + radius * std::sin(angle)});
  }
  return polygon(std::move(corners));
}

/// A wheel with teeth and a hole. `radius` reaches to the tips of the teeth.
Shape gear(Point center, double radius) {
  constexpr int Teeth = 8;
  Shape const wheel = disc({0, 0}, 0.74 * radius);
  Shape const tooth = polygon({{0.5 * radius, -0.26 * radius},
                               {0.98 * radius, -0.15 * radius},
                               {0.98 * radius, 0.15 * radius},
                               {0.5 * radius, 0.26 * radius}});
  Shape const hole = disc({0, 0}, 0.3 * radius);
  return [=](Point p) {
    p = {p.x - center.x, p.y - center.y};
    // All teeth are the one that points to the right.
    constexpr double Step = 2 * std::numbers::pi / Teeth;
    double const angle = std::atan2(p.y, p.x);
    double const turned = angle - Step * std::round(angle / Step);
    double const away = std::hypot(p.x, p.y);
    double const toothed =
        std::min(wheel(p), tooth({away * std::cos(turned), away * std::sin(turned)}));
    return std::max(toothed, -hole(p));
  };
}

/// Red, green, blue and alpha from 0 to 1, the colours not multiplied by alpha.
using Color = std::array<double, 4>;

Color color(std::uint32_t rgb, double alpha = 1) {
  return {(rgb >> 16 & 255) / 255.0, (rgb >> 8 & 255) / 255.0, (rgb & 255) / 255.0, alpha};
}

struct Layer {
  Shape shape;
  /// At the top and at the bottom of the field, blended in between.
  Color top;
  Color bottom;
  /// How many units the border takes to fade out.
  double fade = 0;
};

/// From the back to the front.
using Drawing = std::vector<Layer>;

void addShadow(Drawing& drawing, Shape const& shape) {
  drawing.push_back({shift(shape, {0, 1}), color(0, 0.28), color(0, 0.28), 2.5});
}

void addOutlined(Drawing& drawing, Shape const& shape, Color top, Color bottom, Color outline) {
  drawing.push_back({grow(shape, 1), outline, outline});
  drawing.push_back({shape, top, bottom});
}

Drawing folder() {
  Color const outline = color(0x9A6410);
  Shape const back = unite(box({3, 6}, {14, 14}, 1.5), box({3, 9}, {29, 26}, 1.5));
  Shape const front = box({3, 14}, {29, 27}, 1.5);
  Drawing drawing;
  addShadow(drawing, grow(unite(back, front), 1));
  addOutlined(drawing, back, color(0xE8A93A), color(0xC98418), outline);
  drawing.push_back({box({6, 11}, {26, 20}, 0.5), color(0xFFFFFF), color(0xD8DCE4)});
  addOutlined(drawing, front, color(0xFFE9A8), color(0xF0AE35), outline);
  return drawing;
}

/// @param gap is left free of the gear.
void addGear(Drawing& drawing, Point center, double radius, Shape const& gap) {
  Shape const wheel = cut(gear(center, radius), gap);
  addShadow(drawing, grow(wheel, 1));
  addOutlined(drawing, wheel, color(0xA9C8EE), color(0x3E6DB0), color(0x244574));
  Shape const groove = cut(disc(center, 0.58 * radius), disc(center, 0.46 * radius));
  drawing.push_back({cut(groove, gap), color(0x244574, 0.45), color(0x244574, 0.45)});
}

Drawing tool() {
  Drawing drawing;
  addGear(drawing, {16, 16}, 14, nothing());
  return drawing;
}

Drawing superTool() {
  constexpr Point Corner = {22.5, 22.5};
  Shape const badge = disc(Corner, 7.5);
  Drawing drawing;
  addGear(drawing, {13, 13}, 12, grow(badge, 2.5));
  addShadow(drawing, grow(badge, 1));
  addOutlined(drawing, badge, color(0xFFC94A), color(0xEF7F0E), color(0x9A4A00));
  drawing.push_back({star(Corner, 6.2, 2.7), color(0xFFFFFF), color(0xFFFFFF)});
  return drawing;
}

Drawing view() {
  Shape const window = box({3, 4}, {29, 27}, 2);
  Shape const content = box({5, 11}, {27, 25}, 0.5);
  Drawing drawing;
  addShadow(drawing, grow(window, 1));
  addOutlined(drawing, window, color(0x4CC0A8), color(0x1E8472), color(0x0E5548));
  for (double const x : {7, 10, 13})
    drawing.push_back({disc({x, 7}, 1), color(0xFFFFFF), color(0xFFFFFF)});
  drawing.push_back({content, color(0xFFFFFF), color(0xE4EEEC)});
  drawing.push_back({box({7, 13}, {17, 23}, 0.5), color(0x6FCDB8), color(0x4BB39C)});
  drawing.push_back({box({19, 13}, {25, 17}, 0.5), color(0xB6C4C9), color(0xB6C4C9)});
  drawing.push_back({box({19, 19}, {25, 23}, 0.5), color(0xB6C4C9), color(0xB6C4C9)});
  return drawing;
}

Drawing scheme() {
  Shape const root = box({4, 4}, {13, 11}, 1.5);
  Shape const first = box({19, 13}, {28, 18}, 1.5);
  Shape const second = box({19, 22}, {28, 27}, 1.5);
  Shape const branches =
      unite(box({8, 11}, {9, 25}, 0), unite(box({8, 15}, {19, 16}, 0), box({8, 24}, {19, 25}, 0)));
  Drawing drawing;
  addShadow(drawing, grow(unite(unite(root, branches), unite(first, second)), 1));
  drawing.push_back({grow(branches, 0.5), color(0x7A7F8E), color(0x7A7F8E)});
  Color const outline = color(0x4B2A86);
  addOutlined(drawing, root, color(0xA87BE8), color(0x6A35B8), outline);
  for (Shape const& child : {first, second})
    addOutlined(drawing, child, color(0xEBDDFF), color(0xB48CEC), outline);
  return drawing;
}

/// How much a layer covers at a point, from 0 to 1.
double coverage(Layer const& layer, Point p) {
  double const distance = layer.shape(p);
  if (layer.fade == 0)
    return distance < 0 ? 1 : 0;
  return std::pow(std::clamp(0.5 - distance / layer.fade, 0.0, 1.0), 2);
}

/// The drawing at a point, the colours multiplied by alpha.
Color mix(Drawing const& drawing, Point p) {
  Color result = {};
  for (Layer const& layer : drawing) {
    double const covered = coverage(layer, p);
    if (covered == 0)
      continue;
    double const t = p.y / Field;
    double const alpha = covered * std::lerp(layer.top[3], layer.bottom[3], t);
    for (int i = 0; i < 3; ++i)
      result[i] = std::lerp(result[i], std::lerp(layer.top[i], layer.bottom[i], t), alpha);
    result[3] = std::lerp(result[3], 1.0, alpha);
  }
  return result;
}

/// Row by row from the top, four bytes a pixel, the colours multiplied by alpha.
std::vector<std::uint8_t> render(Drawing const& drawing, int side) {
  constexpr int Samples = 6; // along each side of a pixel
  std::vector<std::uint8_t> bytes;
  for (int y = 0; y < side; ++y)
    for (int x = 0; x < side; ++x) {
      Color sum = {};
      for (int i = 0; i < Samples * Samples; ++i) {
        int const column = i % Samples;
        int const row = i / Samples;
        double const subX = (column + 0.5) / Samples;
        double const subY = (row + 0.5) / Samples;
        Color const sample = mix(drawing, {(x + subX) * Field / side, (y + subY) * Field / side});
        for (int channel = 0; channel < 4; ++channel)
          sum[channel] += sample[channel];
      }
      for (double const channel : sum)
        bytes.push_back(std::uint8_t(std::lround(255 * channel / (Samples * Samples))));
    }
  return bytes;
}

void write(fs::path const& file, Drawing const& drawing, int side) {
  std::vector<std::uint8_t> bytes = render(drawing, side);
  std::unique_ptr<TIFF, decltype(&TIFFClose)> const tiff(TIFFOpen(file.c_str(), "w"), &TIFFClose);
  if (!tiff)
    throw std::runtime_error("cannot write " + file.string());
  std::uint16_t const extraSample = EXTRASAMPLE_ASSOCALPHA;
  TIFFSetField(tiff.get(), TIFFTAG_IMAGEWIDTH, side);
  TIFFSetField(tiff.get(), TIFFTAG_IMAGELENGTH, side);
  TIFFSetField(tiff.get(), TIFFTAG_ROWSPERSTRIP, side);
  TIFFSetField(tiff.get(), TIFFTAG_BITSPERSAMPLE, 8);
  TIFFSetField(tiff.get(), TIFFTAG_SAMPLESPERPIXEL, 4);
  TIFFSetField(tiff.get(), TIFFTAG_EXTRASAMPLES, 1, &extraSample);
  TIFFSetField(tiff.get(), TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB);
  TIFFSetField(tiff.get(), TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
  TIFFSetField(tiff.get(), TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT);
  TIFFSetField(tiff.get(), TIFFTAG_COMPRESSION, COMPRESSION_LZW);
  TIFFSetField(tiff.get(), TIFFTAG_PREDICTOR, PREDICTOR_HORIZONTAL);
  if (TIFFWriteEncodedStrip(tiff.get(), 0, bytes.data(), tmsize_t(bytes.size())) < 0 ||
      !TIFFFlush(tiff.get()))
    throw std::runtime_error("cannot write all of " + file.string());
}

} // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fprintf(stderr, "usage: drawIcons MODULE_RESOURCES HOST_RESOURCES\n");
    return 2;
  }
  fs::path const icons = argv[1];
  fs::path const thumbnails = argv[2];
  try {
    write(icons / "folder.tif", folder(), IconSide);
    write(icons / "tool.tif", tool(), IconSide);
    write(icons / "supertool.tif", superTool(), IconSide);
    write(icons / "view.tif", view(), IconSide);
    write(icons / "scheme.tif", scheme(), IconSide);
    write(thumbnails / "folderThumbnail.tif", folder(), ThumbnailSide);
    write(thumbnails / "toolThumbnail.tif", tool(), ThumbnailSide);
    write(thumbnails / "superToolThumbnail.tif", superTool(), ThumbnailSide);
    write(thumbnails / "viewThumbnail.tif", view(), ThumbnailSide);
  } catch (std::exception const& error) {
    std::fprintf(stderr, "drawIcons: %s\n", error.what());
    return 1;
  }
  return 0;
}
