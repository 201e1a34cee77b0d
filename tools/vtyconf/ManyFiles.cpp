#include "ManyFiles.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

#include "platform/PlatformOs.h"

namespace vtycli {

namespace fs = std::filesystem;

bool expandInputs(const std::vector<std::string>& arguments, std::vector<std::string>& files) {
  bool ok = true;
  for (const std::string& argument : arguments) {
    std::error_code ec;
    if (argument != "-" && fs::is_directory(argument, ec)) {
      std::vector<std::string> inFolder;
      for (const auto& entry : fs::directory_iterator(argument, ec)) {
        const std::string name = entry.path().filename().string();
        if (!name.empty() && name[0] != '.' && entry.is_regular_file(ec)) inFolder.push_back(entry.path().string());
      }
      std::sort(inFolder.begin(), inFolder.end());
      files.insert(files.end(), inFolder.begin(), inFolder.end());
    } else if (argument == "-" || fs::exists(argument, ec)) {
      files.push_back(argument);
    } else {
      std::cerr << "vtyconf: " << argument << ": no such file or folder\n";
      ok = false;
    }
  }
  return ok;
}

std::vector<platform::WorkerResult> runPerFileWithData(const std::vector<std::string>& files, unsigned jobs, bool quiet,
                                                       const FileJobWithData& job) {
  if (jobs == 0) jobs = platform::processorCount();
  // Standard input can be read once only, and only by this process.
  if (std::count(files.begin(), files.end(), std::string("-")) > 0) jobs = 1;
  const bool showProgress = !quiet && files.size() > 1 && platform::isTerminal(2);
  auto progress = [&](size_t done, size_t total) {
    if (showProgress) std::cerr << "\r" << done << "/" << total << " files" << (done == total ? "\n" : "") << std::flush;
  };
  auto results = platform::runInWorkers(
      files.size(), jobs, [&](size_t index, platform::WorkerResult& result) { job(files[index], result); }, progress);
  for (const auto& result : results) {
    std::cout << result.out;
    std::cerr << result.err;
  }
  std::cout.flush();
  return results;
}

int runPerFile(const std::vector<std::string>& files, unsigned jobs, bool quiet, const FileJob& job) {
  const auto results = runPerFileWithData(files, jobs, quiet, [&job](const std::string& file, platform::WorkerResult& result) {
    result.exitCode = job(file, result.out, result.err);
  });
  int worst = 0;
  for (const auto& result : results) worst = std::max(worst, result.exitCode);
  return worst;
}

}  // namespace vtycli
