// vtyconf check CHANGES [CONFIG] [--json]: a change script tried as if it were
// pasted into the device. Every line is echoed behind the prompt at which it
// lands; a refused line is followed by the caret under the word where the
// device stops and the device's message. Exit 1 when a line was refused.
// CONFIG, when given, names the device (its hostname is the prompt) and is
// checked to be readable.
#include <iostream>
#include <memory>
#include <nlohmann/json.hpp>
#include <sstream>

#include "CommandRegistry.h"
#include "ConfigInput.h"
#include "RefusedReport.h"
#include "config/QxParserUtil.h"

namespace vtycli {
namespace {

using qxparser::CiscoCommandLine;
using qxparser::RefusedLine;

struct CheckOptions {
  std::string changes;
  std::string config;
  bool json = false;
};

// The name the device gives itself in CONFIG ("Router" without one).
std::string hostNameOf(const std::string& config) {
  std::istringstream in(config);
  std::string line;
  std::string name = "Router";
  while (std::getline(in, line)) {
    std::istringstream words(line);
    std::string first, value;
    words >> first >> value;
    if (first == "hostname" && !value.empty() && line.compare(0, 8, "hostname") == 0) name = value;
  }
  return name;
}

int runCheck(const CheckOptions& options) {
  ConfigInput changes;
  ConfigInput config;
  if (!readInput(options.changes, changes)) return 2;
  if (!options.config.empty() && !readInput(options.config, config)) return 2;
  if (!loadResources()) return 2;
  const std::string host = hostNameOf(config.text);
  std::vector<CiscoCommandLine*> records;
  std::vector<RefusedLine> refused;
  std::vector<std::string> prompts;
  qxparser::TypedTextReader::readWithPrompts(changes.text, host, records, refused, prompts);
  std::unique_ptr<std::vector<CiscoCommandLine*>, void (*)(std::vector<CiscoCommandLine*>*)> guard(
      &records, [](std::vector<CiscoCommandLine*>* v) { qxparser::QxParserUtil::deleteCommands(*v); });
  std::map<int, const RefusedLine*> byLine;
  for (const RefusedLine& line : refused) byLine.emplace(line.lineNo, &line);

  nlohmann::json out = nlohmann::json::array();
  for (size_t i = 0; i < changes.lineCount() && i < prompts.size(); ++i) {
    const int number = static_cast<int>(i) + 1;
    const std::string text = changes.readerLine(i);
    const auto found = byLine.find(number);
    const CiscoCommandLine* record = i < records.size() ? records[i] : nullptr;
    if (options.json) {
      nlohmann::json item{{"line", changes.fileLineOf(number)}, {"prompt", host + prompts[i]}, {"text", text}};
      if (found != byLine.end()) {
        item["status"] = "refused";
        item["message"] = found->second->message;
        item["position"] = found->second->position;
      } else if (record != nullptr && record->getFlag() != qxparser::CMD_TEXT) {
        item["status"] = "command";
        std::string full = record->getOriginalCmd();
        while (!full.empty() && (full.back() == '\n' || full.back() == ' ')) full.pop_back();
        item["command"] = full;
        item["level"] = record->getLevel();
      } else {
        item["status"] = "no command";
      }
      out.push_back(item);
      continue;
    }
    std::cout << host << prompts[i] << text << "\n";
    if (found != byLine.end()) {
      std::string message = found->second->message;
      if (message == "% Invalid input detected at ^") message = "% Invalid input detected at '^' marker.";
      const size_t column = host.size() + prompts[i].size() + found->second->position;
      std::cout << std::string(column, ' ') << "^\n" << message << "\n";
    }
  }
  if (options.json) std::cout << out.dump(2) << "\n";
  for (const RefusedLine& line : refused) std::cerr << refusedMessage(changes, line);
  return refused.empty() ? 0 : 1;
}

CommandRegistration registration{CommandSpec{
    "check", "try a change script as if pasted into the device: each line at its prompt, each refusal",
    [](CLI::App& sub, const GlobalOptions&) -> std::function<int()> {
      auto options = std::make_shared<CheckOptions>();
      sub.add_option("CHANGES", options->changes, "the change script ('-' for standard input)")->required();
      sub.add_option("CONFIG", options->config, "the device's configuration (gives the prompt its name)");
      sub.add_flag("--json", options->json, "one object per line: line, prompt, text, status, command or message");
      sub.footer("Example: vtyconf check changes.txt router1.cfg");
      return [options]() { return runCheck(*options); };
    }}};

}  // namespace
}  // namespace vtycli
