// vtyconf: the command-line face of the library. Parses arguments, hands them
// to the chosen subcommand, and turns every exception into a one-line message
// and exit code 2.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <exception>
#include <iostream>
#include <map>
#if defined(__GLIBC__)
#include <malloc.h>
#endif

#include "CommandRegistry.h"
#include "ConfigInput.h"
#include "platform/QXFileSystem.h"

namespace vtycli {

std::vector<CommandSpec>& commandRegistry() {
  static std::vector<CommandSpec> registry;
  return registry;
}

// A run builds and frees millions of small records; the allocator's fast
// bins only add their consolidation work to that pattern.
void tuneAllocator() {
#if defined(__GLIBC__)
  mallopt(M_MXFAST, 0);
#endif
}

}  // namespace vtycli

int main(int argc, char** argv) {
  using namespace vtycli;
  tuneAllocator();
  CLI::App app{"vtyconf: read Cisco IOS configurations the way the device does, and run design notes over them"};
  app.set_version_flag("--version", std::string("vtyconf ") + VTYCONF_VERSION);
  app.require_subcommand(1);
  GlobalOptions global;
  app.add_option("--resources", global.resources, "folder of definition files and scripts")
      ->check(CLI::ExistingDirectory);
  app.add_flag("--quiet", global.quiet, "no narration or progress on standard error");
  // Global options may also follow the subcommand ("vtyconf demo --quiet").
  app.fallthrough();

  auto& registry = commandRegistry();
  std::sort(registry.begin(), registry.end(),
            [](const CommandSpec& a, const CommandSpec& b) { return a.name < b.name; });
  std::map<CLI::App*, std::function<int()>> runners;
  std::map<std::string, CLI::App*> groups;
  for (auto& entry : registry) {
    // "note check" is the subcommand "check" of the group "note".
    CLI::App* parent = &app;
    std::string name = entry.name;
    size_t blank = name.find(' ');
    if (blank != std::string::npos) {
      std::string group = name.substr(0, blank);
      name = name.substr(blank + 1);
      auto found = groups.find(group);
      if (found == groups.end()) {
        CLI::App* g = app.add_subcommand(group, group + " commands");
        g->require_subcommand(1);
        found = groups.emplace(group, g).first;
      }
      parent = found->second;
    }
    CLI::App* sub = parent->add_subcommand(name, entry.description);
    runners[sub] = entry.setup(*sub, global);
  }

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& e) {
    int rc = app.exit(e);
    return rc == 0 ? 0 : 2;
  }

  try {
    if (!global.resources.empty()) QXFileSystem::SetSystemResourceFolder(global.resources);
    setQuietInput(global.quiet);
    for (auto& [sub, run] : runners) {
      if (sub->parsed()) return run();
    }
    return 2;
  } catch (const std::exception& e) {
    std::cerr << "vtyconf: " << e.what() << "\n";
    return 2;
  } catch (...) {
    std::cerr << "vtyconf: unexpected error\n";
    return 2;
  }
}
