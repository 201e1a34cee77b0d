// ConfigInput: reading configuration files for the subcommands of vtyconf.
//
// Reads a file (or standard input for "-") and, unless told to keep it,
// cleans a terminal capture: a byte-order mark, the prompt line that asked
// for the configuration ("R1#show running-config"), the "Building
// configuration..." and "Current configuration : N bytes" lines, and a
// prompt left at the end. Each left-out line is reported so the caller can
// say so. Lines that are left out become empty lines, so the file's own line
// numbers stay valid.
//
// The library reads only non-empty lines and numbers them from 1
// (splitting at carriage returns and line feeds); fileLineOf maps such a
// number back to the line of the file. The line map is made when first asked
// for: a job whose every line reads needs none. Plain values, no shared state
// (one thread at a time per input).
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "config/CaptureCleaner.h"
#include "config/ReaderLineMap.h"
#include "config/RefusedRecord.h"

namespace vtycli {

struct ConfigInput {
  std::string path;                     // as given ("-" for standard input)
  std::string text;                     // the text handed to the library
  std::vector<std::string> leftOut;     // "LINE: text" of every line left out

  // The name used in messages: the file name without its folders.
  std::string displayName() const;

  // The library's line map of `text` (which must not change once it is
  // asked for), and its questions asked of it.
  const qxparser::ReaderLineMap& lines() const;
  int fileLineOf(int number) const { return lines().fileLineOf(number); }
  bool isBannerText(int number) const { return lines().isBannerText(number); }
  size_t lineCount() const { return lines().lineCount(); }
  std::string readerLine(size_t index) const { return lines().readerLine(text, index); }
  // Whether `text` holds a line to read at all (without the map).
  bool hasLines() const { return text.find_first_not_of("\r\n") != std::string::npos; }

 private:
  mutable std::optional<qxparser::ReaderLineMap> mLines;
};

// Reads `path`; false with `error` set when the file cannot be read.
bool readConfigInput(const std::string& path, bool keepCapture, ConfigInput& out, std::string& error);

// True for data that is no configuration text: control bytes in more than a
// twentieth of its first 64 KiB.
bool looksBinary(const std::string& text);

// --quiet: readInput leaves out its notes on capture lines.
void setQuietInput(bool quiet);

using qxparser::cleanCapture;
using qxparser::isRefusedRecord;

// Reads `path` for a subcommand that needs only the text: the capture is
// cleaned (unless `keepCapture`) and every left-out line is reported on
// standard error. False, after the message "vtyconf: ...", when the file
// cannot be read.
bool readInput(const std::string& path, std::string& text, bool keepCapture = false);
// The same, keeping what the reader learnt (line numbers of the file).
bool readInput(const std::string& path, ConfigInput& input, bool keepCapture = false);

// Loads the definition files; false, after a message, when they cannot be
// loaded.
bool loadResources();

// readInput for each of `paths` into `inputs`, and then loadResources: where
// jobs may use a second thread (QxParserUtil::readingThreadsAllowed), the
// definition files load on it while the inputs are read. The messages come
// as the serial steps give them; the resources are loaded only when every
// input was read.
bool readInputsAndLoad(const std::vector<std::string>& paths, std::vector<ConfigInput*> inputs);

}  // namespace vtycli
