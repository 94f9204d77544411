#include "bench/images.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <filesystem>
#include <map>
#include <optional>
#include <random>
#include <set>
#include <system_error>
#include <utility>

#include "formats/byte_sink.h"
#include "formats/files.h"

namespace quillhue::bench {

namespace {

struct Color {
  float red;
  float green;
  float blue;
};

float mix(float from, float to, float share) { return from + (to - from) * share; }

Color mix(const Color& from, const Color& to, float share) {
  return {mix(from.red, to.red, share), mix(from.green, to.green, share), mix(from.blue, to.blue, share)};
}

Color scaled(const Color& color, float factor) {
  return {color.red * factor, color.green * factor, color.blue * factor};
}

// Returns a number from 0 to 1 for each point with whole coordinates, with the finalizer of MurmurHash3 (A. Appleby).
float latticeValue(std::int32_t x, std::int32_t y, std::uint32_t seed) {
  std::uint32_t hash =
      static_cast<std::uint32_t>(x) * 0x9E3779B1U ^ static_cast<std::uint32_t>(y) * 0x85EBCA77U ^ seed * 0xC2B2AE3DU;
  hash = (hash ^ hash >> 16) * 0x85EBCA6BU;
  hash = (hash ^ hash >> 13) * 0xC2B2AE35U;
  return static_cast<float>((hash ^ hash >> 16) >> 8) / 16777216.0F;
}

float smoothNoise(float x, float y, std::uint32_t seed) {
  const auto ease = [](float share) { return share * share * (3 - 2 * share); };
  const float left = std::floor(x);
  const float top = std::floor(y);
  const auto column = static_cast<std::int32_t>(left);
  const auto row = static_cast<std::int32_t>(top);
  const float across = ease(x - left);
  return mix(mix(latticeValue(column, row, seed), latticeValue(column + 1, row, seed), across),
             mix(latticeValue(column, row + 1, seed), latticeValue(column + 1, row + 1, seed), across), ease(y - top));
}

// Adds octaves, each twice as fine and half as strong as the one before, like the roughness of clouds, rock and leaves.
// Returns 0 to 1, mostly near the middle.
float roughness(float x, float y, int octaves, std::uint32_t seed) {
  float sum = 0;
  float strength = 0.5F;
  for (int octave = 0; octave < octaves; ++octave, strength /= 2) {
    sum += strength * smoothNoise(x, y, seed + static_cast<std::uint32_t>(octave));
    x *= 2;
    y *= 2;
  }
  return sum + strength;
}

// The same, but extremes are more frequent.
float texture(float x, float y, int octaves, std::uint32_t seed) {
  return std::clamp(2 * roughness(x, y, octaves, seed) - 0.5F, 0.0F, 1.0F);
}

// Coordinates count from the image's top left; 1 is the height of the image.
Color skyAt(float x, float y) {
  const Color sky = mix({74, 122, 190}, {226, 214, 196}, std::min(1.0F, y * 1.7F));
  const float cloud = std::clamp(3.2F * roughness(2 * x, 5 * y, 6, 10) - 1.5F, 0.0F, 1.0F);
  return mix(sky, {244, 238, 232}, 0.8F * cloud);
}

Color hillAt(float x, float y, float haze, std::uint32_t seed) {
  const Color rock = mix({52, 62, 40}, {138, 118, 86}, texture(14 * x, 22 * y, 7, seed));
  return mix(rock, {150, 166, 190}, haze);
}

Color meadowAt(float x, float y) {
  const Color grass = mix({34, 66, 20}, {150, 164, 62}, texture(90 * x, 50 * y, 5, 40));
  const Color flowers = mix({196, 96, 52}, {172, 150, 196}, texture(7 * x, 9 * y, 4, 45));
  return mix(scaled(grass, 0.4F + 0.7F * y), flowers,
             0.7F * texture(40 * x, 60 * y, 5, 50) * smoothNoise(5 * x, 9 * y, 55));
}

struct Ball {
  float x;
  float y;
  float radius;
  Color color;
};
constexpr std::array<Ball, 5> kBalls{{{0.22F, 0.82F, 0.10F, {214, 46, 38}},
                                      {0.52F, 0.90F, 0.07F, {236, 196, 34}},
                                      {0.74F, 0.76F, 0.05F, {38, 84, 202}},
                                      {0.98F, 0.86F, 0.11F, {196, 64, 168}},
                                      {1.20F, 0.78F, 0.06F, {238, 236, 230}}}};

// Lit from the upper left.
std::optional<Color> ballAt(float x, float y) {
  for (const Ball& ball : kBalls) {
    const float across = (x - ball.x) / ball.radius;
    const float down = (y - ball.y) / ball.radius;
    const float square = across * across + down * down;
    if (square < 1) {
      const float light = 0.55F * std::sqrt(1 - square) - 0.35F * (across + down);
      return mix(scaled(ball.color, 0.35F + 0.65F * std::max(light, 0.0F)), {255, 255, 255},
                 0.6F * std::max(light - 0.6F, 0.0F));
    }
  }
  return std::nullopt;
}

Color sceneAt(float x, float y) {
  if (y < 0.30F) {
    return skyAt(x, y);
  }
  if (const auto ball = ballAt(x, y)) {
    return *ball;
  }
  if (y > 0.62F + 0.04F * smoothNoise(3 * x, 0, 30)) {
    return meadowAt(x, y);
  }
  if (y > 0.42F + 0.22F * roughness(3 * x, 0, 7, 20)) {
    return hillAt(x, y, 0.1F, 60);
  }
  return y > 0.30F + 0.25F * roughness(2 * x, 0, 8, 21) ? hillAt(x, y, 0.6F, 70) : skyAt(x, y);
}

WorkImage makePhotoLike(ImageSize size) {
  WorkImage image(size.width, size.height, std::nullopt);
  std::minstd_rand random(1);
  // The sum of two dice: small differences are more likely than large ones.
  const auto noise = [&random](std::uint32_t sides) {
    return static_cast<float>(random() / 8 % sides + random() / 8 % sides) - static_cast<float>(sides - 1);
  };
  const float step = 1 / static_cast<float>(size.height);
  for (std::int32_t y = 0; y < size.height; ++y) {
    const auto row = image.row(y);
    for (std::int32_t x = 0; x < size.width; ++x) {
      const Color color = sceneAt(static_cast<float>(x) * step, static_cast<float>(y) * step);
      const float brightness = noise(5);
      std::size_t place = 3 * static_cast<std::size_t>(x);
      for (const float channel : {color.blue, color.green, color.red}) {
        row[place++] = static_cast<std::uint8_t>(std::clamp(channel + brightness + noise(3), 0.0F, 255.0F));
      }
    }
  }
  return image;
}

void store(const Color& color, std::span<std::uint8_t> pixel) {
  std::size_t place = 0;
  for (const float channel : {color.blue, color.green, color.red}) {
    pixel[place++] = static_cast<std::uint8_t>(std::clamp(channel, 0.0F, 255.0F));
  }
}

// Makes an image of the colors that `colorAt` returns for each column and row.
template <typename ColorAt>
WorkImage imageOf(ImageSize size, ColorAt colorAt) {
  WorkImage image(size.width, size.height, std::nullopt);
  for (std::int32_t y = 0; y < size.height; ++y) {
    for (std::int32_t x = 0; x < size.width; ++x) {
      store(colorAt(x, y), image.row(y).subspan(3 * static_cast<std::size_t>(x), 3));
    }
  }
  return image;
}

WorkImage makeSmooth(ImageSize size) {
  return imageOf(size, [size](std::int32_t column, std::int32_t row) {
    const float x = static_cast<float>(column) / static_cast<float>(size.width);
    const float y = static_cast<float>(row) / static_cast<float>(size.height);
    const Color upper = mix({20, 60, 160}, {250, 200, 90}, x);
    const Color lower = mix({30, 110, 40}, {200, 40, 70}, x);
    return scaled(mix(upper, lower, y), 0.7F + 0.3F * smoothNoise(4 * x, 3 * y, 80));
  });
}

// Twelve hues around the color circle, each dark, strong, light and pale.
Color artColor(std::uint32_t hue, std::uint32_t shade) {
  const auto channel = [hue](std::uint32_t turn) {
    const auto away = static_cast<float>((hue + turn) % 12);
    return std::clamp(2 - std::min(away, 12 - away) / 2, 0.0F, 1.0F) * 255;
  };
  const Color pure{channel(0), channel(8), channel(4)};
  const Color white{255, 255, 255};
  return shade == 0 ? scaled(pure, 0.5F) : mix(pure, white, 0.3F * static_cast<float>(shade - 1));
}

WorkImage makePixelArt(ImageSize size) {
  // A pixel of the art is 2 x 2 of the image.
  constexpr std::int32_t kTile = 16;
  const auto upTo = [](float share, std::uint32_t count) {
    return static_cast<std::uint32_t>(share * static_cast<float>(count));
  };
  return imageOf(size, [upTo](std::int32_t column, std::int32_t row) {
    const std::int32_t x = column / 2 % kTile;
    const std::int32_t y = row / 2 % kTile;
    const std::int32_t tileX = column / 2 / kTile;
    const std::int32_t tileY = row / 2 / kTile;
    const auto tile = [&](std::uint32_t what, std::uint32_t count) {
      return upTo(latticeValue(tileX, tileY, what), count);
    };
    const std::uint32_t hue = tile(90, 12);
    const Color background =
        artColor(upTo(latticeValue(tileX / 8, tileY / 4, 91), 12), static_cast<std::uint32_t>(tileY % 4));
    const std::uint32_t kind = tile(92, 4);
    if (kind == 0) {
      const bool isJoint = y % 4 == 3 || (x + y / 4 % 2 * 4) % 8 == 7;
      return artColor(hue, isJoint ? 0 : 1);
    }
    // Figures are symmetric.
    const std::int32_t side = std::min(x, kTile - 1 - x);
    const float ink = latticeValue(side, y, static_cast<std::uint32_t>(100 + 64 * tileY + tileX));
    const bool isFigure = kind == 1 && side > 2 && y > 1 && y < 14 && ink < 0.8F;
    return isFigure ? artColor(hue + upTo(ink, 3), upTo(ink, 4)) : background;
  });
}

WorkImage makeNoise(ImageSize size) {
  WorkImage image(size.width, size.height, std::nullopt);
  std::minstd_rand random(2);
  std::ranges::generate(image.pixels(), [&] { return static_cast<std::uint8_t>(random() >> 8); });
  return image;
}

// Images are large: each is made once.
class Images {
 public:
  explicit Images(WorkImage (*make)(ImageSize size)) : make_(make) {}

