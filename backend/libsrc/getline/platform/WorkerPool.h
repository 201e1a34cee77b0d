// WorkerPool: runs one job per input in forked worker processes.
//
// Meant for a program that has loaded its grammar once and must then treat
// many files: each worker is a fork of the caller, so it starts with the
// loaded resources and needs no start-up of its own. Jobs are handed out one
// at a time to whichever worker is free; a job's output and error text and
// its exit code and data travel back through a pipe, and the results are returned in
// the order of the inputs, whatever order the jobs finished in.
//
// With jobs <= 1, or a single input, everything runs in the calling process.
// A worker that dies leaves the results of its unfinished job as exit code 2
// with a message; the other jobs go on. Call from one thread only; the job
// function must not rely on state changed by earlier jobs (each worker sees
// only its own). POSIX only; elsewhere the jobs run in the calling process.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "platform/Export.h"

namespace platform {

struct WorkerResult {
  int exitCode = 0;
  std::string out;  // what the job wrote for standard output
  std::string err;  // what the job wrote for standard error
  std::string data;  // anything else the caller wants back, serialised by the job
};

// job(index, result) treats input `index` and fills in its result.
using WorkerJob = std::function<void(size_t index, WorkerResult& result)>;
// Called in the calling process after each finished job with the count done.
using WorkerProgress = std::function<void(size_t done, size_t total)>;

VTYCONF_API std::vector<WorkerResult> runInWorkers(size_t count, unsigned jobs, const WorkerJob& job,
                                                   const WorkerProgress& progress = {});

// The number of processors available, at least 1.
VTYCONF_API unsigned processorCount();

}  // namespace platform
