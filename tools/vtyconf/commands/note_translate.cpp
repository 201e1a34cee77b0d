// vtyconf note translate SCRIPT [-o PROGRAM]: the Perl program of a design script.
//
// The script text is read as it stands ("-" reads standard input). The program
// goes to PROGRAM, or to standard output by way of a temporary file. A script
// that the translator refuses gets its message on standard error, exit code 1
// and no program; an unreadable script or an unwritable program gives exit 2.
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <string>

#include "CommandRegistry.h"
#include "NoteStaging.h"
#include "platform/Pathname.h"
#include "platform/PlatformOs.h"
#include "platform/QXFileSystem.h"
#include "translator/DRTranslator.h"

namespace {

struct TranslateOptions {
  std::string script;
  std::string program;
};

bool readScript(const std::string& path, std::string& text) {
  if (path == "-") {
    text.assign(std::istreambuf_iterator<char>(std::cin), std::istreambuf_iterator<char>());
    return !std::cin.bad();
  }
  if (Pathname(path).isDirectory()) return false;
  std::ifstream in(path, std::ios::binary);
  if (!in.is_open()) return false;
  text.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  return !in.bad();
}

int runTranslate(const TranslateOptions& options) {
  std::string text;
  if (!readScript(options.script, text)) {
    std::cerr << "vtyconf: " << options.script << ": cannot read the script\n";
    return 2;
  }
  const bool toStdout = options.program.empty();
  const std::string target = toStdout ? QXFileSystem::GetTempFolder() + "note-translate.pl" : options.program;
  const std::string name = options.script == "-" ? "<stdin>" : options.script;

  DRTranslator translator(text, target);
  translator.translateScriptFile();
  if (!Pathname(target).exists()) {
    std::cerr << "vtyconf: " << target << ": cannot write the program\n";
    return 2;
  }
  if (!translator.errorText.empty()) {
    platform::deleteFile(target);
    vtycli::printNoteMessages(name, translator.errorText);
    return 1;
  }
  if (toStdout) {
    std::ifstream in(target, std::ios::binary);
    std::cout << in.rdbuf();
    in.close();
    platform::deleteFile(target);
    std::cout.flush();
    if (!std::cout) return 2;
  }
  return 0;
}

vtycli::CommandRegistration registration({
    "note translate",
    "write the Perl program of a design script",
    [](CLI::App& sub, const vtycli::GlobalOptions&) -> std::function<int()> {
      auto options = std::make_shared<TranslateOptions>();
      sub.add_option("SCRIPT", options->script, "script text to translate (- reads standard input)")->required();
      sub.add_option("-o,--output", options->program, "program file to write (default: standard output)");
      sub.footer("Example: vtyconf note translate audit.note -o audit.pl");
      return [options]() { return runTranslate(*options); };
    },
});

}  // namespace
