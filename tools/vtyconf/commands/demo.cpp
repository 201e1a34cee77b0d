// vtyconf demo: the main jobs on the bundled examples, with a short narration
// on standard error and the results on standard output.
//
// The examples live beside the resource folder: <source>/examples in a source
// tree, <prefix>/share/vtyconf/examples after installation. Every step calls
// the library the way an embedding program would.
#include <filesystem>
#include <iostream>
#include <memory>
#include <sstream>

#include "CommandRegistry.h"
#include "ConfigInput.h"
#include "DemoNotes.h"
#include "config/ConfigDiff.h"
#include "config/QXParserGetConfig.h"
#include "config/QxParserUtil.h"
#include "platform/QXFileSystem.h"
#include "terminal/VTY.h"

namespace vtycli {
namespace {

namespace fs = std::filesystem;
using qxparser::CiscoCommandLine;
using qxparser::QxParserUtil;

struct DemoOptions {
  std::string examples;
};

class Narrator {
 public:
  explicit Narrator(bool quiet) : mQuiet(quiet) {}
  void step(const std::string& title, const std::string& story) {
    std::cout << "\n== " << title << "\n";
    std::cout.flush();
    if (!mQuiet) std::cerr << "-- " << story << "\n";
  }

 private:
  bool mQuiet;
};

std::string defaultExamplesFolder() {
  const fs::path resources = fs::path(QXFileSystem::GetSystemResourceFolder()).parent_path();
  return (resources.parent_path() / "examples").string();
}

bool readExample(const fs::path& path, std::string& text) { return readInput(path.string(), text); }

// Parses the configuration and lists the lines the device would refuse: those
// whose walk found no path, or stopped before the end of a command.
void showParse(const ConfigInput& input) {
  std::vector<CiscoCommandLine*> records;
  std::string errorText;
  int errorLine = 0;
  QxParserUtil::getCmdInfo(input.text, records, errorText, errorLine);
  size_t total = 0;
  std::vector<std::string> refused;
  for (const CiscoCommandLine* record : records) {
    if (record->getFlag() == qxparser::CMD_TEXT || input.isBannerText(record->getLineNo())) continue;
    ++total;
    if (!isRefusedRecord(*record)) continue;
    const size_t index = static_cast<size_t>(record->getLineNo()) - 1;
    refused.push_back(input.displayName() + ":" + std::to_string(input.fileLineOf(record->getLineNo())) + ": " +
                      input.readerLine(index));
  }
  QxParserUtil::deleteCommands(records);
  std::cout << total << " commands read, " << refused.size() << " refused\n";
  for (const std::string& line : refused) std::cout << "  refused " << line << "\n";
}

std::string promptOf(const qxparser::VTY& vty) {
  std::string suffix;
  vty.getPrompt(suffix);
  return vty.getHostName() + suffix;
}

// Walks an emulated console into interface mode and asks for help there.
void showHelp() {
  qxparser::VTY vty("BR1-RTR", true);
  std::string output;
  for (const char* line : {"enable", "configure terminal", "interface GigabitEthernet0/1"}) {
    std::cout << promptOf(vty) << line << "\n";
    vty.parse(line, false, nullptr);
    vty.getOutputString(output);
    std::cout << output;
  }
  std::cout << promptOf(vty) << "ip ?\n";
  vty.hook("ip ?");
  vty.getOutputString(output);
  std::cout << output << "\n";
}

int runDemo(const DemoOptions& options, const GlobalOptions& global) {
  const fs::path folder = options.examples.empty() ? fs::path(defaultExamplesFolder()) : fs::path(options.examples);
  ConfigInput input;
  std::string error;
  std::string changes;
  if (!readConfigInput((folder / "branch-router.cfg").string(), false, input, error) ||
      !readExample(folder / "branch-router.changes", changes)) {
    if (!error.empty()) std::cerr << "vtyconf: " << error << "\n";
    std::cerr << "vtyconf: the demo needs the bundled examples (use --examples DIR)\n";
    return 2;
  }
  const std::string& config = input.text;
  if (!loadResources()) return 2;
  Narrator narrator(global.quiet);

  narrator.step("parse branch-router.cfg", "Reading a branch router's configuration through the emulated device.");
  showParse(input);

  narrator.step("help in interface mode", "A console session: the '?' listing the device shows in interface mode.");
  showHelp();

  narrator.step("merge branch-router.changes", "Merging a change set: the running configuration the device would show, "
                                                "as a diff against the one before, section by section.");
  const std::string after = QxParserUtil::mergeConfigCmdsDeviceText(changes, config);
  std::cout << qxparser::ConfigDiff::unified(qxparser::ConfigDiff::compare(config, after), "branch-router.cfg",
                                             "merged", false);

  narrator.step("rollback of the change set", "The commands that undo the change set (fallback --delta).");
  std::cout << QxParserUtil::fallbackConfigCmdsDeviceText(changes, config, 0);

  narrator.step("rollback from the new configuration to the old one",
                "The commands that take the merged configuration back to the original (fallback --file).");
  std::cout << QxParserUtil::fallbackConfigCmdsDeviceText(after, config, 1);

  narrator.step("queries", "Sections fetched from the file: routing protocols, access lists, one interface.");
  const std::string path = (folder / "branch-router.cfg").string();
  std::string text;
  qxparser::QXParserGetConfig::GetRoutingProtocols(path, 0, text);
  std::cout << "routing protocols:\n" << text;
  std::list<std::string> acls;
  qxparser::QXParserGetConfig::getAcls(path, 0, acls);
  std::cout << "access lists:\n";
  for (const std::string& acl : acls) std::cout << acl << (acl.empty() || acl.back() != '\n' ? "\n" : "");
  text.clear();
  qxparser::QXParserGetConfig::getInterfaceConfig(path, 0, "GigabitEthernet0/1", text);
  text = QxParserUtil::deviceText(text);
  std::cout << "interface GigabitEthernet0/1:\n" << text << (text.empty() || text.back() != '\n' ? "\n" : "");

  narrator.step("design notes", "Two example notes run over the configuration with perl; their result trees.");
  return runDemoNotes(folder, path) ? 0 : 2;
}

CommandRegistration registration{CommandSpec{
    "demo", "the main jobs on the bundled examples, with a short narration",
    [](CLI::App& sub, const GlobalOptions& global) -> std::function<int()> {
      auto options = std::make_shared<DemoOptions>();
      sub.add_option("--examples", options->examples, "folder of the examples (default: beside the resources)");
      sub.footer("Example: vtyconf demo --quiet > demo.txt");
      return [options, &global]() { return runDemo(*options, global); };
    }}};

}  // namespace
}  // namespace vtycli
