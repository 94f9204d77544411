#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "cli/application.h"
#include "core/utf8.h"
#include "formats/files.h"
#include "support/bitmaps.h"
#include "support/scratch_folder.h"

namespace quillhue::cli {
namespace {

struct Answer {
  int status;
  std::string out;
  std::string err;
};

Answer call(std::vector<std::string> arguments, const std::string& input = {}, bool colors = false) {
  std::istringstream in(input);
  std::ostringstream out;
  std::ostringstream err;
  Console console{in, out, err, colors, 80};
  const int status = run(std::move(arguments), console);
  return {status, out.str(), err.str()};
}

class ToolTest : public testing::Test {
 protected:
  [[nodiscard]] std::string path(const std::string& name) const { return toUtf8(toFileName(folder.path() / name)); }
  std::string file(const std::string& name, const std::string& content) { return file(name, bytesOf(content)); }
  std::string file(const std::string& name, const Bytes& content) {
    EXPECT_TRUE(writeFile(fromUtf8(path(name)), content));
    return path(name);
  }
  std::string contentOf(const std::string& name) {
    const auto source = openFile(fromUtf8(path(name))).value();
    const Bytes bytes = source->bytes(0, static_cast<std::size_t>(source->size()));
    return {bytes.begin(), bytes.end()};
  }

