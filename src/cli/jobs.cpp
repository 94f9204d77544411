#include "cli/jobs.h"

#include <algorithm>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <new>
#include <sstream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "cli/arguments.h"
#include "system/interruption.h"

namespace quillhue::cli {

namespace {

constexpr std::int32_t kMaxJobs = 64;

// The texts of a job, or the exception that ended it.
struct Outcome {
  std::string out;
  std::string err;
  ExitStatus status = kDone;
  std::exception_ptr exception;
};

Outcome outcomeOf(const Job& job, const std::string& file, const Console& console) {
  Outcome outcome;
  try {
    std::ostringstream out;
    std::ostringstream err;
    Console own{console.in, out, err, console.colors, console.columns, console.isTerminal};
    own.notes.quiet = console.notes.quiet;
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
  Threads(const std::vector<std::string>& files, std::size_t threads, const Console& console, const MakeJob& makeJob)
      : files_(files), end_(files.size()), console_(console), running_(threads), outcomes_(files.size()) {
    for (std::size_t i = 0; i < threads; ++i) {
      threads_.emplace_back([this, job = makeJob()] { work(job); });
    }
  }
  ~Threads() { stop(); }
  Threads(const Threads&) = delete;
  Threads& operator=(const Threads&) = delete;

  // Waits for the outcome of the next file. Returns nothing if there is none, because all files are done or no more are
  // started.
  std::optional<Outcome> take() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return taken_ == files_.size() || outcomes_[taken_] || running_ == 0; });
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
  const std::vector<std::string>& files_;
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

std::size_t threadCount(const std::vector<std::string>& files, std::optional<std::int32_t> wanted) {
  const bool readsStream = std::ranges::find(files, "-") != files.end();
  const auto cores = static_cast<std::int32_t>(std::thread::hardware_concurrency());
  const std::int32_t threads = readsStream ? 1 : std::clamp(wanted.value_or(cores), 1, kMaxJobs);
  return std::min(static_cast<std::size_t>(threads), files.size());
}

// The last line of a terminal, until it is cleared for other texts.
class ProgressLine {
 public:
  ProgressLine(Console& console, std::size_t files) : console_(console), files_(files) {}
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;
  ~ProgressLine() { clear(); }

  void clear() {
    if (!line_.empty()) {
      console_.err << '\r' << std::string(line_.size(), ' ') << '\r' << std::flush;
      line_.clear();
    }
  }
  void show(std::size_t done) {
    if (console_.showsProgress && files_ > 1) {
      line_ = std::to_string(done) + " of " + std::to_string(files_) + " files done";
      console_.err << '\r' << line_ << std::flush;
    }
  }

 private:
  Console& console_;
  std::size_t files_;
  std::string line_;
};

}  // namespace

void addJobsOption(Verb& verb, std::optional<std::int32_t>& jobs) {
  addNumberOption(verb, "--jobs", jobs, {1, kMaxJobs}, "Files to work on at once (default: one per core)");
}

ExitStatus runJobs(const std::vector<std::string>& files, std::optional<std::int32_t> threads, Console& console,
                   const MakeJob& makeJob) {
  ExitStatus status = kDone;
  std::size_t done = 0;
  std::exception_ptr exception;
  Threads running(files, threadCount(files, threads), console, makeJob);
  {
    ProgressLine line(console, files.size());
    while (auto outcome = running.take()) {
      if (exception) {
        continue;
      }
      line.clear();
      console.out << outcome->out;
      console.err << outcome->err;
      exception = outcome->exception;
      if (exception) {
        running.stop();
        continue;
      }
      status = std::max(status, outcome->status);
      line.show(++done);
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
