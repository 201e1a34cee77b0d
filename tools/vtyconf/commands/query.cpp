// vtyconf query CONFIG... WHAT [KEY...] [--json] [-j N]: the fixed
// configuration queries, over one file or many.
//
// The arguments are one list: the configurations come first, and the first
// argument after them that names a query (vrfs, interface, ...) is WHAT,
// everything behind it the key words. A file that happens to carry the name
// of a query is written with a folder (./acls). With several files each
// file's answer follows a "== FILE" heading, in the order of the arguments;
// --json then prints one array of {file, result}. The files are queried in
// worker processes after the grammar is loaded once; a file that cannot be
// read is a message, and the others are still queried (exit 2).
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <memory>

#include "CommandRegistry.h"
#include "ConfigInput.h"
#include "ManyFiles.h"
#include "OutputForm.h"
#include "config/QxParserUtil.h"
#include "config/NamedQuery.h"
#include "platform/QXFileSystem.h"

namespace vtycli {
namespace {

using qxparser::namedQuery;

struct QueryOptions {
  std::vector<std::string> arguments;  // CONFIG... WHAT [KEY...], as given
  std::vector<std::string> configs;
  std::string what;
  std::vector<std::string> keys;
  bool json = false;
  bool mergeForm = false;
  unsigned jobs = 0;
};

// Splits the arguments into configurations, WHAT and keys; false after a
// message when there is no query among them or its key is missing.
bool splitArguments(QueryOptions& o) {
  const auto& args = o.arguments;
  size_t at = 1;
  while (at < args.size() && namedQuery(args[at]) == nullptr) ++at;
  if (at >= args.size()) {
    // The first argument after a configuration that is no file is most
    // likely a misspelt query.
    auto unknown = std::find_if(args.begin() + 1, args.end(), [](const std::string& a) {
      return a != "-" && !std::ifstream(a);
    });
    if (args.size() < 2) {
      std::cerr << "vtyconf: query needs CONFIG and WHAT\n";
    } else if (unknown != args.end()) {
      std::cerr << "vtyconf: unknown query '" << *unknown << "'\n";
    } else {
      std::cerr << "vtyconf: query: no query among the arguments\n";
    }
    std::cerr << "vtyconf: queries are vrfs, vrf, protocols, protocol, interface, interfaces, acls, acl, nat, "
                 "route-map, section, lines\n";
    return false;
  }
  o.configs.assign(args.begin(), args.begin() + static_cast<std::ptrdiff_t>(at));
  o.what = args[at];
  o.keys.assign(args.begin() + static_cast<std::ptrdiff_t>(at) + 1, args.end());
  if (namedQuery(o.what)->needsKey && o.keys.empty()) {
    std::cerr << "vtyconf: query " << o.what << " needs a key\n";
    return false;
  }
  return true;
}

// Removes the temporary copy of standard input when it goes.
struct TemporaryFile {
  std::string path;
  ~TemporaryFile() {
    if (!path.empty()) std::remove(path.c_str());
  }
};

// Queries one file: the answer goes to `result.out` as text, or into
// `result.data` as JSON; messages to `result.err`.
void queryOne(const QueryOptions& o, const std::string& config, bool heading, platform::WorkerResult& result) {
  StreamCapture capture(result.out, result.err);
  // The queries read a file by name: standard input goes through a
  // temporary file.
  std::string path = config;
  TemporaryFile temporary;
  if (config == "-") {
    std::string text;
    if (!readInput("-", text)) {
      result.exitCode = 2;
      return;
    }
    temporary.path = QXFileSystem::GetTempFolder() + "vtyconf_query_stdin.cfg";
    std::ofstream(temporary.path, std::ios::binary) << text;
    path = temporary.path;
  } else if (!std::ifstream(path)) {
    std::cerr << "vtyconf: " << path << ": cannot read\n";
    result.exitCode = 2;
    return;
  }
  std::string text;
  std::vector<std::string> items;
  bool isList = false;
  try {
    isList = qxparser::runNamedQuery(o.what, o.keys, path, text, items);
    text = queryOutput(text, o.mergeForm);
    for (std::string& item : items) item = queryOutput(item, o.mergeForm);
  } catch (const std::exception& e) {
    std::cerr << "vtyconf: " << config << ": " << e.what() << "\n";
    result.exitCode = 2;
    return;
  }
  // A query for a named thing that finds nothing says so: a misspelt name is
  // no answer. A search (lines, section) may rightly find nothing.
  const qxparser::NamedQueryKind* kind = qxparser::namedQuery(o.what);
  const bool names = o.what != "lines" && o.what != "section";  // the others name one thing
  if (kind != nullptr && kind->needsKey && names && text.empty() && items.empty()) {
    std::string key;
    for (const std::string& word : o.keys) key += " " + word;
    std::cerr << "vtyconf: " << config << ": no " << o.what << key << " in this configuration\n";
    result.exitCode = 1;
  }
  if (o.json) {
    result.data = (isList ? nlohmann::json(items) : nlohmann::json(text)).dump();
    return;
  }
  if (heading) std::cout << "== " << config << "\n";
  if (isList) {
    for (const std::string& item : items) std::cout << item << (item.empty() || item.back() != '\n' ? "\n" : "");
  } else {
    std::cout << text;
  }
}

int runQueries(QueryOptions& o, const GlobalOptions& global) {
  if (!splitArguments(o)) return 2;
  std::vector<std::string> files;
  bool failed = !expandInputs(o.configs, files);
  if (files.empty()) return 2;
  if (!loadResources()) return 2;
  // Headings (and the JSON array) follow what was asked for: anything but a
  // single plain file, even when some of the files turn out to be missing.
  const bool many = o.configs.size() > 1 || files.size() != 1 || files.front() != o.configs.front();
  const auto results = runPerFileWithData(
      files, o.jobs, global.quiet,
      [&](const std::string& file, platform::WorkerResult& result) { queryOne(o, file, many, result); });
  nlohmann::json all = nlohmann::json::array();
  for (size_t i = 0; i < results.size(); ++i) {
    if (results[i].exitCode >= 2) failed = true;
    if (!o.json || results[i].data.empty()) continue;
    nlohmann::json answer = nlohmann::json::parse(results[i].data);
    if (many) {
      all.push_back({{"file", files[i]}, {"result", std::move(answer)}});
    } else {
      std::cout << answer.dump(2) << "\n";
    }
  }
  if (o.json && many) std::cout << all.dump(2) << "\n";
  if (failed) return 2;
  const bool nothingFound = std::any_of(results.begin(), results.end(), [](const auto& r) { return r.exitCode == 1; });
  return nothingFound ? 1 : 0;
}

CommandRegistration registration{CommandSpec{
    "query", "fixed queries over configuration files",
    [](CLI::App& sub, const GlobalOptions& global) -> std::function<int()> {
      auto options = std::make_shared<QueryOptions>();
      sub.add_option("ARGS", options->arguments,
                     "CONFIG... WHAT [KEY...]: configuration files or folders ('-' for standard input), then the "
                     "query: vrfs | vrf NAME | "
                     "protocols | protocol NAME... | interface NAME | interfaces NAME... | acls | acl KEY | nat KEY | "
                     "route-map KEY | section KEY | lines KEY")
          ->required();
      sub.add_option("-j,--jobs", options->jobs, "worker processes for many files (default: one per processor)");
      sub.add_flag("--json", options->json, "print JSON (with several files an array of {file, result})");
      addMergeFormFlag(sub, options->mergeForm);
      sub.footer("Example: vtyconf query router1.cfg router2.cfg interfaces GigabitEthernet0/1 Loopback0 --json");
      return [options, &global]() { return runQueries(*options, global); };
    }}};

}  // namespace
}  // namespace vtycli
