// A plain program for a fuzz target, built without any fuzzing engine: it
// feeds the target every file of the folders (or the files) named on its
// command line, in name order, and with "--hostile" the generated inputs of
// HostileInputs.h. A fault shows as a crash or a sanitizer report; the
// program ends with 0 when every input has passed, 2 on a usage error.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "HostileInputs.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

namespace {

void runOne(const std::string& name, const std::string& bytes) {
  std::fprintf(stderr, "replay %s (%zu bytes)\n", name.c_str(), bytes.size());
  LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
}

std::string readAll(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

}  // namespace

int main(int argc, char** argv) {
  namespace fs = std::filesystem;
  size_t count = 0;
  for (int i = 1; i < argc; ++i) {
    const std::string arg = argv[i];
    if (arg == "--hostile") {
      for (const auto& input : fuzzsupport::hostileInputs()) {
        runOne("<" + input.first + ">", input.second);
        ++count;
      }
      continue;
    }
    std::error_code error;
    if (fs::is_directory(arg, error)) {
      std::vector<fs::path> files;
      for (const auto& entry : fs::directory_iterator(arg)) {
        const std::string name = entry.path().filename().string();
        if (entry.is_regular_file() && !name.empty() && name[0] != '.') files.push_back(entry.path());
      }
      std::sort(files.begin(), files.end());
      for (const auto& file : files) {
        runOne(file.string(), readAll(file));
        ++count;
      }
    } else if (fs::is_regular_file(arg, error)) {
      runOne(arg, readAll(arg));
      ++count;
    } else {
      std::fprintf(stderr, "no such file or folder: %s\n", arg.c_str());
      return 2;
    }
  }
  std::fprintf(stderr, "%zu inputs passed\n", count);
  return 0;
}
