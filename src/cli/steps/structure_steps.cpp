#include <algorithm>
#include <array>
#include <vector>

#include "cli/steps/step.h"
#include "core/commands/structure.h"

namespace quillhue::cli {

namespace {

using Indexes = std::vector<std::int32_t>;

StepResult checkSize(std::int64_t size) {
  if (size < 1) {
    return Refusal("A palette has at least one entry.");
  }
  if (size > kMaxPaletteSize) {
    return Refusal("A palette has at most " + std::to_string(kMaxPaletteSize) + " entries.");
  }
  return {};
}

// Returns the indexes in their written order. Refuses an index that is not in the palette or is listed twice.
std::expected<Indexes, std::string> indexesOf(const EntryList& entries, const EditSession& session) {
  auto indexes = entries.within(session.document().getSize());
  if (!indexes) {
    return indexes;
  }
  Indexes sorted = *indexes;
  std::ranges::sort(sorted);
  const auto twice = std::ranges::adjacent_find(sorted);
  if (twice != sorted.end()) {
    return Refusal("Entry " + std::to_string(*twice) + " is listed twice.");
  }
  return indexes;
}

// Makes a step from a list of entries and a command on their indexes.
template <typename Command>
ParsedStep listStepOf(const std::string& list, Command command) {
  auto entries = EntryList::parse(list);
  if (!entries) {
    return Refusal(entries.error());
  }
  return [entries = *std::move(entries), command](EditSession& session) -> StepResult {
    const auto indexes = indexesOf(entries, session);
    return indexes ? command(session, *indexes) : StepResult(Refusal(indexes.error()));
  };
}

// Splits "A:B" at the last colon.
std::array<std::string, 2> splitPlace(const std::string& argument) {
  const auto colon = argument.rfind(':');
  return {argument.substr(0, colon), colon == std::string::npos ? std::string() : argument.substr(colon + 1)};
}

StepResult checkPosition(std::int32_t position, std::int32_t last) {
  if (position >= 0 && position <= last) {
    return {};
  }
  return Refusal(refusedValue(position, {0, last}) + '.');
}

ParsedStep parseDelete(const std::string& argument) {
  return listStepOf(argument, [](EditSession& session, const Indexes& indexes) -> StepResult {
    const auto rest = session.document().getSize() - static_cast<std::int64_t>(indexes.size());
    if (auto checked = checkSize(rest); !checked) {
      return checked;
    }
    deleteEntries(session.document(), indexes);
    return {};
  });
}

StepResult insert(EditSession& session, std::int32_t position, const std::vector<PaletteEntry>& colors) {
  if (auto checked = checkPosition(position, session.document().getSize()); !checked) {
    return checked;
  }
  const auto size = session.document().getSize() + static_cast<std::int64_t>(colors.size());
  if (auto checked = checkSize(size); !checked) {
    return checked;
  }
  insertEntries(session.document(), position, colors);
  return {};
}

ParsedStep parseInsert(const std::string& argument) {
  const auto [place, text] = splitPlace(argument);
  const auto position = parseNumber(place);
  const auto color = parseColor(text);
  if (!position || !color) {
    return Refusal(argument + " is not a position and a color like 5:255,128,0 or 5:#FF8000");
  }
  return [position = *position, color = *color](EditSession& session) { return insert(session, position, {color}); };
}

ParsedStep parseAppend(const std::string& argument) {
  return fileStepOf(argument, [](EditSession& session, const std::vector<PaletteEntry>& entries) {
    return insert(session, session.document().getSize(), entries);
  });
}

ParsedStep parseMove(const std::string& argument) {
  const auto [list, place] = splitPlace(argument);
  const auto position = parseNumber(place);
  if (!position) {
    return Refusal(argument + " is not a list of entries and their new position like 0-3,8:16");
  }
  return listStepOf(list, [position = *position](EditSession& session, const Indexes& indexes) -> StepResult {
    const std::int32_t last = session.document().getSize() - static_cast<std::int32_t>(indexes.size());
    if (auto checked = checkPosition(position, last); !checked) {
      return checked;
    }
    moveEntries(session.document(), indexes, position);
    return {};
  });
}

ParsedStep parseSwapEntries(const std::string& argument) {
  const std::vector<std::string> parts = split(argument, ',');
  const auto one = parseNumber(parts.front());
  const auto other = parseNumber(parts.back());
  if (parts.size() != 2 || !one || !other) {
    return Refusal(argument + " is not two entries like 3,12");
  }
  return [one = *one, other = *other](EditSession& session) -> StepResult {
    for (const std::int32_t entry : {one, other}) {
      if (auto checked = checkEntry(entry, session.document().getSize()); !checked) {
        return checked;
      }
    }
    swapEntries(session.document(), one, other);
    return {};
  };
}

ParsedStep parseOrder(const std::string& argument) {
  return listStepOf(argument, [](EditSession& session, const Indexes& indexes) -> StepResult {
    moveEntries(session.document(), indexes, 0);
    return {};
  });
}

ParsedStep parseDedupe(const std::string& /*argument*/) {
  return stepOf([](EditSession& session) { removeDuplicates(session.document()); });
}

constexpr std::array<StepKind, 7> kSteps{{
    {"--delete", "LIST", "Remove these entries", parseDelete},
    {"--insert", "N:COLOR", "Add an entry before entry N, or at the end if N is the number of entries", parseInsert},
    {"--append", "FILE", "Add the entries of a file at the end", parseAppend},
    {"--move", "LIST:N", "Move these entries, so that the first of them becomes entry N", parseMove},
    {"--swap-entries", "A,B", "Exchange two entries", parseSwapEntries},
    {"--order", "LIST", "Move these entries to the beginning, in the order as written", parseOrder},
    {"--dedupe", nullptr, "Remove the entries whose color an earlier entry has", parseDedupe},
}};

}  // namespace

std::span<const StepKind> structureSteps() { return kSteps; }

}  // namespace quillhue::cli
