#include <algorithm>
#include <array>
#include <bitset>
#include <map>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "cli/file_log.h"
#include "cli/image_format.h"
#include "cli/image_input.h"
#include "cli/input.h"
#include "cli/notes.h"
#include "cli/output.h"
#include "cli/refusal.h"
#include "cli/verbs.h"

namespace quillhue::cli {

namespace {

constexpr const char* kManual =
    R"(The entries that no pixel uses go, and so do those that repeat the color of an earlier entry. The other entries keep their
order. An image with partly transparent entries is refused.

    quillhue-cli compact sprite.png small.png --palette-out small.gpl

)";

struct CompactOptions {
  std::string from;
  std::string to;
  std::string paletteOut;
  std::string format;
  bool standard = false;
  bool force = false;
};

// The entries that stay, and the new index of each old one.
struct Compaction {
  std::vector<PaletteEntry> colors;
  std::bitset<256> transparent;
  std::array<std::uint8_t, 256> newIndexes{};
};

// Keeps the first used entry of each color, once opaque and once transparent.
Compaction compactionOf(const WorkImage& image, const Palette& stored) {
  // Some files use indexes past the end of their palette, which are black.
  const Palette palette = resizedCopy(stored, kMaxUsedEntries, {});
  const ImageUse use = countUse(image, palette);
  Compaction compaction;
  std::map<std::pair<PaletteEntry, bool>, std::uint8_t> places;
  for (std::size_t i = 0; i < use.pixels.size(); ++i) {
    if (use.pixels[i] == 0) {
      continue;
    }
    const PaletteEntry color = palette.entry(static_cast<std::int32_t>(i));
    const bool isTransparent = image.transparentIndexes()[i];
    const auto next = static_cast<std::uint8_t>(compaction.colors.size());
    const auto [place, isNew] = places.try_emplace({color, isTransparent}, next);
    compaction.newIndexes[i] = place->second;
    if (isNew) {
      compaction.transparent.set(next, isTransparent);
      compaction.colors.push_back(color);
    }
  }
  return compaction;
}

std::expected<std::vector<std::uint8_t>, std::string> compose(const WorkImage& image, const Compaction& compaction,
                                                              const ImageFormat& format) {
  RemappedImage result;
  result.prepare(image.width(), image.height(), compaction.colors);
  for (std::int32_t y = 0; y < image.height(); ++y) {
    std::ranges::transform(image.row(y), result.row(y).begin(),
                           [&](std::uint8_t index) { return compaction.newIndexes[index]; });
  }
  auto content = format.compose({result, paletteOf(compaction.colors), compaction.transparent, {}});
  if (!content) {
    return refusalOf(content.error());
  }
  return std::move(*content);
}

std::expected<void, std::string> checkTransparency(const ImageFile& file, const ImageFormat& format) {
  if (file.isPartlyTransparent) {
    return Refusal("The image has partly transparent entries, which can't be written.");
  }
  if (file.image.transparentIndexes().any() && !format.hasTransparency) {
    return Refusal("The image has transparent entries. Write a PNG, because bitmaps have none.");
  }
  return {};
}

std::expected<void, FileRefusal> compactFile(const CompactOptions& options, Console& console) try {
  const ImageFormat& format = chooseImageFormat(options.format, options.to);
  const auto file = readImageFile(options.from, options.standard, console);
  const auto usable = file ? checkTransparency(*file, format) : Refusal(file.error());
  if (!usable) {
    return std::unexpected(FileRefusal{options.from, usable.error()});
  }
  const std::optional<Palette>& stored = file->palette;
  if (!stored) {
    return std::unexpected(FileRefusal{options.from, "The image has no palette. Use the verb remap to give it one."});
  }
  const Compaction compaction = compactionOf(file->image, *stored);
  const auto content = compose(file->image, compaction, format);
  if (!content) {
    return std::unexpected(FileRefusal{options.from, content.error()});
  }
  if (!options.paletteOut.empty()) {
    OutputOptions output;
    output.force = options.force;
    const Palette palette = paletteOf(compaction.colors);
    const FormatChoice choice(output, options.standard, options.paletteOut);
    const auto written = writePalette(
        {options.from, options.paletteOut, choice.formatFor({}, palette.getSize()), {}, output}, palette, console);
    if (!written) {
      return written;
    }
  }
  FileRecord record = recordOf(options.to, format.name, content->size(), file->image);
  record.entries = static_cast<std::int32_t>(compaction.colors.size());
  WrittenFile logged(console, std::move(record));
  const auto written = writeOutput(options.to, *content, options.force, console);
  if (!written) {
    return std::unexpected(FileRefusal{options.to, written.error()});
  }
  logged.add();
  return {};
} catch (const std::bad_alloc&) {
  return std::unexpected(FileRefusal{options.from, std::string(textOf(Failure::notEnoughMemory))});
}

}  // namespace

void addCompactVerb(CommandLine& tool, Console& console, ExitStatus& status) {
  Verb verb = tool.addVerb("compact", "Remove unused and duplicate entries from an image");
  const auto options = std::make_shared<CompactOptions>();
  verb.addArgument("IMAGE", options->from, "An indexed image, or - for standard input");
  verb.addArgument("OUT", options->to, "The image to write. It looks the same; the remaining entries keep their order");
  verb.addOption("--palette-out FILE", options->paletteOut, "Write the remaining entries to this palette file");
  verb.addChoice("--format", options->format, imageFormatNames(), kImageFormatHelp);
  addStandardFlag(verb, options->standard);
  addForceFlag(verb, options->force);
  addMessageFlags(verb, console);
  verb.setManual(kManual);
  verb.onRun([options, &console, &status] {
    const auto done = compactFile(*options, console);
    status = done ? kDone : refuseFile(done.error(), false, console);
  });
}

}  // namespace quillhue::cli
