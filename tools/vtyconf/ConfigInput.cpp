#include "ConfigInput.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <thread>
#include <utility>

#include "config/QxParserUtil.h"

namespace vtycli {

namespace {
bool gQuietInput = false;
}  // namespace

bool looksBinary(const std::string& text) {
  // Control bytes other than the blanks of text (and the escape sequences of
  // a terminal capture) in more than one byte of twenty of the first 64 KiB;
  // a stray NUL byte in a text is reported by the reader, not taken for this.
  const size_t sample = std::min<size_t>(text.size(), 65536);
  size_t control = 0;
  for (size_t i = 0; i < sample; ++i) {
    const unsigned char c = static_cast<unsigned char>(text[i]);
    if (c < 0x20 && c != '\t' && c != '\n' && c != '\r' && c != '\f' && c != '\v' && c != 0x1b && c != '\b') {
      ++control;
    }
  }
  return control > 8 && control * 20 > sample;
}

void setQuietInput(bool quiet) { gQuietInput = quiet; }

const qxparser::ReaderLineMap& ConfigInput::lines() const {
  if (!mLines) mLines = qxparser::mapReaderLines(text);
  return *mLines;
}

std::string ConfigInput::displayName() const {
  if (path == "-") return "<stdin>";
  size_t slash = path.find_last_of("/\\");
  return slash == std::string::npos ? path : path.substr(slash + 1);
}

bool readConfigInput(const std::string& path, bool keepCapture, ConfigInput& out, std::string& error) {
  out = ConfigInput();
  out.path = path;
  if (path == "-") {
    out.text.assign(std::istreambuf_iterator<char>(std::cin), std::istreambuf_iterator<char>());
  } else {
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored)) {
      error = path + ": is a folder, not a configuration";
      return false;
    }
    std::ifstream in(path, std::ios::binary);
    if (!in) {
      error = path + ": " + (std::filesystem::exists(path, ignored) ? "cannot read" : "no such file");
      return false;
    }
    // Read whole into the string, without a copy through a stream buffer.
    std::string text;
    const auto size = std::filesystem::file_size(path, ignored);
    if (!ignored) text.reserve(static_cast<size_t>(size));
    char chunk[1 << 16];
    while (in.read(chunk, sizeof chunk) || in.gcount() > 0) text.append(chunk, static_cast<size_t>(in.gcount()));
    if (in.bad()) {
      error = path + ": cannot read";
      return false;
    }
    out.text = std::move(text);
  }
  if (looksBinary(out.text)) {
    error = out.displayName() + ": not configuration text (binary data)";
    return false;
  }
  if (!keepCapture) cleanCapture(out.text, out.leftOut);
  return true;
}

bool readInput(const std::string& path, ConfigInput& input, bool keepCapture) {
  std::string error;
  if (!readConfigInput(path, keepCapture, input, error)) {
    std::cerr << "vtyconf: " << error << "\n";
    return false;
  }
  if (!gQuietInput) {
    for (const std::string& left : input.leftOut)
      std::cerr << "vtyconf: " << input.displayName() << ":" << left << " (left out of the capture)\n";
  }
  return true;
}

bool readInput(const std::string& path, std::string& text, bool keepCapture) {
  ConfigInput input;
  if (!readInput(path, input, keepCapture)) return false;
  text = std::move(input.text);
  return true;
}

bool loadResources() {
  try {
    qxparser::QxParserUtil::createNewParserResource();
    return true;
  } catch (const std::exception& e) {
    std::cerr << "vtyconf: " << e.what() << "\n";
    return false;
  }
}

bool readInputsAndLoad(const std::vector<std::string>& paths, std::vector<ConfigInput*> inputs) {
  auto readAll = [&]() {
    for (size_t i = 0; i < paths.size(); ++i) {
      if (!readInput(paths[i], *inputs[i])) return false;
    }
    return true;
  };
  if (!qxparser::QxParserUtil::readingThreadsAllowed()) return readAll() && loadResources();
  // Reading an input touches no state of the grammar: the two overlap.
  std::string loadError;
  bool loaded = false;
  std::thread loader([&loadError, &loaded]() {
    try {
      qxparser::QxParserUtil::createNewParserResource();
      loaded = true;
    } catch (const std::exception& e) {
      loadError = e.what();
    } catch (...) {
      loadError = "the definition files cannot be loaded";
    }
  });
  bool read = false;
  try {
    read = readAll();
  } catch (...) {
    loader.join();
    throw;
  }
  loader.join();
  if (!read) return false;
  if (!loaded) std::cerr << "vtyconf: " << loadError << "\n";
  return loaded;
}

}  // namespace vtycli
