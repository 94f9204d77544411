#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <future>
#include <iterator>
#include <mutex>
#include <sstream>
#include <stdexcept>
#include <thread>

#include "cli/jobs.h"

namespace quillhue::cli {
namespace {

struct Ran {
  ExitStatus status = kDone;
  std::string out;
  std::string err;
};

using NamedJob = std::function<ExitStatus(const std::string& file, Console& console)>;

Ran ran(const std::vector<std::string>& names, int threads, const NamedJob& job,
        std::optional<std::chrono::milliseconds> progressDelay = {}) {
  std::vector<ListedFile> files;
  std::ranges::transform(names, std::back_inserter(files), [](const std::string& name) { return ListedFile{name}; });
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  Console console{in, out, err};
  console.progressDelay = progressDelay;
  const ExitStatus status = runJobs(files, threads, console, [&]() -> Job {
    return [&](const ListedFile& file, Console& own) { return job(file.name, own); };
  });
  return {status, out.str(), err.str()};
}

// std::barrier and std::atomic::wait of libstdc++ 12 can miss a wake-up on Windows.
class Meeting {
 public:
  explicit Meeting(int threads) : threads_(threads) {}

  void arriveAndWait() {
    std::unique_lock lock(mutex_);
    const int round = round_;
    if (++arrived_ == threads_) {
      arrived_ = 0;
      ++round_;
      changed_.notify_all();
    }
    changed_.wait(lock, [&] { return round_ != round; });
  }

 private:
  std::mutex mutex_;
  std::condition_variable changed_;
  int threads_;
  int arrived_ = 0;
  int round_ = 0;
};

// The first file ends only after the last one has begun, so the texts of the others must wait for its text.
TEST(Jobs, WriteTextsInTheOrderOfTheFiles) {
  std::promise<void> lastBegins;
  const Ran result = ran({"a", "refused", "c", "d", "last"}, 2, [&](const std::string& file, Console& console) {
    if (file == "last") {
      lastBegins.set_value();
    }
    if (file == "a") {
      lastBegins.get_future().wait();
    }
    console.out << file << '\n';
    if (file == "refused") {
      console.err << "no\n";
      return kRefused;
    }
    return kDone;
  });
  EXPECT_EQ(result.status, kRefused);
  EXPECT_EQ(result.out, "a\nrefused\nc\nd\nlast\n");
  EXPECT_EQ(result.err, "no\n");
}

// All threads meet in each round; otherwise the test hangs. The test also notices additional threads.
TEST(Jobs, RunOnTheThreadsThatAreAskedFor) {
  for (const int threads : {1, 2, 5}) {
    Meeting meeting(threads);
    std::atomic<int> running = 0;
    std::atomic<int> most = 0;
    const NamedJob job = [&](const std::string& /*file*/, Console& /*console*/) {
      most = std::max(most.load(), ++running);
      meeting.arriveAndWait();
      --running;
      meeting.arriveAndWait();
      return kDone;
    };
    EXPECT_EQ(ran(std::vector<std::string>(20, "file"), threads, job).status, kDone);
    EXPECT_EQ(most, threads);
  }
  // With standard input there is only one thread.
  EXPECT_EQ(ran({"a", "-", "c", "d"}, 4,
                [running = std::make_shared<std::atomic<int>>(0)](const auto&, Console&) {
                  const bool isAlone = ++*running == 1;
                  --*running;
                  return isAlone ? kDone : kRefused;
                })
                .status,
            kDone);
}

TEST(Jobs, EndWithTheFirstExceptionAfterEarlierTexts) {
  std::atomic<int> begun = 0;
  const std::vector<std::string> files(1000, "file");
  EXPECT_THROW((void)ran(files, 2,
                         [&](const std::string&, Console&) -> ExitStatus {
                           if (++begun == 3) {
                             throw std::runtime_error("wrong usage");
                           }
                           return kDone;
                         }),
               std::runtime_error);
  EXPECT_LT(begun, 100);
}

TEST(Jobs, ShowProgressAfterTheDelayOfATerminal) {
  const NamedJob job = [](const std::string&, Console& console) {
    console.err << "refused\n";
    return kRefused;
  };
  EXPECT_EQ(ran({"a", "b"}, 1, job).err, "refused\nrefused\n");
  const std::string blank(17, ' ');
  // The line may also appear before the first file is done.
  const std::string shown = ran({"a", "b"}, 1, job, std::chrono::milliseconds(0)).err;
  EXPECT_TRUE(shown.ends_with("\r2 of 2 files done\r" + blank + "\r")) << shown;
  EXPECT_TRUE(shown.contains("refused\n\r1 of 2 files done\r" + blank + "\rrefused\n")) << shown;
  EXPECT_EQ(ran({"a", "b"}, 1, job, std::chrono::hours(1)).err, "refused\nrefused\n");
  EXPECT_EQ(ran({"a"}, 1, job, std::chrono::milliseconds(0)).err, "refused\n");
  const NamedJob slow = [](const std::string& /*file*/, Console& /*console*/) {
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    return kDone;
  };
  EXPECT_TRUE(ran({"a", "b"}, 1, slow, std::chrono::milliseconds(5)).err.starts_with("\r0 of 2 files done"));
}

}  // namespace
}  // namespace quillhue::cli
