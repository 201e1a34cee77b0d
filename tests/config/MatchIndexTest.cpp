// The first-match index answers what a scan from the front answers.
#include "ConfigFixture.h"
#include "config/CommandMatchIndex.h"

#include <algorithm>
#include <random>

namespace qxparser {
namespace {

class MatchIndexTest : public ConfigFixture {};

size_t scanComparable(const std::vector<CiscoCommandLine*>& commands, const CiscoCommandLine* probe) {
  for (size_t i = 0; i < commands.size(); ++i) {
    if (commands[i]->isComparable(probe)) return i;
  }
  return CommandMatchIndex::npos;
}

size_t scanNoable(const std::vector<CiscoCommandLine*>& commands, const CiscoCommandLine* probe) {
  for (size_t i = 0; i < commands.size(); ++i) {
    if (commands[i]->isNoable(probe)) return i;
  }
  return CommandMatchIndex::npos;
}

// The walk as merge and fallback wrote it before the index answered it.
CommandMatchIndex::Run scanRun(const std::vector<CiscoCommandLine*>& commands, size_t at,
                               const CiscoCommandLine* probe) {
  CommandMatchIndex::Run run;
  size_t i = at;
  for (; i < commands.size() && commands[i]->isComparable(probe); ++i) {
    if (commands[i]->getCurrentCommand() == probe->getCurrentCommand()) {
      run.equal = i;
      break;
    }
    if (commands[i]->hasFlags(CMDBIT_NO) != probe->hasFlags(CMDBIT_NO)) run.otherSign.push_back(i);
  }
  if (run.equal != CommandMatchIndex::npos) {
    while (i < commands.size() && commands[i]->isComparable(probe)) ++i;
  }
  run.end = i;
  return run;
}

// A level built from a small pool of lines, so that runs, repeats and "no"
// forms are common; then random insertions (many at one place), removals
// and records changed in place, each followed by every question.
TEST_F(MatchIndexTest, RunsEqualThePlainWalkThroughGeneratedChanges) {
  const std::string pool =
      "logging host 1.1.1.1\nlogging host 2.2.2.2\nlogging host 3.3.3.3\naccess-list 10 permit any\n"
      "access-list 10 deny any\naccess-list 20 permit any\nip route 10.0.0.0 255.0.0.0 1.1.1.1\n"
      "ip route 10.0.0.0 255.0.0.0 2.2.2.2\nhostname r1\nvlans 10\nno vlans 10\nno logging host 1.1.1.1\n"
      "no access-list 10\nsnmp trap 1.1.1.1\nno snmp trap 1.1.1.1\nip domain lookup\nno ip domain lookup\n"
      "frobnicate\n";
  TopLevel lines(pool);
  std::vector<CiscoCommandLine*>& kinds = lines.get();
  std::mt19937 random(7);
  std::uniform_int_distribution<size_t> pick(0, kinds.size() - 1);
  for (int level = 0; level < 6; ++level) {
    std::vector<std::unique_ptr<CiscoCommandLine>> owned;
    std::vector<CiscoCommandLine*> commands;
    // Odd levels start small and grow through insertions.
    for (int i = 0; i < (level % 2 ? 3 : 60); ++i) {
      owned.push_back(std::make_unique<CiscoCommandLine>(*kinds[pick(random)]));
      commands.push_back(owned.back().get());
    }
    CommandMatchIndex index(commands);
    for (int step = 0; step < 150; ++step) {
      for (CiscoCommandLine* probe : kinds) {
        ASSERT_EQ(index.firstNoable(probe), scanNoable(commands, probe)) << probe->getOriginalCmd() << " step " << step;
        const size_t at = index.firstComparable(probe);
        ASSERT_EQ(at, scanComparable(commands, probe)) << "level " << level << " step " << step;
        if (at == CommandMatchIndex::npos) continue;
        const CommandMatchIndex::Run fast = index.walkRun(at, probe);
        const CommandMatchIndex::Run plain = scanRun(commands, at, probe);
        ASSERT_EQ(fast.end, plain.end) << probe->getOriginalCmd() << " step " << step;
        ASSERT_EQ(fast.equal, plain.equal) << probe->getOriginalCmd() << " step " << step;
        ASSERT_EQ(fast.otherSign, plain.otherSign) << probe->getOriginalCmd() << " step " << step;
      }
      const int action = static_cast<int>(random() % 4);
      if (action <= 1) {
        // Half of the insertions go to one place, to use up the room there.
        const size_t position = action == 0 ? std::min<size_t>(commands.size(), 30) : random() % (commands.size() + 1);
        owned.push_back(std::make_unique<CiscoCommandLine>(*kinds[pick(random)]));
        index.insert(position, owned.back().get());
        // The vector sees insertions once they are committed.
        EXPECT_EQ(commands.size() + 1, index.size());
        index.commit();
        ASSERT_EQ(commands.size(), index.size());
        ASSERT_EQ(commands[position], owned.back().get());
        for (size_t i = 0; i < commands.size(); ++i) ASSERT_EQ(index.at(i), commands[i]) << i;
      } else if (action == 2) {
        CiscoCommandLine* victim = commands[random() % commands.size()];
        victim->setFlags(CMDBIT_REMOVED, false);
        index.removed(victim);
      } else {
        const size_t position = random() % commands.size();
        if (commands[position]->hasFlags(CMDBIT_REMOVED)) continue;
        *commands[position] = *kinds[pick(random)];
        index.refresh(position);
      }
    }
  }
}

}  // namespace
}  // namespace qxparser
