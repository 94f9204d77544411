#include <gtest/gtest.h>

#include "ui/logic/bars_layout.h"
#include "ui/logic/marker.h"

namespace quillhue {
namespace {

// At 96 dpi with 300 pixels of height the bars are painted from 12 to 224.
TEST(BarsLayout, PutsThreeBarsAroundTheMiddle) {
  const struct {
    Size surface;
    std::int32_t dpi;
    Rect bars[3];
    Rect strips[3];
    Rect zones[3];
    std::int32_t usableHeight;
  } cases[] = {
      {{150, 300},
       96,
       {{11, 12, 35, 224}, {59, 12, 83, 224}, {107, 12, 131, 224}},
       {{35, 12, 43, 224}, {83, 12, 91, 224}, {131, 12, 139, 224}},
       {{6, 8, 48, 228}, {54, 8, 96, 228}, {102, 8, 144, 228}},
       211},
      // 120 dpi: 64 is 80, 69 is 86.25, 27 is 33.75, 21 is 26.25.
      {{200, 400},
       120,
       {{20, 14, 50, 305}, {80, 14, 110, 305}, {140, 14, 170, 305}},
       {{50, 14, 60, 305}, {110, 14, 120, 305}, {170, 14, 180, 305}},
       {{14, 9, 67, 310}, {74, 9, 126, 310}, {133, 9, 186, 310}},
       290},
  };
  for (const auto& [surface, dpi, barBoxes, strips, zones, usableHeight] : cases) {
    const BarsLayout bars(surface, {dpi});
    for (const Bar bar : kBars) {
      const auto at = static_cast<std::size_t>(bar);
      EXPECT_EQ(bars.barBox(bar), barBoxes[at]) << dpi << ' ' << at;
      EXPECT_EQ(bars.stripBox(bar), strips[at]) << dpi << ' ' << at;
      EXPECT_EQ(bars.zone(bar), zones[at]) << dpi << ' ' << at;
    }
    EXPECT_EQ(bars.usableHeight(), usableHeight) << dpi;
  }
}

TEST(BarsLayout, TellsWhichBarIsMeant) {
  const BarsLayout bars({150, 300}, {96});
  const struct {
    Point point;
    std::optional<Bar> bar;
  } cases[] = {
      {{6, 8}, Bar::left},      {{5, 100}, std::nullopt},   {{47, 227}, Bar::left},    {{48, 100}, std::nullopt},
      {{54, 100}, Bar::middle}, {{95, 100}, Bar::middle},   {{96, 100}, std::nullopt}, {{102, 100}, Bar::right},
      {{143, 8}, Bar::right},   {{144, 100}, std::nullopt}, {{20, 7}, std::nullopt},   {{20, 228}, std::nullopt},
  };
  for (const auto& [point, bar] : cases) {
    EXPECT_EQ(bars.barAt(point), bar) << point.x << ',' << point.y;
  }
  EXPECT_EQ(bars.heightAt(224), 0);
  EXPECT_EQ(bars.heightAt(12), 212);
  EXPECT_EQ(bars.heightAt(230), -6);
  EXPECT_EQ(bars.changingBox(), (Rect{5, 7, 145, 229}));
}

TEST(BarsLayout, MarksValuesAndColorsRows) {
  const BarsLayout bars({150, 300}, {96});
  const struct {
    Bar bar;
    ValueRange range;
    std::int32_t value;
    Point point;
  } cases[] = {
      {Bar::left, kByteRange, 255, {27, 12}},
      {Bar::left, kByteRange, 0, {27, 221}},
      // 155 * 209 / 255 = 127.04
      {Bar::middle, kByteRange, 100, {75, 139}},
      // 127 * 209 / 255 = 104.09
      {Bar::right, kChromaRange, 0, {123, 116}},
      // 179 * 209 / 359 = 104.2
      {Bar::right, kHueRange, 180, {123, 116}},
      {Bar::right, kHueRange, 358, {123, 12}},
      {Bar::right, kHueRange, 357, {123, 13}},
  };
  for (const auto& [bar, range, value, point] : cases) {
    EXPECT_EQ(bars.markerPoint(bar, range, value), point) << value << ' ' << range.maximum;
  }
  // 48 is 60.
  EXPECT_EQ(BarsLayout({200, 400}, {120}).markerPoint(Bar::left, kByteRange, 255), (Point{40, 14}));
  EXPECT_EQ(bars.height(), 212);
  EXPECT_EQ(bars.positionOfRow(0), 0);
  // 255 / 211 = 1.2, 25500 / 211 = 120.9
  EXPECT_EQ(bars.positionOfRow(1), 1);
  EXPECT_EQ(bars.positionOfRow(100), 120);
  EXPECT_EQ(bars.positionOfRow(210), 253);
  EXPECT_EQ(bars.positionOfRow(211), 255);
}

TEST(BarsLayout, HasNothingToShowWithoutHeight) {
  for (const std::int32_t height : {0, 88, 89}) {
    const BarsLayout bars({150, height}, {96});
    EXPECT_EQ(bars.height(), height == 89 ? 1 : 0);
    EXPECT_EQ(bars.positionOfRow(0), 0);
    EXPECT_EQ(bars.markerPoint(Bar::left, kByteRange, 0).y, 12);
  }
  EXPECT_EQ(BarsLayout({150, 90}, {96}).positionOfRow(1), 255);
  EXPECT_LE(BarsLayout({150, 89}, {96}).usableHeight(), 0);
}

TEST(Marker, PointsFromBothSides) {
  const struct {
    Point point;
    std::int32_t dpi;
    std::array<Triangle, 2> triangles;
  } cases[] = {
      {{100, 50}, 96, {{{{{83, 50}, {79, 46}, {79, 54}}}, {{{117, 50}, {121, 46}, {121, 54}}}}}},
      // 17 is 25.5, 21 is 31.5, 4 is 6.
      {{100, 50}, 144, {{{{{75, 50}, {69, 44}, {69, 56}}}, {{{125, 50}, {131, 44}, {131, 56}}}}}},
  };
  for (const auto& [point, dpi, triangles] : cases) {
    EXPECT_EQ(markerAt(point, {dpi}), triangles) << dpi;
  }
}

}  // namespace
}  // namespace quillhue
