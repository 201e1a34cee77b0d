// ManyFiles: running one subcommand over many configuration files.
//
// expandInputs() turns the arguments into a list of files: a folder stands
// for the regular files in it (sorted by name, hidden files left out), "-"
// and plain files stand for themselves. runPerFile() treats each file with
// `job` in worker processes (see platform/WorkerPool.h: the grammar is loaded
// once, before, by the caller), prints each file's output and messages in
// the order of the inputs, shows a progress line on standard error when it
// is a terminal, and returns the highest exit code of all files.
#pragma once

#include <functional>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "platform/WorkerPool.h"

namespace vtycli {

// Files named by the arguments; false after a message for a missing one.
bool expandInputs(const std::vector<std::string>& arguments, std::vector<std::string>& files);

using FileJob = std::function<int(const std::string& file, std::string& out, std::string& err)>;
// A job that also hands back data for the caller to gather (see WorkerResult).
using FileJobWithData = std::function<void(const std::string& file, platform::WorkerResult& result)>;

// While it lives, std::cout and std::cerr write into the given strings
// (flushed there when it goes), so that a job written for the terminal can
// run as a FileJob.
class StreamCapture {
 public:
  StreamCapture(std::string& out, std::string& err)
      : mOut(out), mErr(err), mOldOut(std::cout.rdbuf(mOutBuffer.rdbuf())), mOldErr(std::cerr.rdbuf(mErrBuffer.rdbuf())) {}
  ~StreamCapture() {
    std::cout.flush();
    std::cout.rdbuf(mOldOut);
    std::cerr.rdbuf(mOldErr);
    mOut += mOutBuffer.str();
    mErr += mErrBuffer.str();
  }
  StreamCapture(const StreamCapture&) = delete;
  StreamCapture& operator=(const StreamCapture&) = delete;

 private:
  std::string& mOut;
  std::string& mErr;
  std::ostringstream mOutBuffer;
  std::ostringstream mErrBuffer;
  std::streambuf* mOldOut;
  std::streambuf* mOldErr;
};

// jobs 0 means one per processor.
int runPerFile(const std::vector<std::string>& files, unsigned jobs, bool quiet, const FileJob& job);
// As runPerFile; returns every file's result (after printing its output and
// messages) so that the caller can gather the data.
std::vector<platform::WorkerResult> runPerFileWithData(const std::vector<std::string>& files, unsigned jobs, bool quiet,
                                                       const FileJobWithData& job);

}  // namespace vtycli
