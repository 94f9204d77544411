#include "core/commands/statistics.h"

#include <numeric>
#include <set>
#include <string>

namespace quillhue {

namespace {

std::string countLine(std::size_t count, std::string_view where) {
  std::string line = std::to_string(count);
  line += count == 1 ? " different entry" : " different entries";
  line += " found in the ";
  line += where;
  line += '.';
  return line;
}

}  // namespace

ColorCount countColors(const PaletteDocument& document) {
  std::set<PaletteEntry> palette;
  std::set<PaletteEntry> selection;
  for (std::int32_t index = 0; index < document.getSize(); ++index) {
    palette.insert(document.getColor(index));
    if (document.isSelected(index)) {
      selection.insert(document.getColor(index));
    }
  }
  return {palette.size(), selection.size()};
}

void reportColorCount(const PaletteDocument& document, Messages& messages) {
  const ColorCount count = countColors(document);
  std::string text = countLine(count.palette, "palette");
  if (count.selection > 0) {
    text += '\n';
    text += countLine(count.selection, "selection");
  }
  messages.information(text);
}

PaletteEntry averageColor(const PaletteDocument& document) {
  PaletteEntry average;
  for (const Channel channel : kChannels) {
    const auto values = document.getPalette().channel(channel);
    const std::int32_t sum = std::accumulate(values.begin(), values.end(), 0);
    channelOf(average, channel) = static_cast<std::uint8_t>(sum / document.getSize());
  }
  return average;
}

void reportAverageColor(const PaletteDocument& document, Messages& messages) {
  const PaletteEntry average = averageColor(document);
  std::string text = "Average red: ";
  text += std::to_string(average.red);
  text += "\nAverage green: ";
  text += std::to_string(average.green);
  text += "\nAverage blue: ";
  text += std::to_string(average.blue);
  messages.information(text);
}

}  // namespace quillhue
