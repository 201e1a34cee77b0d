#include "ConfigInput.h"

#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <utility>

#include "config/QxParserUtil.h"

namespace vtycli {

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
    std::ifstream in(path, std::ios::binary);
    if (!in) {
      error = "cannot read " + path;
      return false;
    }
    std::stringstream buffer;
    buffer << in.rdbuf();
    out.text = buffer.str();
  }
  if (!keepCapture) cleanCapture(out.text, out.leftOut);

  static_cast<qxparser::ReaderLineMap&>(out) = qxparser::mapReaderLines(out.text);
  return true;
}

bool readInput(const std::string& path, ConfigInput& input, bool keepCapture) {
  std::string error;
  if (!readConfigInput(path, keepCapture, input, error)) {
    std::cerr << "vtyconf: " << error << "\n";
    return false;
  }
  for (const std::string& left : input.leftOut)
    std::cerr << "vtyconf: " << input.displayName() << ":" << left << " (left out of the capture)\n";
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

}  // namespace vtycli
