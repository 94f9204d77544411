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
#include "cli/notes.h"
#include "cli/palette_text.h"
#include "cli/refusal.h"
#include "cli/verbs.h"

namespace quillhue::cli {

namespace {

constexpr const char* kManual =
    R"(A pixel of an indexed image uses the entry of its index. A pixel of any other image uses the first entry that has exactly
its color. Pixels that no entry matches are counted at the end.

    quillhue-cli usage sprite.png
    quillhue-cli usage photo.jpg sea.gpl --json

To remove unused entries from an image, use the verb compact. To change the used entries of a palette, use the step
--select used:IMAGE of the verb edit.

)";

struct UsageOptions {
  std::vector<std::string> files;
  bool standard = false;
  bool json = false;
};

struct Usage {
  Palette palette;
  ImageUse use;
  std::uint64_t pixels;
  // For each entry the first one of the same color, which may be the entry itself.
  std::vector<std::size_t> first;

  [[nodiscard]] PaletteEntry color(std::size_t index) const { return palette.entry(static_cast<std::int32_t>(index)); }
  [[nodiscard]] bool isDuplicate(std::size_t index) const { return first[index] != index; }
};

std::vector<std::size_t> firstEntries(const Palette& palette) {
  std::map<PaletteEntry, std::size_t> known;
  std::vector<std::size_t> first;
  for (const PaletteEntry& color : entriesOf(palette)) {
    first.push_back(known.try_emplace(color, first.size()).first->second);
  }
  return first;
}

std::expected<Usage, FileRefusal> readUsage(const UsageOptions& options, Console& console) {
  const std::string& file = options.files.front();
  auto image = readImageFile(file, options.standard, console);
  if (!image) {
    return std::unexpected(FileRefusal{file, image.error()});
  }
  std::optional<Palette> palette = std::move(image->palette);
  if (options.files.size() > 1) {
    auto read = readFilePalette(options.files[1], {{}, options.standard}, console);
    if (!read) {
      return std::unexpected(FileRefusal{options.files[1], read.error()});
    }
    palette = std::move(read->palette);
  }
  if (!palette) {
    return std::unexpected(FileRefusal{file, "The image has no palette. Name a palette file after it."});
  }
  ImageUse use = countUse(image->image, *palette);
  const auto pixels =
      static_cast<std::uint64_t>(image->image.width()) * static_cast<std::uint64_t>(image->image.height());
  std::vector<std::size_t> first = firstEntries(*palette);
  return Usage{*std::move(palette), std::move(use), pixels, std::move(first)};
}

void showJson(const std::string& file, const Usage& usage, Console& console) {
  std::vector<JsonObject> entries;
  std::vector<std::size_t> unused;
  std::vector<std::size_t> duplicates;
  for (std::size_t i = 0; i < usage.first.size(); ++i) {
    entries.push_back(JsonObject()
                          .add("index", i)
                          .add("color", usage.color(i))
                          .add("pixels", usage.use.pixels[i])
                          .add("sameAs", usage.isDuplicate(i) ? jsonOf(usage.first[i]) : Json()));
    if (usage.use.pixels[i] == 0) {
      unused.push_back(i);
    }
    if (usage.isDuplicate(i)) {
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
  std::size_t duplicates = 0;
  for (std::size_t i = 0; i < pixels.size(); ++i) {
    duplicates += usage.isDuplicate(i) ? 1 : 0;
  }
  const std::uint64_t most = std::max<std::uint64_t>(1, *std::ranges::max_element(pixels));
  console.out << printableName(file) << ": " << usage.pixels << (usage.pixels == 1 ? " pixel, " : " pixels, ")
              << pixels.size() << (pixels.size() == 1 ? " entry, " : " entries, ") << std::ranges::count(pixels, 0U)
              << " unused, " << duplicates << " duplicate\n";
  for (std::size_t i = 0; i < pixels.size(); ++i) {
    console.out << std::setw(4) << i << "  " << hexOf(usage.color(i)) << std::setw(10) << pixels[i];
    if (console.isTerminal && pixels[i] > 0) {
      console.out << "  " << std::string(static_cast<std::size_t>((pixels[i] * kBarWidth + most - 1) / most), '#');
    }
    if (pixels[i] == 0) {
      console.out << "  unused";
    }
    if (usage.isDuplicate(i)) {
      console.out << "  same as " << usage.first[i];
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
  Verb verb = tool.addVerb("usage", "Count the pixels of an image that use each entry");
  const auto options = std::make_shared<UsageOptions>();
  verb.addArgument(
      "FILE", options->files,
      "IMAGE, or - for standard input; then PALETTE, if it is not that of the image. A pixel of an indexed "
      "image uses the entry of its index, any other pixel the first entry of exactly its color");
  addStandardFlag(verb, options->standard);
  verb.addFlag("--json", options->json, "Write JSON: pixels of each entry, unused entries, duplicates");
  addMessageFlags(verb, console);
  verb.setManual(kManual);
  verb.onRun([options, &console, &status] { status = showUsage(*options, console); });
}

}  // namespace quillhue::cli
