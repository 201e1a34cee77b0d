// vtyconf note check SCRIPT: the delimiter check and a trial translation of a
// design script.
//
// A ".cmf" file is read with its header and only its script text is checked;
// any other file is checked as a whole. Each message goes to standard error as
// "vtyconf: SCRIPT: message"; line numbers in the messages count from the
// first line of the script text. Exit 0 when the script is good, 1 when there
// are messages, 2 when the file cannot be read.
#include <iostream>
#include <memory>
#include <string>

#include "CommandRegistry.h"
#include "NoteStaging.h"
#include "notes/DRScriptFile.h"
#include "notes/DesignNoteParser.h"
#include "platform/Pathname.h"
#include "platform/PlatformOs.h"

namespace {

struct CheckOptions {
  std::string script;
};

int runCheck(const CheckOptions& options, const vtycli::GlobalOptions& global) {
  if (platform::access(options.script, 4) != 0 || Pathname(options.script).isDirectory()) {
    std::cerr << "vtyconf: " << options.script << ": cannot read the script\n";
    return 2;
  }
  DRScriptFile script(options.script);
  const std::string messages = DesignNoteParser::checkScriptFile(script.getContext());
  if (!messages.empty()) {
    vtycli::printNoteMessages(options.script, messages);
    return 1;
  }
  if (!global.quiet) std::cout << options.script << ": no problems found\n";
  return 0;
}

vtycli::CommandRegistration registration({
    "note check",
    "check the delimiters of a design script and translate it on trial",
    [](CLI::App& sub, const vtycli::GlobalOptions& global) -> std::function<int()> {
      auto options = std::make_shared<CheckOptions>();
      sub.add_option("SCRIPT", options->script, "design script (.cmf, or plain script text)")->required();
      sub.footer("Example: vtyconf note check examples/notes/shut_interfaces.cmf");
      return [options, &global]() { return runCheck(*options, global); };
    },
});

}  // namespace
