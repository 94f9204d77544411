#include "cli/jobs.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <new>
#include <sstream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "cli/progress_line.h"
#include "system/interruption.h"

namespace quillhue::cli {

namespace {

// The texts of a job, or the exception that ended it.
struct Outcome {
  std::string out;
  std::string err;
  ExitStatus status = kDone;
  std::exception_ptr exception;
};

Outcome outcomeOf(const Job& job, const ListedFile& file, const Console& console) {
  Outcome outcome;
  try {
    std::ostringstream out;
    std::ostringstream err;
    Console own{console.in, out, err, console.colors, console.columns, console.isTerminal};
    // With what was read and noted for all jobs together.
    own.notes = console.notes;
    own.files = console.files;
    outcome.status = job(file, own);
    if (!out || !err) {
      throw std::bad_alloc();
    }
    outcome.out = std::move(out).str();
    outcome.err = std::move(err).str();
  } catch (...) {
    outcome.exception = std::current_exception();
  }
  return outcome;
}

// Starts jobs in the order of the files and keeps their outcomes until they are taken.
class Threads {
 public:
  Threads(const std::vector<ListedFile>& files, std::size_t threads, const Console& console, const MakeJob& makeJob)
      : files_(files), end_(files.size()), console_(console), running_(threads), outcomes_(files.size()) {
    for (std::size_t i = 0; i < threads; ++i) {
      threads_.emplace_back([this, job = makeJob()] { work(job); });
    }
  }
  ~Threads() { stop(); }
  Threads(const Threads&) = delete;
  Threads& operator=(const Threads&) = delete;

  // Waits until take() needs no wait, at most until this time. Returns false if the time has come first.
  bool waitUntil(std::chrono::steady_clock::time_point time) {
    std::unique_lock lock(mutex_);
    return changed_.wait_until(lock, time, [this] { return canTake(); });
  }

  // Waits for the outcome of the next file. Returns nothing if there is none, because all files are done or no more are
  // started.
  std::optional<Outcome> take() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return canTake(); });
    if (taken_ == files_.size() || !outcomes_[taken_]) {
      return {};
    }
    changed_.notify_all();
    return std::exchange(outcomes_[taken_++], {});
  }

  // Starts no more jobs. Those that run go on.
  void stop() {
    const std::lock_guard lock(mutex_);
    end_ = next_;
    changed_.notify_all();
  }

  [[nodiscard]] bool isInterrupted() const { return interruption_.isRequested(); }

 private:
  // Limits the memory for texts that wait for an earlier file.
  static constexpr std::size_t kMostAhead = 64;

  // Whether take() needs no wait.
  [[nodiscard]] bool canTake() const { return taken_ == files_.size() || outcomes_[taken_] || running_ == 0; }

  void work(const Job& job) {
    while (const auto file = start()) {
      Outcome outcome = outcomeOf(job, files_[*file], console_);
      const std::lock_guard lock(mutex_);
      outcomes_[*file] = std::move(outcome);
      changed_.notify_all();
    }
    const std::lock_guard lock(mutex_);
    --running_;
    changed_.notify_all();
  }

  std::optional<std::size_t> start() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return next_ < taken_ + kMostAhead || next_ >= end_; });
    if (next_ >= end_ || isInterrupted()) {
      return {};
    }
    return next_++;
  }

  std::mutex mutex_;
  std::condition_variable changed_;
  const std::vector<ListedFile>& files_;
  // The file before which to stop.
  std::size_t end_;
  const Console& console_;
  // The threads that have not ended.
  std::size_t running_;
  std::size_t next_ = 0;
  std::size_t taken_ = 0;
  std::vector<std::optional<Outcome>> outcomes_;
  Interruption interruption_;
  // Last, so that they end first.
  std::vector<std::jthread> threads_;
};

std::size_t threadCount(const std::vector<ListedFile>& files, std::optional<std::int32_t> wanted) {
  const bool readsStream = std::ranges::find(files, "-", &ListedFile::name) != files.end();
  const auto cores = static_cast<std::int32_t>(std::thread::hardware_concurrency());
  const std::int32_t threads = readsStream ? 1 : std::clamp(wanted.value_or(cores), 1, kMaxJobs);
  return std::min(static_cast<std::size_t>(threads), files.size());
}

}  // namespace

ExitStatus runJobs(const std::vector<ListedFile>& files, std::optional<std::int32_t> threads, Console& console,
                   const MakeJob& makeJob) {
  ExitStatus status = kDone;
  std::size_t done = 0;
  std::exception_ptr exception;
  Threads running(files, threadCount(files, threads), console, makeJob);
  {
    ProgressLine line(console, "files", files.size());
    for (;;) {
      if (!running.waitUntil(line.due())) {
        line.update(done);
      }
      auto outcome = running.take();
      if (!outcome) {
        break;
      }
      if (exception) {
        continue;
      }
      if (!outcome->out.empty() || !outcome->err.empty()) {
        line.clear();
      }
      console.out << outcome->out;
      console.err << outcome->err;
      exception = outcome->exception;
      if (exception) {
        running.stop();
        continue;
      }
      status = std::max(status, outcome->status);
      line.update(++done);
    }
  }
  if (exception) {
    std::rethrow_exception(exception);
  }
  if (done < files.size()) {
    console.err << "Interrupted: " << done << " of " << files.size() << " files are done.\n";
    return kRefused;
  }
  return status;
}

}  // namespace quillhue::cli
