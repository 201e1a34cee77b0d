// A plain program for a fuzz target, built without any fuzzing engine: it
// feeds the target every file of the folders (or the files) named on its
// command line, in name order, and with "--hostile FILE" the inputs that the
// rows of FILE generate (their form is described in the file). A fault shows
// as a crash or a sanitizer report; the program ends with 0 when every input
// has passed, 2 on a usage error.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <vector>

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

// A piece of a row with its C escapes and the placeholders of repetition `n` of `count`.
std::string piece(const std::string& field, size_t n, size_t count) {
  std::string out;
  for (size_t i = 0; i < field.size(); ++i) {
    const size_t close = field[i] == '{' ? field.find('}', i) : std::string::npos;
    const std::string name = close == std::string::npos ? "" : field.substr(i, close - i + 1);
    const std::map<std::string, std::string> places = {{"{i}", std::to_string(n)}, {"{i1}", std::to_string(n + 1)},
        {"{sp}", std::string(n, ' ')}, {"{sp2}", std::string(2 * n, ' ')}, {"{rsp2}", std::string(2 * (count - 1 - n), ' ')}};
    if (!name.empty() && places.count(name) != 0) {
      out += places.at(name);
      i = close;
    } else if (field[i] != '\\' || i + 1 == field.size()) {
      out += field[i];
    } else if (field[++i] == 'x' && i + 2 < field.size()) {
      out += static_cast<char>(std::stoi(field.substr(i + 1, 2), nullptr, 16));
      i += 2;
    } else {
      out += field[i] == 'n' ? '\n' : field[i] == 't' ? '\t' : field[i] == 'r' ? '\r' : field[i];
    }
  }
  return out;
}

// Runs the input of every row of the file; returns how many, 0 when it cannot be read.
size_t runHostile(const std::string& path) {
  std::istringstream rows(readAll(path));
  size_t count = 0;
  for (std::string row; std::getline(rows, row);) {
    if (row.empty() || row[0] == '#') continue;
    std::vector<std::string> fields;
    std::istringstream cut(row);
    for (std::string field; std::getline(cut, field, '\t');) fields.push_back(field);
    std::string input;
    for (size_t f = 1; f + 1 < fields.size(); f += 2) {
      const size_t times = std::stoul(fields[f + 1]);
      const bool same = fields[f].find('{') == std::string::npos;  // every repetition alike
      const std::string first = piece(fields[f], 0, times);
      for (size_t n = 0; n < times; ++n) input += same ? first : piece(fields[f], n, times);
    }
    runOne("<" + fields[0] + ">", input);
    ++count;
  }
  return count;
}

}  // namespace

int main(int argc, char** argv) {
  namespace fs = std::filesystem;
  size_t count = 0;
  for (int i = 1; i < argc; ++i) {
    const std::string arg = argv[i];
    if (arg == "--hostile" && i + 1 < argc) {
      const size_t generated = runHostile(argv[++i]);
      if (generated == 0) {
        std::fprintf(stderr, "no hostile inputs in %s\n", argv[i]);
        return 2;
      }
      count += generated;
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
