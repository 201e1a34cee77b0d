#include "DemoNotes.h"

#include <iostream>
#include <memory>

#include "NoteOutput.h"
#include "NoteStaging.h"
#include "notes/DesignNoteParser.h"
#include "results/DRResultTree.h"

namespace vtycli {

bool runDemoNotes(const std::filesystem::path& examples, const std::filesystem::path& config) {
  for (const char* name : {"interfaces_without_description", "acl_applied_not_defined"}) {
    const std::filesystem::path script = examples / "notes" / (std::string(name) + ".cmf");
    StagedNote staged;
    std::string error;
    std::string messages;
    if (!staged.stageScript(script.string(), error, messages) || !staged.stageConfig(config.string(), error)) {
      std::cerr << "vtyconf: " << script.string() << ": " << (error.empty() ? messages : error) << "\n";
      return false;
    }
    std::unique_ptr<DRResultTree> tree(
        DesignNoteParser::getDesignNoteTree(staged.scriptPath(), staged.configPath(), nullptr));
    if (!tree) {
      std::cerr << "vtyconf: " << name << ": the note wrote no result (is perl installed?)\n";
      return false;
    }
    std::cout << name << ":\n" << indentedTree(*tree, 1);
  }
  return true;
}

}  // namespace vtycli
