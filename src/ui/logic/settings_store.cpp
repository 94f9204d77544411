#include "ui/logic/settings_store.h"

#include <algorithm>
#include <array>

#include "colormodes/color_models.h"
#include "core/palette.h"
#include "effects/effects.h"
#include "ui/logic/window_size.h"

namespace quillhue {

namespace {

using Value = std::span<const std::uint8_t>;
using Bytes = std::vector<std::uint8_t>;

constexpr std::size_t kNumberLength = 4;

std::uint32_t numberOf(Value value) {
  std::uint32_t number = 0;
  for (std::size_t i = kNumberLength; i-- > 0;) {
    number = number << 8 | value[i];
  }
  return number;
}

Bytes bytesOf(std::uint32_t number) {
  Bytes bytes(kNumberLength);
  for (std::uint8_t& byte : bytes) {
    byte = static_cast<std::uint8_t>(number);
    number >>= 8;
  }
  return bytes;
}

// kept on purpose: a stored width or height is a signed 16-bit number; the upper 16 bits are ignored.
std::int32_t sideOf(Value value, std::int32_t least) {
  return std::max<std::int32_t>(static_cast<std::int16_t>(static_cast<std::uint16_t>(numberOf(value))), least);
}

// Loads an index below `count`. Ignores any other value.
void loadIndex(Value value, std::size_t count, std::uint8_t& index) {
  if (value[0] < count) {
    index = value[0];
  }
}

constexpr std::array<SettingDescription, 9> kSettings{{
    {"Blank", SettingType::bytes, 3,
     [](Value value, Scale, SavedSettings& settings) { settings.app.blank = {value[0], value[1], value[2]}; },
     [](const SavedSettings& settings) {
       const PaletteEntry& blank = settings.app.blank;
       return Bytes{blank.red, blank.green, blank.blue};
     }},
    {"Windows colors", SettingType::bytes, 1,
     [](Value value, Scale, SavedSettings& settings) { settings.app.windowsColors = value[0] != 0; },
     [](const SavedSettings& settings) { return Bytes{static_cast<std::uint8_t>(settings.app.windowsColors)}; }},
    {"RGB levels", SettingType::bytes, 3,
     [](Value value, Scale, SavedSettings& settings) { settings.app.rgbLevels = {value[0], value[1], value[2]}; },
     [](const SavedSettings& settings) { return Bytes(settings.app.rgbLevels.begin(), settings.app.rgbLevels.end()); }},
    {"Color mode", SettingType::bytes, 1,
     [](Value value, Scale, SavedSettings& settings) {
       loadIndex(value, colorModels().size(), settings.app.colorMode);
     },
     [](const SavedSettings& settings) { return Bytes{settings.app.colorMode}; }},
    {"Effect", SettingType::bytes, 1,
     [](Value value, Scale, SavedSettings& settings) { loadIndex(value, effects().size(), settings.app.effect); },
     [](const SavedSettings& settings) { return Bytes{settings.app.effect}; }},
    {"Selection mode", SettingType::bytes, 1,
     [](Value value, Scale, SavedSettings& settings) {
       if (value[0] <= static_cast<std::uint8_t>(SelectionMode::range)) {
         settings.app.selectionMode = static_cast<SelectionMode>(value[0]);
       }
     },
     [](const SavedSettings& settings) { return Bytes{static_cast<std::uint8_t>(settings.app.selectionMode)}; }},
    {"Window width", SettingType::number, kNumberLength,
     [](Value value, Scale scale, SavedSettings& settings) {
       settings.window.width = sideOf(value, minimumWindowSize(scale).width);
     },
     [](const SavedSettings& settings) { return bytesOf(static_cast<std::uint32_t>(settings.window.width)); }},
    {"Window height", SettingType::number, kNumberLength,
     [](Value value, Scale scale, SavedSettings& settings) {
       settings.window.height = sideOf(value, minimumWindowSize(scale).height);
     },
     [](const SavedSettings& settings) { return bytesOf(static_cast<std::uint32_t>(settings.window.height)); }},
    {"Palette size", SettingType::number, kNumberLength,
     [](Value value, Scale, SavedSettings& settings) {
       settings.app.paletteSize = std::min<std::uint32_t>(numberOf(value), kMaxPaletteSize);
     },
     [](const SavedSettings& settings) { return bytesOf(settings.app.paletteSize); }},
}};

}  // namespace

std::span<const SettingDescription> settingDescriptions() { return kSettings; }

SavedSettings defaultSettings(Scale scale) { return {{}, defaultWindowSize(scale)}; }

SavedSettings readSettings(SettingsStore& store, Scale scale) {
  SavedSettings settings = defaultSettings(scale);
  for (const SettingDescription& setting : kSettings) {
    const auto value = store.read(setting.name, setting.type);
    if (value && value->size() == setting.length) {
      setting.load(*value, scale, settings);
    }
  }
  return settings;
}

void writeSettings(const SavedSettings& settings, SettingsStore& store) {
  for (const SettingDescription& setting : kSettings) {
    store.write(setting.name, setting.type, setting.save(settings));
  }
}

}  // namespace quillhue
