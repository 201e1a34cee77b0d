// vtyconf note run SCRIPT CONFIG [--ui KIND=VALUE]... [--raw|--json]: runs a
// design note over a configuration and prints what it found.
//
// The script is checked and translated afresh into a private folder (see
// NoteStaging.h); a script that fails gives its messages and exit 2. The
// result tree is printed indented by two blanks per level, a numbered line as
// "N: text"; --raw prints the result file as the note wrote it, --json an
// array of {line, text, tag, count, children[]}. KIND is one of interface,
// protocol, address, interface-name, vrf, route-map, nat (or its number 1-7).
// Exit 0 when the note ran, found something or not; 2 when it could not run.
#include <iostream>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "CommandRegistry.h"
#include "ManyFiles.h"
#include "NoteOutput.h"
#include "NoteStaging.h"
#include "notes/DesignNoteParser.h"
#include "results/DRResultTree.h"
#include "results/UIVariableForDR.h"
#include "results/UIVariableKind.h"

namespace {

struct RunOptions {
  std::string script;
  std::vector<std::string> configs;
  unsigned jobs = 0;
  std::vector<std::string> ui;
  bool raw = false;
  bool json = false;
};

nlohmann::json toJson(const DRResultTree& tree) {
  nlohmann::json lines = nlohmann::json::array();
  for (const LineFormat* line : tree.getLines()) {
    if (line == nullptr) continue;
    nlohmann::json item;
    item["line"] = line->mLineNumber;
    item["text"] = line->mText;
    item["tag"] = line->mTagKind == LineTagOpen ? "open" : line->mTagKind == LineTagClose ? "close" : "none";
    item["count"] = line->mLineCount;
    item["children"] = line->mChildren != nullptr ? toJson(*line->mChildren) : nlohmann::json::array();
    lines.push_back(std::move(item));
  }
  return lines;
}

int runNote(const RunOptions& options, const std::string& config) {
  if (options.raw && options.json) {
    std::cerr << "vtyconf: --raw and --json exclude each other\n";
    return 2;
  }
  std::unique_ptr<UIVariableForDR> ui;
  for (const std::string& item : options.ui) {
    std::size_t eq = item.find('=');
    int kind = eq == std::string::npos ? 0 : uiVariableKindNamed(item.substr(0, eq));
    if (kind == 0) {
      std::cerr << "vtyconf: --ui " << item
                << ": expected KIND=VALUE with KIND one of interface, protocol, address, interface-name, vrf, "
                   "route-map, nat\n";
      return 2;
    }
    if (!ui) ui = std::make_unique<UIVariableForDR>();
    ui->addVariableValue(kind, item.substr(eq + 1));
  }

  vtycli::StagedNote staged;
  std::string error;
  std::string messages;
  if (!staged.stageScript(options.script, error, messages)) {
    if (!error.empty()) std::cerr << "vtyconf: " << error << "\n";
    vtycli::printNoteMessages(options.script, messages);
    return 2;
  }
  if (!staged.stageConfig(config, error)) {
    if (!error.empty()) std::cerr << "vtyconf: " << error << "\n";
    return 2;
  }

  std::unique_ptr<DRResultTree> tree(
      DesignNoteParser::getDesignNoteTree(staged.scriptPath(), staged.configPath(), ui.get()));
  if (!tree) {
    std::cerr << "vtyconf: " << options.script
              << ": the note wrote no result (is perl installed, or VTYCONF_PERL set?)\n";
    return 2;
  }
  if (options.raw) {
    // The raw text comes from a second run that hands the file back unparsed.
    std::cout << DesignNoteParser::getDesignNote(staged.scriptPath(), staged.configPath(), ui.get());
  } else if (options.json) {
    std::cout << toJson(*tree).dump(2) << "\n";
  } else {
    std::cout << vtycli::indentedTree(*tree, 0);
  }
  std::cout.flush();
  return std::cout ? 0 : 2;
}

// Several configurations: each gets a "== NAME" heading and its own run.
int runNoteOnAll(const RunOptions& options, const vtycli::GlobalOptions& global) {
  std::vector<std::string> files;
  if (!vtycli::expandInputs(options.configs, files)) return 2;
  if (files.size() == 1) return runNote(options, files.front());
  return vtycli::runPerFile(files, options.jobs, global.quiet,
                            [&options](const std::string& file, std::string& out, std::string& err) {
                              vtycli::StreamCapture capture(out, err);
                              std::cout << "== " << file << "\n";
                              return runNote(options, file);
                            });
}

vtycli::CommandRegistration registration({
    "note run",
    "run a design note over a configuration and print its result tree",
    [](CLI::App& sub, const vtycli::GlobalOptions& global) -> std::function<int()> {
      auto options = std::make_shared<RunOptions>();
      sub.add_option("SCRIPT", options->script, "design script (.cmf, plain script text, or .py)")->required();
      sub.add_option("CONFIG", options->configs, "configuration files or folders (- reads standard input)")->required();
      sub.add_option("-j,--jobs", options->jobs, "worker processes for many files (default: one per processor)");
      sub.add_option("--ui", options->ui, "a value the note reads from its @UI_ lists, as KIND=VALUE");
      sub.add_flag("--raw", options->raw, "print the result file as the note wrote it");
      sub.add_flag("--json", options->json, "print the result tree as JSON");
      sub.footer("Example: vtyconf note run examples/notes/shut_interfaces.cmf router1.cfg --ui interface=Gi0/1");
      return [options, &global]() { return runNoteOnAll(*options, global); };
    },
});

}  // namespace
