#include "cli/file_log.h"

#include <utility>

#include "cli/notes.h"
#include "cli/refusal.h"

namespace quillhue::cli {

namespace {

std::string counted(std::uint64_t count, const std::string& one, const std::string& many) {
  return std::to_string(count) + ' ' + (count == 1 ? one : many);
}

// Returns "jasc, 12 entries, 100 bytes." after the words.
std::string textOf(const std::string& words, const FileRecord& record) {
  std::string text = words + record.format;
  if (record.width > 0) {
    text += ", " + std::to_string(record.width) + " x " + std::to_string(record.height) + " pixels";
  }
  if (record.entries) {
    text += ", " + counted(static_cast<std::uint64_t>(*record.entries), "entry", "entries");
  }
  return text + ", " + counted(record.bytes, "byte", "bytes") + '.';
}

// Returns the line that --verbose shows; otherwise nothing.
std::string lineOf(const Console& console, const std::string& words, const FileRecord& record) {
  const bool isShown = console.files.verbose && !console.notes.quiet;
  return isShown ? fileLine(record.file, textOf(words, record)) + '\n' : "";
}

JsonObject jsonOfRecord(const FileRecord& record) {
  JsonObject object;
  object.add("file", record.file).add("format", record.format);
  if (record.width > 0) {
    object.add("width", record.width).add("height", record.height);
  }
  if (record.entries) {
    object.add("size", *record.entries);
  }
  object.add("bytes", record.bytes);
  return object;
}

std::vector<JsonObject> jsonOfRecords(const std::vector<FileRecord>& records) {
  std::vector<JsonObject> objects;
  objects.reserve(records.size());
  for (const FileRecord& record : records) {
    objects.push_back(jsonOfRecord(record));
  }
  return objects;
}

}  // namespace

void addRead(Console& console, FileRecord record) {
  console.err << lineOf(console, "read as ", record);
  console.files.read.push_back(std::move(record));
}

WrittenFile::WrittenFile(Console& console, FileRecord record, const std::string& note)
    : console_(console),
      line_(lineOf(console, "written as ", record)),
      note_(note.empty() ? "" : fileLine(record.file, note)),
      record_(std::move(record)) {
  console.files.written.reserve(console.files.written.size() + 1);
  console.notes.lines.reserve(console.notes.lines.size() + 1);
}

void WrittenFile::add() {
  console_.err << line_;
  console_.files.written.push_back(std::move(record_));
  if (!note_.empty()) {
    addNoteLine(console_, std::move(note_));
  }
}

FileRecord recordOf(const std::string& file, std::string_view format, std::uint64_t bytes, const WorkImage& image) {
  return {.file = file,
          .format = std::string(format),
          .bytes = bytes,
          .width = static_cast<std::uint64_t>(image.width()),
          .height = static_cast<std::uint64_t>(image.height())};
}

JsonObject filesJson(const std::string& file, Console& console) {
  JsonObject object;
  object.add("file", file);
  return addFiles(object, console);
}

JsonObject& addFiles(JsonObject& object, Console& console) {
  object.add("read", jsonOfRecords(std::exchange(console.files.read, {})));
  return object.add("written", jsonOfRecords(std::exchange(console.files.written, {})));
}

}  // namespace quillhue::cli
