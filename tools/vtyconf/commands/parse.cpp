// vtyconf parse: read configurations into commands and show what the device
// made of each line; refused lines go to standard error with the file's own
// line number. Text is read as the device reads it pasted at its console
// (getCmdInfoTyped); --replay reads it as a stored configuration is replayed
// (getCmdInfo).
#include <algorithm>
#include <iomanip>
#include <iostream>
#include <map>
#include <set>
#include <memory>
#include <nlohmann/json.hpp>
#include <sstream>

#include "CommandRegistry.h"
#include "ConfigInput.h"
#include "ManyFiles.h"
#include "config/CommandDump.h"
#include "config/FailingLine.h"
#include "config/QxParserUtil.h"

namespace vtycli {
namespace {

using qxparser::CiscoCommandLine;
using qxparser::QxParserUtil;

struct ParseOptions {
  std::vector<std::string> files;
  bool json = false;
  bool strict = false;
  bool stats = false;
  bool keepCapture = false;
  bool replay = false;
  unsigned jobs = 0;
};

using qxparser::CommandDump;

// The first two words of a line, lower-cased, for the refused-line groups.
std::string groupKey(const std::string& line) {
  std::istringstream in(line);
  std::string first, second;
  in >> first >> second;
  std::string key = second.empty() ? first : first + " " + second;
  std::transform(key.begin(), key.end(), key.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return key;
}


bool isRefused(const CiscoCommandLine& record, const ConfigInput& input, const std::set<int>& refusedLines) {
  if (refusedLines.count(record.getLineNo())) return true;
  if (input.isBannerText(record.getLineNo())) return false;
  return isRefusedRecord(record);
}

nlohmann::json toJson(const CiscoCommandLine& record, const ConfigInput& input) {
  nlohmann::json item;
  item["line"] = input.fileLineOf(record.getLineNo());
  item["level"] = record.getLevel();
  item["text"] = CommandDump::commandText(record);
  item["flag"] = CommandDump::flagName(record.getFlag());
  item["order"] = record.getOrderNo();
  item["flags"] = CommandDump::markNames(record);
  nlohmann::json children = nlohmann::json::array();
  for (const CiscoCommandLine* child : record.getChildCommands()) children.push_back(toJson(*child, input));
  item["children"] = children;
  return item;
}

// What one file contributes to the totals of a run over many files.
struct FileSummary {
  size_t lines = 0;
  size_t refused = 0;
  std::map<std::string, size_t> groups;
  nlohmann::json records = nlohmann::json::array();
};

nlohmann::json toData(const FileSummary& summary) {
  return nlohmann::json{{"lines", summary.lines}, {"refused", summary.refused}, {"groups", summary.groups},
                        {"records", summary.records}};
}

// Reads one file; its output and messages go to std::cout and std::cerr.
// 2 when it cannot be read or the library failed on it, else 0.
int parseOne(const std::string& path, const ParseOptions& options, const GlobalOptions& global, FileSummary& summary) {
  ConfigInput input;
  std::string error;
  if (!readConfigInput(path, options.keepCapture, input, error)) {
    std::cerr << "vtyconf: " << error << "\n";
    return 2;
  }
  if (!global.quiet) {
    for (const std::string& left : input.leftOut)
      std::cerr << "vtyconf: " << input.displayName() << ":" << left << " (left out of the capture)\n";
  }
  // Messages and listing wait until the whole text is read: a text the
  // library fails on shows its error alone.
  std::string messages;
  std::ostringstream text;
  std::set<int> refusedNumbers;
  std::vector<qxparser::RefusedLine> refusedLines;
  size_t refusedSeen = 0;
  // Each record once, in reading order.
  const auto look = [&](const std::vector<CiscoCommandLine*>& records) {
    for (; refusedSeen < refusedLines.size(); ++refusedSeen) refusedNumbers.insert(refusedLines[refusedSeen].lineNo);
    const auto isRefused = [&](const CiscoCommandLine& record) {
      return vtycli::isRefused(record, input, refusedNumbers);
    };
    for (const CiscoCommandLine* record : records) {
      ++summary.lines;
      const int fileLine = input.fileLineOf(record->getLineNo());
      if (isRefused(*record)) {
        ++summary.refused;
        const std::string shown = CommandDump::commandText(*record);
        summary.groups[groupKey(shown)]++;
        // A message shows at most 200 bytes of the line.
        messages += "vtyconf: " + input.displayName() + ":" + std::to_string(fileLine) + ": " + shown.substr(0, 200) +
                    (shown.size() > 200 ? " ..." : "") + "\n";
        continue;
      }
      if (record->getFlag() == qxparser::CMD_TEXT || options.json || options.stats) continue;
      if (input.isBannerText(record->getLineNo())) {
        text << std::string(static_cast<size_t>(record->getLevel()) * 2, ' ') << CommandDump::commandText(*record)
             << "\t[banner text]\n";
        continue;
      }
      std::string line;
      CommandDump::dumpCommand(*record, line, false, [&input](int number) { return input.fileLineOf(number); });
      text << line;
    }
    if (!options.json) return;
    for (const CiscoCommandLine* record : records) {
      if (record->getParentCommand() != nullptr || record->getFlag() == qxparser::CMD_TEXT) continue;
      if (isRefused(*record)) continue;
      summary.records.push_back(toJson(*record, input));
    }
  };
  std::string exceptionText;
  try {
    if (!input.hasLines()) {
      // No line to read (an empty text, or line breaks alone): no records,
      // and no terminal needs to be made for them.
    } else if (options.replay) {
      std::vector<CiscoCommandLine*> records;
      std::unique_ptr<std::vector<CiscoCommandLine*>, void (*)(std::vector<CiscoCommandLine*>*)> guard(
          &records, [](std::vector<CiscoCommandLine*>* v) { QxParserUtil::releaseResultRecords(*v); });
      std::string errorText;
      int errorLine = 0;
      QxParserUtil::getCmdInfo(input.text, records, errorText, errorLine);
      look(records);
    } else {
      // Looked at a block at a time: a large text's records are not all held.
      qxparser::TypedTextReader::readInBlocks(input.text, refusedLines, look);
    }
  } catch (const std::exception& e) {
    exceptionText = e.what();
  }
  if (!exceptionText.empty()) {
    summary = FileSummary();
    const int line = qxparser::failingLine(input.lines(), input.text);
    std::cerr << "vtyconf: " << input.displayName() << ":";
    if (line > 0) std::cerr << line << ":";
    std::cerr << " " << exceptionText << "\n";
    return 2;
  }
  std::cerr << messages;
  if (!options.json && !options.stats) std::cout << text.str();
  if (options.stats) {
    std::cout << input.displayName() << ": " << summary.lines << " lines read, " << summary.refused << " refused\n";
  }
  return 0;
}

void printStats(size_t files, size_t totalLines, size_t totalRefused, const std::map<std::string, size_t>& groups) {
  double share = totalLines == 0 ? 0.0 : 100.0 * static_cast<double>(totalRefused) / static_cast<double>(totalLines);
  std::cout << "total: " << files << " files, " << totalLines << " lines read, " << totalRefused << " refused ("
            << std::fixed << std::setprecision(3) << share << "%)\n";
  std::vector<std::pair<std::string, size_t>> sorted(groups.begin(), groups.end());
  std::stable_sort(sorted.begin(), sorted.end(), [](const auto& a, const auto& b) { return a.second > b.second; });
  for (const auto& group : sorted) std::cout << std::setw(6) << group.second << "  " << group.first << "\n";
}

int runParse(const ParseOptions& options, const GlobalOptions& global) {
  std::vector<std::string> files;
  bool failed = !expandInputs(options.files, files);
  QxParserUtil::createNewParserResource();
  // The records of a single file live until the process ends, whose exit
  // frees them at once; with more files each is freed after its turn.
  QxParserUtil::setFreeRecordsOnReturn(files.size() != 1);
  // Each file is read in a worker process; its totals come back as data.
  const auto results = runPerFileWithData(files, options.jobs, global.quiet,
                                          [&](const std::string& file, platform::WorkerResult& result) {
                                            FileSummary summary;
                                            StreamCapture capture(result.out, result.err);
                                            result.exitCode = parseOne(file, options, global, summary);
                                            result.data = toData(summary).dump();
                                          });
  size_t totalLines = 0;
  size_t totalRefused = 0;
  std::map<std::string, size_t> groups;
  nlohmann::json jsonOut = nlohmann::json::array();
  for (const auto& result : results) {
    if (result.exitCode != 0) failed = true;
    if (result.data.empty()) continue;
    const nlohmann::json data = nlohmann::json::parse(result.data);
    totalLines += data.at("lines").get<size_t>();
    totalRefused += data.at("refused").get<size_t>();
    for (const auto& [key, count] : data.at("groups").items()) groups[key] += count.get<size_t>();
    for (const auto& record : data.at("records")) jsonOut.push_back(record);
  }
  if (options.json) std::cout << jsonOut.dump(2) << "\n";
  if (options.stats) printStats(files.size(), totalLines, totalRefused, groups);
  QxParserUtil::destroyParserResource();
  if (failed) return 2;
  return options.strict && totalRefused > 0 ? 1 : 0;
}

CommandRegistration registration{CommandSpec{
    "parse", "read configurations into commands (one per line, indented by level)",
    [](CLI::App& sub, const GlobalOptions& global) -> std::function<int()> {
      auto options = std::make_shared<ParseOptions>();
      sub.add_option("CONFIG", options->files, "configuration files or folders ('-' for standard input)")->required();
      sub.add_option("-j,--jobs", options->jobs, "worker processes for many files (default: one per processor)");
      sub.add_flag("--json", options->json, "print the commands as a JSON array");
      sub.add_flag("--strict", options->strict, "exit 1 when a line was refused");
      sub.add_flag("--stats", options->stats,
                   "print lines read, refused, and refused lines by their first words");
      sub.add_flag("--replay", options->replay,
                   "read as a stored configuration is replayed (getCmdInfo): whole words, no mode exits");
      sub.add_flag("--keep-capture", options->keepCapture,
                   "keep prompt lines and \"Building configuration...\" of a terminal capture");
      sub.footer("Example: vtyconf parse router1.cfg --strict");
      return [options, &global]() { return runParse(*options, global); };
    }}};

}  // namespace
}  // namespace vtycli
