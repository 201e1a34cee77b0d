// First-match lookups over one nesting level of commands.
#include "config/CommandMatchIndex.h"

#include <algorithm>

#include "grammar/ParserTreeNode.h"

namespace qxparser {

std::string CommandMatchIndex::signature(const CiscoCommandLine* command) {
  std::string key;
  size_t position = 0;
  for (const CmdPathEntry& entry : command->getTreeNodes()) {
    if (entry.node && entry.node->hasFlag(NODE_FLAG_K)) {
      key += std::to_string(position);
      key += ':';
      key += std::to_string(reinterpret_cast<uintptr_t>(entry.node));
      for (const std::string& word : entry.words) {
        key += '\x01';
        key += std::to_string(word.size());
        key += '=';
        key += word;
      }
      key += '\x02';
    }
    ++position;
  }
  return key;
}

CommandMatchIndex::CommandMatchIndex(std::vector<CiscoCommandLine*>& commands) : mCommands(commands) {
  for (size_t i = 0; i < mCommands.size(); ++i) enter(mCommands[i], static_cast<double>(i));
}

void CommandMatchIndex::place(Bucket& bucket, const Ranked& entry) {
  auto at = std::upper_bound(bucket.begin(), bucket.end(), entry.rank,
                             [](double rank, const Ranked& other) { return rank < other.rank; });
  bucket.insert(at, entry);
}

void CommandMatchIndex::enter(CiscoCommandLine* record, double rank) {
  mRank[record] = rank;
  std::string key = signature(record);
  place(mBuckets[key], Ranked{rank, record});
  mSignature[record] = std::move(key);
}

size_t CommandMatchIndex::positionOf(double rank) const {
  auto found = std::lower_bound(mCommands.begin(), mCommands.end(), rank,
                                [this](const CiscoCommandLine* c, double r) { return mRank.at(c) < r; });
  return static_cast<size_t>(found - mCommands.begin());
}

size_t CommandMatchIndex::firstComparable(const CiscoCommandLine* probe) const {
  auto bucket = mBuckets.find(signature(probe));
  if (bucket == mBuckets.end()) return npos;
  // The bucket stands in the level's order: the first that is comparable
  // (not removed, with a path) is the answer.
  for (const Ranked& candidate : bucket->second) {
    if (candidate.record->isComparable(probe)) return positionOf(candidate.rank);
  }
  return npos;
}

size_t CommandMatchIndex::firstNoable(const CiscoCommandLine* probe) const {
  for (size_t i = 0; i < mCommands.size(); ++i) {
    if (mCommands[i]->isNoable(probe)) return i;
  }
  return npos;
}

void CommandMatchIndex::insert(size_t position, CiscoCommandLine* record) {
  const double before = position == 0 ? -1.0 : mRank.at(mCommands[position - 1]);
  const double after = position >= mCommands.size() ? before + 2.0 : mRank.at(mCommands[position]);
  mCommands.insert(mCommands.begin() + static_cast<std::ptrdiff_t>(position), record);
  const double rank = before + (after - before) / 2;
  enter(record, rank);
  if (!(rank > before && rank < after)) renumber();
}

void CommandMatchIndex::renumber() {
  for (size_t i = 0; i < mCommands.size(); ++i) mRank[mCommands[i]] = static_cast<double>(i);
  // Renumbering keeps the order, so the buckets only take the new ranks.
  for (auto& bucket : mBuckets) {
    for (Ranked& entry : bucket.second) entry.rank = mRank.at(entry.record);
  }
}

void CommandMatchIndex::refresh(size_t position) {
  CiscoCommandLine* record = mCommands[position];
  std::string key = signature(record);
  std::string& old = mSignature[record];
  if (key == old) return;
  auto& bucket = mBuckets[old];
  bucket.erase(std::remove_if(bucket.begin(), bucket.end(), [record](const Ranked& e) { return e.record == record; }),
               bucket.end());
  place(mBuckets[key], Ranked{mRank.at(record), record});
  old = std::move(key);
}

}  // namespace qxparser
