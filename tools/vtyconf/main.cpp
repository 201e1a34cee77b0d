// vtyconf: the command-line face of the library. Parses arguments, hands them
// to the chosen subcommand, and turns every exception into a one-line message
// and exit code 2.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <exception>
#include <iostream>
#include <map>

#include "CommandRegistry.h"
#include "platform/QXFileSystem.h"

namespace vtycli {

std::vector<CommandSpec>& commandRegistry() {
  static std::vector<CommandSpec> registry;
  return registry;
}

}  // namespace vtycli

int main(int argc, char** argv) {
  using namespace vtycli;
  CLI::App app{"vtyconf: read Cisco IOS configurations the way the device does, and run design notes over them"};
  app.set_version_flag("--version", std::string("vtyconf ") + VTYCONF_VERSION);
  app.require_subcommand(1);
  GlobalOptions global;
  app.add_option("--resources", global.resources, "folder of definition files and scripts")
      ->check(CLI::ExistingDirectory);
  app.add_flag("--quiet", global.quiet, "no narration or progress on standard error");

  auto& registry = commandRegistry();
  std::sort(registry.begin(), registry.end(),
            [](const CommandSpec& a, const CommandSpec& b) { return a.name < b.name; });
  std::map<CLI::App*, std::function<int()>> runners;
  for (auto& spec : registry) {
    CLI::App* sub = app.add_subcommand(spec.name, spec.description);
    runners[sub] = spec.setup(*sub, global);
  }

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& e) {
    int rc = app.exit(e);
    return rc == 0 ? 0 : 2;
  }

  try {
    if (!global.resources.empty()) QXFileSystem::SetSystemResourceFolder(global.resources);
    for (auto& [sub, run] : runners) {
      if (sub->parsed()) return run();
    }
    // A subcommand with subcommands of its own (such as "note") dispatches below.
    return 2;
  } catch (const std::exception& e) {
    std::cerr << "vtyconf: " << e.what() << "\n";
    return 2;
  } catch (...) {
    std::cerr << "vtyconf: unexpected error\n";
    return 2;
  }
}
