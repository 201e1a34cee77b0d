// vtyconf note useful FOLDER CONFIG: the favourite notes of a folder tree that
// find something in a configuration.
//
// Every favourite ".cmf" script of the tree is run over the configuration; the
// ones with a result are printed, one per line, by their path below FOLDER
// without extension. Folders in which nothing was found are left out. Exit 0
// whether or not anything was found, 2 when the folder or the configuration
// cannot be read.
#include <iostream>
#include <memory>
#include <string>

#include "CommandRegistry.h"
#include "NoteStaging.h"
#include "notes/DesignNoteParser.h"
#include "platform/Pathname.h"

namespace {

struct UsefulOptions {
  std::string folder;
  std::string config;
};

void printTree(const DesignNoteParser& tree, const std::string& prefix) {
  for (const std::string& name : tree.getScriptFiles()) std::cout << prefix << name << "\n";
  for (const auto& sub : tree.getSubDirects()) printTree(*sub.second, prefix + sub.first + "/");
}

int runUseful(const UsefulOptions& options, const vtycli::GlobalOptions& global) {
  if (!Pathname(options.folder).isDirectory()) {
    std::cerr << "vtyconf: " << options.folder << ": not a folder\n";
    return 2;
  }
  vtycli::StagedNote staged;
  std::string error;
  if (!staged.stageConfig(options.config, error)) {
    if (!error.empty()) std::cerr << "vtyconf: " << error << "\n";
    return 2;
  }
  std::unique_ptr<DesignNoteParser> tree(DesignNoteParser::getUsefulFiles(options.folder, staged.configPath()));
  if (!tree) {
    if (!global.quiet) std::cerr << "vtyconf: no favourite note of " << options.folder << " finds anything\n";
    return 0;
  }
  printTree(*tree, "");
  std::cout.flush();
  return std::cout ? 0 : 2;
}

vtycli::CommandRegistration registration({
    "note useful",
    "list the favourite notes of a folder tree that find something in a configuration",
    [](CLI::App& sub, const vtycli::GlobalOptions& global) -> std::function<int()> {
      auto options = std::make_shared<UsefulOptions>();
      sub.add_option("FOLDER", options->folder, "folder tree of design scripts")->required();
      sub.add_option("CONFIG", options->config, "configuration file (- reads standard input)")->required();
      sub.footer("Example: vtyconf note useful examples/notes router1.cfg");
      return [options, &global]() { return runUseful(*options, global); };
    },
});

}  // namespace