  ScratchFolder folder;
};

TEST_F(ToolTest, RefusesWrongUsage) {
  const std::string in = file("a.map", "1 2 3");
  const std::string out = path("b.map");
  const std::vector<std::vector<std::string>> calls{
      {},
      {"paint"},
      {"info"},
      {"info", "--colour", in},
      {"convert", in},
      {"convert", in, out, "c.map"},
      {"convert", in, path("b.txt")},
      {"convert", in, "-"},
      {"convert", in, out, "--format", "gif"},
      {"convert", in, out, "--size", "5"},
      {"convert", in, out, "--colors", "some"},
      {"convert", in, out, "--colors", "exact", "--size", "0"},
      {"convert", in, out, "--colors", "exact", "--size", "1025"},
      {"convert", in, out, "--blank", "1,2"},
      {"convert", in, out, "--blank", "1,2,256"},
      {"convert", in, out, "--blank", "1,2,3,4"},
      {"convert", in, out, "--blank", " 1,2,3"},
      {"convert", in, "--out-dir", path("d")},
      {"convert", "-", "--out-dir", path("d"), "--format", "map"},
  };
  for (const auto& arguments : calls) {
    const Answer answer = call(arguments);
    EXPECT_EQ(answer.status, 2) << testing::PrintToString(arguments);
    EXPECT_EQ(answer.out, "") << testing::PrintToString(arguments);
    EXPECT_NE(answer.err, "") << testing::PrintToString(arguments);
  }
  EXPECT_FALSE(fileExists(fromUtf8(out)));
  EXPECT_FALSE(fileExists(fromUtf8(path("d"))));
}

TEST_F(ToolTest, HelpsAndTellsItsVersionEverywhere) {
  for (const std::vector<std::string>& verb : {std::vector<std::string>{}, {"info"}, {"convert"}, {"formats"}}) {
    std::vector<std::string> arguments = verb;
    arguments.emplace_back("--version");
    EXPECT_EQ(call(arguments).out, "quillhue-cli 4.2\n");
    arguments.back() = "--help";
    const Answer help = call(arguments);
    EXPECT_EQ(help.status, 0);
    EXPECT_NE(help.out.find("Usage: quillhue-cli"), std::string::npos);
  }
}

TEST_F(ToolTest, ShowsPalettes) {
  const std::string in = file("a.map", "1 2 3\n200 255 0\n");
  EXPECT_EQ(call({"info", in}).out, in + ": MAP palette, 2 entries\n"
                                         "   0  #010203    1   2   3\n"
                                         "   1  #C8FF00  200 255   0\n");
  EXPECT_EQ(call({"info", in}, "", true).out, in + ": MAP palette, 2 entries\n"
                                                   "    0 \x1b[48;2;1;2;3;38;2;255;255;255m #010203 \x1b[0m"
                                                   "    1 \x1b[48;2;200;255;0;38;2;0;0;0m #C8FF00 \x1b[0m\n");
  const Answer answer = call({"info", "--json", in});
  EXPECT_EQ(answer.out,
            nlohmann::ordered_json(
                {{"file", in}, {"format", "map"}, {"code", 8}, {"size", 2}, {"entries", {{1, 2, 3}, {200, 255, 0}}}})
                    .dump() +
                "\n");
}

TEST_F(ToolTest, ReadsStandardInputUnderAName) {
  EXPECT_EQ(call({"info", "-"}, "1 2 3").status, 1);
  EXPECT_EQ(call({"info", "-", "--name", "x.map"}, "1 2 3").out.substr(0, 28), "-: MAP palette, 1 entry\n   0");
  EXPECT_EQ(call({"convert", "-", "-", "--name", "x.csv", "--format", "jasc"}, "1,2,3").out,
            "JASC-PAL\r\n0100\r\n1\r\n1 2 3\r\n");
}

TEST_F(ToolTest, TellsTheColorsOfImages) {
  const std::string in = file("a.bmp", bitmapOf(3, 24, {1, 2, 3}));
  EXPECT_EQ(call({"info", in}).out, in + ": Windows Bitmap without a palette, 3 different colors\n");
  EXPECT_EQ(nlohmann::json::parse(call({"info", in, "--json"}).out),
            nlohmann::json({{"file", in}, {"format", "bmp"}, {"colors", 3}}));
}

TEST_F(ToolTest, ReportsEachRefusedFileAndGoesOn) {
  const std::string bad = file("bad.act", "x");
  const std::string good = file("good.map", "1 2 3");
  const Answer answer = call({"info", "--json", bad, path("none"), good});
  EXPECT_EQ(answer.status, 1);
  EXPECT_EQ(answer.err,
            bad + ": This Adobe Color Table file is too small.\n" + path("none") + ": Could not open the file.\n");
  std::istringstream lines(answer.out);
  std::string line;
  std::getline(lines, line);
  EXPECT_EQ(nlohmann::json::parse(line),
            nlohmann::json({{"file", bad}, {"error", "This Adobe Color Table file is too small."}}));
  std::getline(lines, line);
  std::getline(lines, line);
  EXPECT_EQ(nlohmann::json::parse(line)["size"], 1);
}

TEST_F(ToolTest, ConvertsByExtensionOrFormat) {
  const std::string in = file("a.map", "1 2 3");
  EXPECT_EQ(call({"convert", in, path("b.GPL")}).status, 0);
  EXPECT_EQ(contentOf("b.GPL"), "GIMP Palette\n# Edited with Quillhue version 4.2\n1 2 3\n");
  EXPECT_EQ(call({"convert", in, path("b.pal")}).status, 0);
  EXPECT_EQ(contentOf("b.pal").substr(0, 4), "RIFF");
  EXPECT_EQ(call({"convert", in, path("b.txt"), "--format", "act", "--blank", "65,66,67"}).status, 0);
  EXPECT_EQ(contentOf("b.txt").substr(3, 6), "ABCABC");

  const Answer again = call({"convert", in, path("b.pal"), "--format", "jasc"});
  EXPECT_EQ(again.status, 1);
  EXPECT_EQ(again.err, path("b.pal") + ": This file already exists. Replace it with --force.\n");
  EXPECT_EQ(contentOf("b.pal").substr(0, 4), "RIFF");
  EXPECT_EQ(call({"convert", in, path("b.pal"), "--format", "jasc", "--force"}).status, 0);
  EXPECT_EQ(contentOf("b.pal").substr(0, 4), "JASC");
  EXPECT_EQ(call({"convert", in, path("none/b.map")}).err, path("none/b.map") + ": Could not create the file.\n");
}

TEST_F(ToolTest, LeavesFilesAloneWhenItRefuses) {
  std::string lines;
  for (int i = 0; i < 300; ++i) {
    lines += "1 2 3\n";
  }
  const std::string in = file("many.map", lines);
  const std::string out = file("b.act", "precious");
  const Answer answer = call({"convert", in, out, "--force"});
  EXPECT_EQ(answer.status, 1);
  EXPECT_EQ(answer.err, in + ": The palette is too large for the selected format. Use the Gimp, RIFF, or Windows "
                             "Clipboard format instead.\n");
  EXPECT_EQ(contentOf("b.act"), "precious");
}

TEST_F(ToolTest, ConvertsAFolderOfMixedFiles) {
  file("in.map", "1 2 3");
  file("z.map", "7 8 9");
  file("in.csv", "4,5,6");
  file("notes.txt", "hello");
  file("photo.bmp", bitmapOf(2, 24, {1, 2}));
  const Answer answer =
      call({"convert", toUtf8(toFileName(folder.path())), "--out-dir", path("new/out"), "--format", "gimp"});
  EXPECT_EQ(answer.status, 1);
  EXPECT_EQ(answer.out, "");
  const auto outName = [&](const char* name) { return toUtf8(toFileName(toPath(fromUtf8(path("new/out"))) / name)); };
  const auto inName = [&](const char* name) { return toUtf8(toFileName(folder.path() / name)); };
  EXPECT_EQ(answer.err,
            inName("in.map") + ": Another file of this call is converted to " + outName("in.gpl") + " already.\n" +
                inName("notes.txt") + ": Quillhue could not recognise this file type.\n" + inName("photo.bmp") +
                ": The image has no palette. Make one of its colors with --colors exact or --colors reduce.\n");
  EXPECT_EQ(contentOf("new/out/in.gpl").substr(48), "4 5 6\n");
  EXPECT_EQ(contentOf("new/out/z.gpl").substr(48), "7 8 9\n");
}

TEST_F(ToolTest, MakesPalettesOfImages) {
  std::vector<ColorWord> words(1025);
  for (std::size_t i = 0; i < words.size(); ++i) {
    words[i] = static_cast<ColorWord>(i);
  }
  const std::string many = file("many.bmp", bitmapOf(1025, 24, words));
  const std::string few = file("few.bmp", bitmapOf(3, 24, {3, 1, 2}));
  struct Case {
    std::string in;
    std::vector<std::string> options;
    std::string out;
  };
  for (const auto& [in, options, out] :
       {Case{few, {"--colors", "exact"}, "0 0 1\r\n0 0 2\r\n0 0 3\r\n"},
        Case{few, {"--colors", "exact", "--size", "2"}, "0 0 1\r\n0 0 2\r\n"},
        Case{few, {"--colors", "exact", "--size", "4", "--blank", "9,9,9"}, "0 0 1\r\n0 0 2\r\n0 0 3\r\n9 9 9\r\n"},
        Case{few, {"--colors", "reduce", "--size", "1"}, "0 0 2\r\n"},
        Case{many, {"--colors", "exact", "--size", "1"}, "0 0 0\r\n"}}) {
    std::vector<std::string> arguments{"convert", in, "-", "--format", "map"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    EXPECT_EQ(call(arguments).out, out) << testing::PrintToString(arguments);
  }
  const Answer all = call({"convert", many, path("all.gpl"), "--colors", "exact"});
  EXPECT_EQ(all.status, 0);
  EXPECT_EQ(all.err.substr(many.size()),
            ": Of 1025 different colors the first 1024 are taken. Choose --colors reduce for a palette of them all.\n");
  EXPECT_EQ(std::ranges::count(contentOf("all.gpl"), '\n'), 2 + 1024);
  const Answer reduced = call({"convert", many, "-", "--format", "map", "--colors", "reduce"});
  EXPECT_EQ(std::ranges::count(reduced.out, '\n'), 256);
}

TEST_F(ToolTest, ListsFormats) {
  const auto formats = nlohmann::json::parse(call({"formats", "--json"}).out);
  ASSERT_EQ(formats["written"].size(), 11U);
  EXPECT_EQ(formats["written"][8], nlohmann::json({{"name", "ms-draw"},
                                                   {"code", 9},
                                                   {"fileType", "MS Draw Palette (*.pal)"},
                                                   {"extension", "pal"},
                                                   {"maxSize", 101}}));
  EXPECT_TRUE(formats["written"][9]["maxSize"].is_null());
  EXPECT_EQ(formats["read"].size(), 22U);
  EXPECT_NE(call({"formats"}).out.find("  dr-halo       pal   256       Dr. Halo Palette (*.pal)\n"),
            std::string::npos);
}

}  // namespace
}  // namespace quillhue::cli
