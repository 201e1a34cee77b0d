// The first-match index answers what a scan from the front answers.
#include "ConfigFixture.h"
#include "config/CommandMatchIndex.h"

namespace qxparser {
namespace {

class MatchIndexTest : public ConfigFixture {};

size_t scanComparable(const std::vector<CiscoCommandLine*>& commands, const CiscoCommandLine* probe) {
  for (size_t i = 0; i < commands.size(); ++i) {
    if (commands[i]->isComparable(probe)) return i;
  }
  return CommandMatchIndex::npos;
}

TEST_F(MatchIndexTest, FirstComparableEqualsTheScanThroughInsertsAndMarks) {
  TopLevel config(
      "hostname r1\nip route 10.0.0.0 255.0.0.0 1.1.1.1\nip route 10.0.0.0 255.0.0.0 2.2.2.2\n"
      "access-list 10 permit any\naccess-list 10 deny any\naccess-list 20 permit any\n! text\n"
      "vlans 10\nlogging host 1.1.1.1\nfrobnicate\n");
  TopLevel probes(
      "hostname r9\nip route 10.0.0.0 255.0.0.0 3.3.3.3\nip route 11.0.0.0 255.0.0.0 1.1.1.1\n"
      "access-list 20 deny any\naccess-list 30 permit any\nvlans 20\nlogging host 2.2.2.2\nfrobnicate\n! x\n");
  std::vector<CiscoCommandLine*>& commands = config.get();
  CommandMatchIndex index(commands);
  std::vector<std::unique_ptr<CiscoCommandLine>> added;
  for (int round = 0; round < 3; ++round) {
    for (CiscoCommandLine* probe : probes.get()) {
      EXPECT_EQ(index.firstComparable(probe), scanComparable(commands, probe)) << probe->getOriginalCmd();
    }
    // Copies go in front of their twins, and the first twin is marked.
    added.push_back(std::make_unique<CiscoCommandLine>(*probes[static_cast<size_t>(round)]));
    index.insert(1, added.back().get());
    commands[2 + static_cast<size_t>(round)]->setFlags(CMDBIT_REMOVED, false);
  }
  // The inserted records are owned here, not by the level.
  commands.erase(commands.begin() + 1, commands.begin() + 4);
}

}  // namespace
}  // namespace qxparser
