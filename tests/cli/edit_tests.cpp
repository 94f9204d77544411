#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "cli/application.h"
#include "core/utf8.h"
#include "support/scratch_folder.h"
#include "support/table.h"

namespace quillhue::cli {
namespace {

using Json = nlohmann::ordered_json;

std::string shown(const Json& entries) {
  std::string text;
  for (const Json& color : entries) {
    text += text.empty() ? "" : " ";
    text += color[0].dump() + ',' + color[1].dump() + ',' + color[2].dump();
  }
  return text;
}

// The edited palette as JSON, or what was refused.
struct Edited {
  int status;
  Json json;
  std::string err;
};

Edited edit(std::string palette, const std::string& steps, const std::string& out) {
  std::ranges::replace(palette, ' ', '\n');
  std::istringstream in(palette + '\n');
  std::ostringstream data;
  std::ostringstream err;
  Console console{in, data, err};
  std::vector<std::string> arguments{"edit", "-", out, "--name", "x.csv", "--format", "gimp", "--json", "--force"};
  std::istringstream words(steps);
  for (std::string word; words >> word;) {
    arguments.push_back(word);
  }
  const int status = run(std::move(arguments), console);
  return {status, Json::parse(data.str(), nullptr, false), err.str()};
}

TEST(Edit, StepsDoWhatTheTableSays) {
  const ScratchFolder folder;
  for (const auto& row : readTable("edit.txt")) {
    const Edited edited = edit(row.at(0), row.at(1), toUtf8(folder.name("out.gpl")));
    ASSERT_EQ(edited.status, 0) << row[1] << ": " << edited.err;
    EXPECT_EQ(shown(edited.json["entries"]), row.at(2)) << row[0] << ' ' << row[1];
    if (row.size() > 3) {
      EXPECT_EQ(edited.json["selected"].dump(), '[' + row.at(3) + ']') << row[0] << ' ' << row[1];
      EXPECT_EQ(edited.json["modificationCount"].dump(), row.at(4)) << row[0] << ' ' << row[1];
    }
  }
}

TEST(Edit, RefusesBeforeAnythingIsWritten) {
  const ScratchFolder folder;
  for (const auto& row : readTable("refused_steps.txt")) {
    const Edited edited = edit("1,2,3 4,5,6", row.at(0), toUtf8(folder.name("out.gpl")));
    EXPECT_EQ(edited.status, std::stoi(row.at(1))) << row[0];
    EXPECT_EQ(edited.err.substr(0, row.at(2).size()), row[2]) << row[0];
    EXPECT_FALSE(fileExists(folder.name("out.gpl"))) << row[0];
    if (edited.status == 1) {
      EXPECT_EQ("-: " + edited.json["error"].get<std::string>() + '\n', edited.err);
    }
  }
}

TEST(Edit, TellsWhatIsLeft) {
  const ScratchFolder folder;
  const Edited edited = edit("1,2,3 1,2,3 8,8,8", "--select 0-1 --reverse --undo --count-colors --average-color",
                             toUtf8(folder.name("out.gpl")));
  EXPECT_EQ(edited.err,
            "2 different entries found in the palette.\n1 different entry found in the selection.\n"
            "Average red: 3\nAverage green: 4\nAverage blue: 4\n");
  Json json = edited.json;
  json.erase("file");
  EXPECT_EQ(
      json.dump(),
      R"({"format":"gimp","code":6,"size":3,"entries":[[1,2,3],[1,2,3],[8,8,8]],"selected":[0,1],)"
      R"("modificationCount":1,"canUndo":true,"canRedo":true,"different":{"palette":2,"selection":1},"average":[3,4,4]})");
  EXPECT_EQ(edit("7,7,7", "--select none --count-colors", toUtf8(folder.name("out.gpl"))).err,
            "1 different entry found in the palette.\n");
}

}  // namespace
}  // namespace quillhue::cli