  const WorkImage& get(ImageSize size) {
    const std::pair key(size.width, size.height);
    const auto found = images_.find(key);
    return found != images_.end() ? found->second : images_.emplace(key, make_(size)).first->second;
  }

 private:
  WorkImage (*make_)(ImageSize size);
  std::map<std::pair<std::int32_t, std::int32_t>, WorkImage> images_;
};

}  // namespace

std::string nameOf(ImageSize size) { return std::to_string(size.width) + 'x' + std::to_string(size.height); }

const WorkImage& photoLikeImage(ImageSize size) {
  static Images images(makePhotoLike);
  return images.get(size);
}

const WorkImage& smoothImage(ImageSize size) {
  static Images images(makeSmooth);
  return images.get(size);
}

const WorkImage& pixelArtImage(ImageSize size) {
  static Images images(makePixelArt);
  return images.get(size);
}

const WorkImage& noiseImage(ImageSize size) {
  static Images images(makeNoise);
  return images.get(size);
}

std::vector<std::uint8_t> bitmapOf(const WorkImage& image) {
  constexpr std::size_t kPixels = 54;
  const auto height = static_cast<std::size_t>(image.height());
  const std::size_t stride = (3 * static_cast<std::size_t>(image.width()) + 3) / 4 * 4;
  ByteSink sink;
  sink.extend(kPixels + stride * height);
  sink.text(0, "BM");
  sink.u32le(2, static_cast<std::uint32_t>(sink.size()));
  sink.u32le(10, kPixels);
  sink.u32le(14, 40);
  sink.u32le(18, static_cast<std::uint32_t>(image.width()));
  sink.u32le(22, static_cast<std::uint32_t>(image.height()));
  sink.u16le(26, 1);
  sink.u16le(28, 24);
  std::vector<std::uint8_t> file = sink.take();
  for (std::size_t y = 0; y < height; ++y) {
    std::ranges::copy(image.row(static_cast<std::int32_t>(y)),
                      std::span(file).subspan(kPixels + (height - 1 - y) * stride).begin());
  }
  return file;
}

std::wstring bitmapFileOf(ImageSize size) {
  return scratchFile("photo-" + nameOf(size), [&] { return bitmapOf(photoLikeImage(size)); });
}

std::wstring scratchFile(const std::string& name, const std::function<std::vector<std::uint8_t>()>& content) {
  static std::set<std::string> made;
  const auto path = std::filesystem::temp_directory_path() / ("quillhue-bench-" + name);
  const std::wstring file = toFileName(path);
  if (!made.contains(name)) {
    if (!writeFile(file, content())) {
      throw std::filesystem::filesystem_error("cannot write", path, std::make_error_code(std::errc::io_error));
    }
    made.insert(name);
  }
  return file;
}

}  // namespace quillhue::bench
