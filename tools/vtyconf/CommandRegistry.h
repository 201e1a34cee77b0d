// The subcommands of the vtyconf program register themselves here.
//
// Each subcommand lives in its own file under commands/ and defines one static
// CommandRegistration. A name with a blank ("note check") is a subcommand of
// a group. main() builds the CLI11 application, gives every
// registered command its subcommand, and runs the one chosen. A command's run
// function returns the process exit code (0 success, 1 problems found, 2 usage
// or input error); exceptions are caught by main().
#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <string>
#include <vector>

namespace vtycli {

// Options shared by every subcommand.
struct GlobalOptions {
  std::string resources;  // --resources DIR
  bool quiet = false;     // --quiet
};

struct CommandSpec {
  std::string name;
  std::string description;
  // Adds the subcommand's options to `sub` and returns the function that runs it.
  std::function<std::function<int()>(CLI::App& sub, const GlobalOptions& global)> setup;
};

std::vector<CommandSpec>& commandRegistry();

struct CommandRegistration {
  explicit CommandRegistration(CommandSpec entry) { commandRegistry().push_back(std::move(entry)); }
};

}  // namespace vtycli
