#include <array>
#include <string_view>
#include <vector>

#include "cli/image_input.h"
#include "cli/steps/step.h"
#include "core/commands/selection.h"

namespace quillhue::cli {

namespace {

// Selects the entries that an image uses, or those that it doesn't.
Step selectByUse(const std::string& file, bool used) {
  return [file, used](EditSession& session) -> StepResult {
    const auto image = readImage(file, session.input.standard, {}, session.console);
    if (!image) {
      return Refusal(image.error());
    }
    const ImageUse use = countUse(*image, session.document().getPalette());
    std::vector<std::int32_t> indexes;
    for (std::int32_t index = 0; index < session.document().getSize(); ++index) {
      if ((use.pixels[static_cast<std::size_t>(index)] > 0) == used) {
        indexes.push_back(index);
      }
    }
    selectEntries(session.document(), indexes);
    return {};
  };
}

ParsedStep parseSelect(const std::string& argument) {
  const auto colon = argument.find(':');
  const Command* const command = findStep("select", argument.substr(0, colon));
  const bool takesEntry = command != nullptr && command->need == CommandNeed::currentEntry;
  if (command != nullptr && takesEntry == (colon != std::string::npos)) {
    return takesEntry ? entryStepOf(argument.substr(colon + 1), *command) : stepOf(*command);
  }
  const std::string which = argument.substr(0, colon);
  if (colon != std::string::npos && (which == "used" || which == "unused")) {
    const std::string file = argument.substr(colon + 1);
    if (file == "-") {
      return Refusal("needs a file: standard input has no name");
    }
    return selectByUse(file, which == "used");
  }
  auto entries = EntryList::parse(argument);
  if (!entries) {
    return Refusal(entries.error() +
                   ", nor all, none, invert, redundant, matches:N, brighter:N, darker:N, used:IMAGE or unused:IMAGE");
  }
  return [entries = *std::move(entries)](EditSession& session) -> StepResult {
    const auto indexes = entries.within(session.document().getSize());
    if (!indexes) {
      return Refusal(indexes.error());
    }
    selectEntries(session.document(), *indexes);
    return {};
  };
}

ParsedStep parseChannels(const std::string& argument) {
  constexpr std::string_view kLetters = "rgb";
  ChannelMask mask = 0;
  for (const char letter : argument == "none" ? std::string() : argument) {
    const auto at = kLetters.find(letter);
    if (at == std::string_view::npos) {
      return Refusal(argument + " is not none, nor any of the letters r, g and b");
    }
    mask |= maskOf(kChannels[at]);
  }
  if (argument.empty()) {
    return Refusal("needs none, or any of the letters r, g and b");
  }
  return stepOf([mask](EditSession& session) { session.mask = mask; });
}

constexpr std::array<StepKind, 2> kSteps{{
    {"--select", "WHICH",
     "Select entries: a list like 0-15,20, or all, none, invert, redundant, matches:N, brighter:N, darker:N, "
     "used:IMAGE or unused:IMAGE (initially all)",
     parseSelect},
    {"--channels", "RGB", "The channels that the following steps may change: any of r, g, b, or none (initially rgb)",
     parseChannels},
}};

}  // namespace

std::span<const StepKind> selectionSteps() { return kSteps; }

}  // namespace quillhue::cli
