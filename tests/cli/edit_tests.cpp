#include <gtest/gtest.h>

#include <sstream>

#include "cli/application.h"
#include "core/utf8.h"
#include "support/scratch_folder.h"
#include "support/table.h"

namespace quillhue::cli {
namespace {

// The edited palette as JSON, or the refusal.
struct Edited {
  int status;
  std::string json;
  std::string err;
};

Edited edit(std::string palette, const std::string& steps, const ScratchFolder& folder) {
  std::ranges::replace(palette, ' ', '\n');
  std::istringstream in(palette + '\n');
  std::ostringstream data;
  std::ostringstream err;
  Console console{in, data, err};
  std::vector<std::string> arguments{
      "edit", "-", toUtf8(folder.name("out.gpl")), "--name", "x.csv", "--format", "gimp", "--json", "--force"};
  std::istringstream words(steps);
  for (std::string word; words >> word;) {
    arguments.push_back(word);
  }
  const int status = run(std::move(arguments), console);
  return {status, data.str(), err.str()};
}

// Returns "[1,2,3],[4,5,6]" for "1,2,3 4,5,6".
std::string arraysOf(std::string palette) {
  for (auto at = palette.find(' '); at != std::string::npos; at = palette.find(' ', at)) {
    palette.replace(at, 1, "],[");
  }
  return '[' + palette + ']';
}

TEST(Edit, StepsDoWhatTheTableSays) {
  const ScratchFolder folder;
  for (const auto& row : readTable("edit.txt")) {
    const Edited edited = edit(row.at(0), row.at(1), folder);
    ASSERT_EQ(edited.status, 0) << row[1] << ": " << edited.err;
    std::string expected = "\"entries\":[" + arraysOf(row.at(2)) + "],\"selected\":[";
    if (row.size() > 3) {
      expected += row[3] + "],\"modificationCount\":" + row.at(4) + ',';
    }
    EXPECT_TRUE(edited.json.contains(expected)) << row[0] << ' ' << row[1] << "\n " << expected << "\n " << edited.json;
  }
}

TEST(Edit, RefusesBeforeAnythingIsWritten) {
  const ScratchFolder folder;
  for (const auto& row : readTable("refused_steps.txt")) {
    const Edited edited = edit("1,2,3 4,5,6", row.at(0), folder);
    EXPECT_EQ(edited.status, std::stoi(row.at(1))) << row[0];
    EXPECT_EQ(edited.err.substr(0, row.at(2).size()), row[2]) << row[0];
    EXPECT_FALSE(fileExists(folder.name("out.gpl"))) << row[0];
    if (edited.status == 1) {
      const std::string text = edited.err.substr(3, edited.err.size() - 4);
      EXPECT_EQ(edited.json, R"({"file":"-","error":")" + text + "\"}\n");
    }
  }
}

TEST(Edit, TellsWhatIsLeft) {
  const ScratchFolder folder;
  const Edited edited =
      edit("1,2,3 1,2,3 8,8,8", "--select 0-1 --reverse --undo --count-colors --average-color", folder);
  EXPECT_EQ(edited.err,
            "2 different entries found in the palette.\n1 different entry found in the selection.\n"
            "Average red: 3\nAverage green: 4\nAverage blue: 4\n");
  EXPECT_EQ(
      edited.json.substr(edited.json.find(",\"format\"")),
      R"(,"format":"gimp","code":6,"size":3,"entries":[[1,2,3],[1,2,3],[8,8,8]],"selected":[0,1],"modificationCount":1,)"
      R"("canUndo":true,"canRedo":true,"different":{"palette":2,"selection":1},"average":[3,4,4],)"
      R"("read":[{"file":"-","format":"csv","size":3,"bytes":18}],"written":[{"file":)" +
          edited.json.substr(8, edited.json.find(',') - 8) + R"(,"format":"gimp","size":3,"bytes":66}]})" + '\n');
  EXPECT_EQ(edit("7,7,7", "--select none --count-colors", folder).err, "1 different entry found in the palette.\n");
}

}  // namespace
}  // namespace quillhue::cli
