#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "cli/console.h"
#include "cli/file_list.h"

namespace quillhue::cli {

/// Does the work for one file. Writes all data and messages to the console that it gets.
using Job = std::function<ExitStatus(const ListedFile& file, Console& console)>;
/// Makes the job of one thread. The jobs of different threads must not change anything that they share.
using MakeJob = std::function<Job()>;

/// Runs a job for each file on several threads, or on one if standard input ("-") is among the files. Without `threads`
/// there are as many as processor cores. The texts of the jobs are written in the order of the files. On a terminal a
/// line shows after a second how many files are done. A refused file does not stop the others.
///
/// After an interrupt (Ctrl+C), finishes the files that are being worked on and refuses the rest. If a job throws, does
/// the same and throws the first exception. Returns kRefused if any job did or the user interrupted.
ExitStatus runJobs(const std::vector<ListedFile>& files, std::optional<std::int32_t> threads, Console& console,
                   const MakeJob& makeJob);

}  // namespace quillhue::cli
