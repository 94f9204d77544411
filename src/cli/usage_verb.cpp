#include <algorithm>
#include <iomanip>
#include <map>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <vector>

#include "cli/image_input.h"
#include "cli/input.h"
#include "cli/json.h"
#include "cli/palette_text.h"
#include "cli/refusal.h"
#include "cli/verbs.h"

namespace quillhue::cli {

namespace {

struct UsageOptions {
  std::vector<std::string> files;
  bool standard = false;
  bool json = false;
};

struct Usage {
  Palette palette;
  ImageUse use;
  std::uint64_t pixels;
  // For each entry the first one of the same color, if that is an earlier one.
  std::vector<std::optional<std::int32_t>> sameAs;
};

std::vector<std::optional<std::int32_t>> earlierEntries(const Palette& palette) {
  std::map<PaletteEntry, std::int32_t> first;
  std::vector<std::optional<std::int32_t>> earlier;
  for (std::int32_t index = 0; index < palette.getSize(); ++index) {
    const auto [found, isNew] = first.try_emplace(palette.entry(index), index);
    earlier.push_back(isNew ? std::nullopt : std::optional(found->second));
  }
  return earlier;
}

std::expected<Usage, FileRefusal> readUsage(const UsageOptions& options, Console& console) {
  const std::string& file = options.files.front();
  auto image = readImageFile(file, options.standard, console);
  if (!image) {
    return std::unexpected(FileRefusal{file, image.error()});
  }
  if (options.files.size() > 1) {
    auto palette = readFilePalette(options.files[1], {{}, options.standard}, console);
    if (!palette) {
      return std::unexpected(FileRefusal{options.files[1], palette.error()});
    }
    image->palette = std::move(palette->palette);
  }
  if (!image->palette) {
    return std::unexpected(FileRefusal{file, "The image has no palette. Name a palette file after it."});
  }
  ImageUse use = countUse(image->image, *image->palette);
  const auto pixels =
      static_cast<std::uint64_t>(image->image.width()) * static_cast<std::uint64_t>(image->image.height());
  std::vector<std::optional<std::int32_t>> sameAs = earlierEntries(*image->palette);
  return Usage{std::move(*image->palette), std::move(use), pixels, std::move(sameAs)};
}

Json optionalJson(const std::optional<std::int32_t>& number) { return number ? jsonOf(*number) : Json(); }

void showJson(const std::string& file, const Usage& usage, Console& console) {
  std::vector<JsonObject> entries;
  std::vector<std::size_t> unused;
  std::vector<std::size_t> duplicates;
  for (std::size_t i = 0; i < usage.sameAs.size(); ++i) {
    entries.push_back(JsonObject()
                          .add("index", i)
                          .add("color", usage.palette.entry(static_cast<std::int32_t>(i)))
                          .add("pixels", usage.use.pixels[i])
                          .add("sameAs", optionalJson(usage.sameAs[i])));
    if (usage.use.pixels[i] == 0) {
      unused.push_back(i);
    }
    if (usage.sameAs[i]) {
      duplicates.push_back(i);
    }
  }
  writeJson(console, JsonObject()
                         .add("file", file)
                         .add("pixels", usage.pixels)
                         .add("entries", entries)
                         .add("unused", unused)
                         .add("duplicates", duplicates)
                         .add("other", usage.use.other)
                         .add("transparent", usage.use.transparent));
}

// Writes the number of pixels outside the palette, if there are any.
void showRest(std::uint64_t pixels, const char* what, Console& console) {
  if (pixels > 0) {
    console.out << pixels << (pixels == 1 ? " pixel " : " pixels ") << what << '\n';
  }
}

void showText(const std::string& file, const Usage& usage, Console& console) {
  constexpr std::uint64_t kBarWidth = 24;
  const auto& pixels = usage.use.pixels;
  const std::uint64_t most = std::max<std::uint64_t>(1, *std::ranges::max_element(pixels));
  console.out << file << ": " << usage.pixels << (usage.pixels == 1 ? " pixel, " : " pixels, ") << pixels.size()
              << (pixels.size() == 1 ? " entry, " : " entries, ") << std::ranges::count(pixels, 0U) << " unused, "
              << std::ranges::count_if(usage.sameAs, [](const auto& earlier) { return earlier.has_value(); })
              << " duplicate\n";
  for (std::size_t i = 0; i < pixels.size(); ++i) {
    console.out << std::setw(4) << i << "  " << hexOf(usage.palette.entry(static_cast<std::int32_t>(i)))
                << std::setw(10) << pixels[i];
    if (console.isTerminal && pixels[i] > 0) {
      console.out << "  " << std::string(static_cast<std::size_t>((pixels[i] * kBarWidth + most - 1) / most), '#');
    }
    if (pixels[i] == 0) {
      console.out << "  unused";
    }
    if (usage.sameAs[i]) {
      console.out << "  same as " << *usage.sameAs[i];
    }
    console.out << '\n';
  }
  showRest(usage.use.other, "outside the palette", console);
  showRest(usage.use.transparent, "less than half opaque", console);
}

ExitStatus showUsage(const UsageOptions& options, Console& console) try {
  if (options.files.size() > 2) {
    refuseUsage("usage", "takes IMAGE and PALETTE");
  }
  const auto usage = readUsage(options, console);
  if (!usage) {
    return refuseFile(usage.error(), options.json, console);
  }
  (options.json ? showJson : showText)(options.files.front(), *usage, console);
  return kDone;
} catch (const std::bad_alloc&) {
  return refuseFile({options.files.front(), std::string(textOf(Failure::notEnoughMemory))}, options.json, console);
}

}  // namespace

void addUsageVerb(CommandLine& tool, Console& console, ExitStatus& status) {
  Verb verb = tool.addVerb("usage", "Count the pixels of an image that use each entry of a palette");
  const auto options = std::make_shared<UsageOptions>();
  verb.addArgument(
      "FILE", options->files,
      "IMAGE, or - for standard input; then PALETTE, if it is not that of the image. A pixel of an indexed "
      "image uses the entry of its index, any other pixel the first entry of exactly its color");
  addStandardFlag(verb, options->standard);
  verb.addFlag("--json", options->json, "Write JSON: pixels of each entry, unused entries, duplicates");
  verb.onRun([options, &console, &status] { status = showUsage(*options, console); });
}

}  // namespace quillhue::cli
