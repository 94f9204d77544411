#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <numeric>
#include <sstream>

#include "cli/application.h"
#include "cli/terminal_colors.h"
#include "core/utf8.h"
#include "pictures/picture_decoder.h"
#include "support/bitmaps.h"
#include "support/scratch_folder.h"
#include "support/shown_image.h"
#include "support/table.h"

namespace quillhue::cli {
namespace {

struct Answer {
  int status;
  std::string out;
  std::string err;
};

Answer call(std::vector<std::string> arguments, TerminalColors colors = TerminalColors::none) {
  std::istringstream in("1 2 3\n");
  std::ostringstream out;
  std::ostringstream err;
  Console console{in, out, err, colors, 80, colors != TerminalColors::none};
  const int status = run(std::move(arguments), console);
  return {status, out.str(), err.str()};
}

std::string replaced(std::string text, char mark, const std::string& by) {
  for (auto at = text.find(mark); at != std::string::npos; at = text.find(mark, at + by.size())) {
    text.replace(at, 1, by);
  }
  return text;
}

// Names that the tool itself puts together have the system's separators, which JSON doubles.
std::string withSlashes(std::string text) {
  std::erase_if(text, [before = ' '](char letter) mutable {
    const bool isDoubled = letter == '\\' && before == '\\';
    before = letter;
    return isDoubled;
  });
  std::ranges::replace(text, '\\', '/');
  return text;
}

TEST(Tool, AnswersEachCall) {
  const ScratchFolder folder;
  std::string path = toUtf8(folder.name());
  std::ranges::replace(path, '\\', '/');
  for (const auto& row : readTable("tool.txt")) {
    std::istringstream words(row.at(0));
    std::vector<std::string> arguments;
    for (std::string word; words >> word;) {
      arguments.push_back(replaced(word, '@', path));
    }
    const Answer answer = call(arguments);
    const std::string out = replaced(row.at(2), '@', path);
    const std::string err = replaced(row.at(3), '@', path);
    EXPECT_EQ(answer.status, std::stoi(row.at(1))) << row[0];
    EXPECT_EQ(withSlashes(answer.out).substr(0, out.size()), out) << row[0];
    EXPECT_EQ(withSlashes(answer.err).substr(0, err.size()), err) << row[0];
    // If no message is expected, there must be none.
    EXPECT_EQ(err.empty() && answer.status != 2, answer.err.empty()) << row[0] << ": " << answer.err;
    EXPECT_TRUE(answer.status != 2 || answer.out.empty()) << row[0] << ": " << answer.out;
  }
  // An unset variable of a script must not make the last file the output.
  EXPECT_EQ(call({"convert", "samples/32.gif", path + "/a.map", "--force", "--format", "map", "--out-dir", ""}).status,
            2);
  EXPECT_FALSE(fileExists(folder.name("d")));
  EXPECT_FALSE(fileExists(folder.name("b.map")));
}

TEST(Tool, ShowsBlocksOfColorInATerminal) {
  EXPECT_EQ(call({"info", "-", "--name", "x.map"}, TerminalColors::direct).out,
            "-: MAP palette, 1 entry\n    0 \x1b[48;2;1;2;3;38;2;255;255;255m #010203 \x1b[0m\n");
  EXPECT_NE(call({"info", "samples/32.gif"}, TerminalColors::direct).out.find("48;2;159;208;252;38;2;0;0;0m"),
            std::string::npos);
  // Four cells of 15 characters fit into 80.
  EXPECT_EQ(std::ranges::count(call({"info", "samples/32.gif"}, TerminalColors::direct).out, '\n'), 1 + 8);
}

TEST(Tool, UsesTheColorsThatATerminalHas) {
  EXPECT_EQ(call({"info", "-", "--name", "x.map"}, TerminalColors::indexed).out,
            "-: MAP palette, 1 entry\n    0 \x1b[48;5;16;38;5;231m #010203 \x1b[0m\n");
  EXPECT_EQ(call({"info", "-", "--name", "x.map", "--color", "never"}, TerminalColors::direct).out,
            call({"info", "-", "--name", "x.map"}).out);
  // The nearest color of the cube, and a gray that is nearer than any color of the cube.
  EXPECT_EQ(indexedColorOf({255, 128, 0}), 16 + 36 * 5 + 6 * 2);
  EXPECT_EQ(indexedColorOf({80, 81, 79}), 232 + 7);
  EXPECT_EQ(terminalColorsOf("xterm-256color", ""), TerminalColors::indexed);
  EXPECT_EQ(terminalColorsOf("xterm-256color", "truecolor"), TerminalColors::direct);
  EXPECT_EQ(terminalColorsOf("dumb", "truecolor"), TerminalColors::none);
}

TEST(Tool, KeepsBinaryDataFromATerminal) {
  const std::vector<std::string> act{"convert", "-", "-", "--name", "x.map", "--format", "act"};
  EXPECT_EQ(call(act, TerminalColors::direct).err,
            "-: This is binary data, which a terminal can't show. Write it anyway with --force.\n");
  std::vector<std::string> forced = act;
  forced.emplace_back("-f");
  EXPECT_EQ(call(forced, TerminalColors::direct).out, call(act).out);
  EXPECT_EQ(call({"convert", "-", "-", "--name", "x.map", "--format", "map"}, TerminalColors::direct).out, "1 2 3\r\n");
}

TEST(Tool, RemapsIntoPngAsTheTableSays) {
  for (const auto& row : readTable("remapped.txt")) {
    std::istringstream words("remap " + row.at(0) + " --format png");
    std::vector<std::string> arguments{std::istream_iterator<std::string>(words), {}};
    arguments.insert(arguments.begin() + 3, "-");
    EXPECT_EQ(shown(kPngPicture.decode(bytesOf(call(arguments).out), {10, 20, 30})), row.at(1)) << row[0];
  }
}

TEST(Tool, TakesAtMost1024ColorsOfAnImage) {
  const ScratchFolder folder;
  for (const auto& [colors, how, lines] :
       {std::tuple{1025U, "exact", 1024}, {1024U, "exact", 1024}, {1025U, "reduce", 256}}) {
    std::vector<ColorWord> words(colors);
    std::iota(words.begin(), words.end(), 0U);
    const std::string image = toUtf8(folder.file("many.bmp", bitmapOf(colors, 24, words)));
    const Answer answer =
        call({"convert", image, toUtf8(folder.name(how)), "--force", "--colors", how, "--format", "gimp"});
    EXPECT_EQ(answer.status, 0);
    EXPECT_EQ(answer.err.empty(), lines == 256 || colors == 1024) << answer.err;
    EXPECT_EQ(std::ranges::count(folder.contentOf(how), '\n'), 2 + lines);
  }
}

}  // namespace
}  // namespace quillhue::cli
