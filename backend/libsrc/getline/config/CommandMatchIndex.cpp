// First-match lookups and comparable runs over one nesting level of commands.
#include "config/CommandMatchIndex.h"

#include <algorithm>

#include "grammar/ParserTreeNode.h"

namespace qxparser {

namespace {

constexpr uint64_t kSpacing = uint64_t{1} << 24;
constexpr uint64_t kMinimumGap = uint64_t{1} << 8;

}  // namespace

namespace {

template <typename T>
void appendRaw(std::string& key, T value) {
  key.append(reinterpret_cast<const char*>(&value), sizeof value);
}

}  // namespace

std::string CommandMatchIndex::signature(const CiscoCommandLine* command) {
  // Fixed-size fields and length-prefixed words: equal keys mean equal
  // positions, nodes and word sets of the key elements.
  std::string key;
  uint32_t position = 0;
  for (const CmdPathEntry& entry : command->getTreeNodes()) {
    if (entry.node && entry.node->hasFlag(NODE_FLAG_K)) {
      appendRaw(key, position);
      appendRaw(key, entry.node);
      appendRaw(key, static_cast<uint32_t>(entry.words.size()));
      for (const std::string& word : entry.words) {
        appendRaw(key, static_cast<uint32_t>(word.size()));
        key += word;
      }
    }
    ++position;
  }
  return key;
}

CommandMatchIndex::CommandMatchIndex(std::vector<CiscoCommandLine*>& commands) : mCommands(commands) {
  // Reserved up front: rehashing large tables is what building costs most.
  mSlots.reserve(mCommands.size() + mCommands.size() / 8);
  mLevel.reserve(mCommands.size());
  mBuckets.reserve(mCommands.size() + mCommands.size() / 8);
  for (size_t i = 0; i < mCommands.size(); ++i) {
    auto data = std::make_unique<Slot>();
    data->record = mCommands[i];
    data->rank = (i + 1) * kSpacing;
    describe(*data);
    if (data->live) enterLive(*data, true);
    mLevel.push_back(data.get());
    mSlots[mCommands[i]] = std::move(data);
  }
  for (size_t i = 0; i < mCommands.size(); ++i) updateRun(i);
}

CommandMatchIndex::~CommandMatchIndex() {
  // The vector must hold every inserted record, whose owner it is.
  try {
    commit();
  } catch (...) {
  }
}

void CommandMatchIndex::commit() {
  if (mCommitted) return;
  std::vector<CiscoCommandLine*> level;
  level.reserve(mLevel.size());
  for (size_t i = 0; i < mLevel.size(); ++i) level.push_back(mLevel[i]->record);
  mCommands.swap(level);
  mCommitted = true;
}

void CommandMatchIndex::Level::insert(size_t position, Slot* data) {
  if (mGapBegin == mGapEnd) {
    // No room: lay the level out again with a gap at the insertion.
    const size_t count = size();
    const size_t gap = count / 4 + 16;
    std::vector<Slot*> wider(count + gap, nullptr);
    for (size_t i = 0; i < count; ++i) wider[i < position ? i : i + gap] = (*this)[i];
    mData.swap(wider);
    mGapBegin = position;
    mGapEnd = position + gap;
  } else if (position < mGapBegin) {
    std::move_backward(mData.begin() + static_cast<std::ptrdiff_t>(position),
                       mData.begin() + static_cast<std::ptrdiff_t>(mGapBegin),
                       mData.begin() + static_cast<std::ptrdiff_t>(mGapEnd));
    mGapEnd -= mGapBegin - position;
    mGapBegin = position;
  } else if (position > mGapBegin) {
    const size_t shift = position - mGapBegin;
    std::move(mData.begin() + static_cast<std::ptrdiff_t>(mGapEnd),
              mData.begin() + static_cast<std::ptrdiff_t>(mGapEnd + shift),
              mData.begin() + static_cast<std::ptrdiff_t>(mGapBegin));
    mGapBegin += shift;
    mGapEnd += shift;
  }
  mData[mGapBegin++] = data;
}

CommandMatchIndex::Slot& CommandMatchIndex::slot(const CiscoCommandLine* record) const {
  return *mSlots.at(record);
}

void CommandMatchIndex::describe(Slot& data) {
  const CiscoCommandLine* record = data.record;
  data.live = !record->hasFlags(CMDBIT_REMOVED) && !record->getTreeNodes().empty();
  data.bucket = nullptr;
  if (!record->getTreeNodes().empty()) {
    std::unique_ptr<Bucket>& bucket = mBuckets[signature(record)];
    if (!bucket) bucket = std::make_unique<Bucket>();
    data.bucket = bucket.get();
  }
  data.text = record->getCurrentCommand();
  data.negated = record->hasFlags(CMDBIT_NO);
  data.firstNode = record->getTreeNodes().empty() ? nullptr : record->getTreeNodes().front().node;
  data.endsAtOnce = !record->getTreeNodes().empty() && record->getTreeNodes().front().words.count("\n") > 0;
}

void CommandMatchIndex::enterLive(Slot& data, bool atEnd) {
  Bucket& bucket = *data.bucket;
  RankSet& sign = data.negated ? bucket.negated : bucket.positive;
  RankSet& sameText = bucket.byText[data.text];
  RankSet& start = data.endsAtOnce ? mEndsAtOnce : mByFirstNode[data.firstNode];
  if (atEnd) {
    // Records come in level order while the index is built.
    start.insert(start.end(), &data);
    bucket.live.insert(bucket.live.end(), &data);
    sameText.insert(sameText.end(), &data);
    sign.insert(sign.end(), &data);
  } else {
    start.insert(&data);
    bucket.live.insert(&data);
    sameText.insert(&data);
    sign.insert(&data);
  }
}

void CommandMatchIndex::leaveLive(Slot& data) {
  if (data.endsAtOnce) {
    mEndsAtOnce.erase(&data);
  } else {
    auto start = mByFirstNode.find(data.firstNode);
    if (start != mByFirstNode.end()) start->second.erase(&data);
  }
  Bucket& bucket = *data.bucket;
  bucket.live.erase(&data);
  bucket.stops.erase(&data);
  (data.negated ? bucket.negated : bucket.positive).erase(&data);
  auto sameText = bucket.byText.find(data.text);
  if (sameText != bucket.byText.end()) {
    sameText->second.erase(&data);
    if (sameText->second.empty()) bucket.byText.erase(sameText);
  }
}

void CommandMatchIndex::updateRun(size_t position) {
  Slot& data = *mLevel[position];
  if (!data.live) return;
  bool continues = false;
  if (position + 1 < mLevel.size()) {
    const Slot& next = *mLevel[position + 1];
    continues = next.live && next.bucket == data.bucket;
  }
  if (continues) {
    data.bucket->stops.erase(&data);
  } else {
    data.bucket->stops.insert(&data);
  }
}

size_t CommandMatchIndex::positionOf(uint64_t rank) const {
  size_t low = 0;
  size_t high = mLevel.size();
  while (low < high) {
    const size_t middle = low + (high - low) / 2;
    if (mLevel[middle]->rank < rank) {
      low = middle + 1;
    } else {
      high = middle;
    }
  }
  return low;
}

void CommandMatchIndex::spread(size_t position) {
  // Widen a window of positions around the gap in front of `position` until
  // the ranks that bound it leave room for every member and one more, then
  // space the members evenly between those bounds. Ranks outside keep their
  // values, so every order stays as it was. At the end of the level the
  // bound is free.
  const size_t count = mLevel.size();
  for (size_t half = 1;; half *= 2) {
    const size_t low = position > half ? position - half : 0;
    const size_t high = std::min(count - 1, position + half - 1);
    const uint64_t members = high - low + 1;
    const uint64_t leftBound = low > 0 ? mLevel[low - 1]->rank : 0;
    const uint64_t rightBound =
        high + 1 < count ? mLevel[high + 1]->rank : mLevel[high]->rank + kSpacing * (members + 1);
    const uint64_t step = (rightBound - leftBound) / (members + 1);
    if (step < kMinimumGap) continue;
    for (uint64_t j = 0; j < members; ++j) mLevel[low + j]->rank = leftBound + step * (j + 1);
    return;
  }
}

uint64_t CommandMatchIndex::rankFor(size_t position) {
  if (position >= mLevel.size()) return (position > 0 ? mLevel[position - 1]->rank : 0) + kSpacing;
  auto bounds = [&](uint64_t& before, uint64_t& after) {
    before = position > 0 ? mLevel[position - 1]->rank : 0;
    after = mLevel[position]->rank;
  };
  uint64_t before = 0;
  uint64_t after = 0;
  bounds(before, after);
  if (after - before < 2) {
    spread(position);
    bounds(before, after);
  }
  return before + (after - before) / 2;
}

size_t CommandMatchIndex::firstComparable(const CiscoCommandLine* probe) const {
  auto bucket = mBuckets.find(signature(probe));
  if (bucket == mBuckets.end()) return npos;
  // The live commands stand in the level's order: the first that is
  // comparable is the answer.
  for (const Slot* candidate : bucket->second->live) {
    if (candidate->record->isComparable(probe)) return positionOf(candidate->rank);
  }
  return npos;
}

size_t CommandMatchIndex::firstNoable(const CiscoCommandLine* probe) const {
  const auto& path = probe->getTreeNodes();
  if (path.empty() || path.front().words.count("\n") > 0) {
    // Such a probe may negate commands of any start: scan.
    for (size_t i = 0; i < mLevel.size(); ++i) {
      if (mLevel[i]->record->isNoable(probe)) return i;
    }
    return npos;
  }
  // The candidates, in level order: commands starting at the probe's first
  // node, and those whose first element ends a line.
  static const RankSet kNone;
  auto same = mByFirstNode.find(path.front().node);
  const RankSet& first = same == mByFirstNode.end() ? kNone : same->second;
  auto a = first.begin();
  auto b = mEndsAtOnce.begin();
  while (a != first.end() || b != mEndsAtOnce.end()) {
    const bool takeA = b == mEndsAtOnce.end() || (a != first.end() && (*a)->rank < (*b)->rank);
    const Slot* candidate = takeA ? *a++ : *b++;
    if (candidate->record->isNoable(probe)) return positionOf(candidate->rank);
  }
  return npos;
}

CommandMatchIndex::Run CommandMatchIndex::walkRun(size_t at, const CiscoCommandLine* probe) const {
  Run run;
  const Slot& start = *mLevel[at];
  const Bucket& bucket = *start.bucket;
  auto stop = bucket.stops.lower_bound(start.rank);
  // Every run ends at a stop: the last live command of a level has no
  // successor to continue it.
  const uint64_t lastRank = stop == bucket.stops.end() ? start.rank : (*stop)->rank;
  uint64_t limit = lastRank;
  bool beforeEqual = false;
  auto sameText = bucket.byText.find(probe->getCurrentCommand());
  if (sameText != bucket.byText.end()) {
    auto equal = sameText->second.lower_bound(start.rank);
    if (equal != sameText->second.end() && (*equal)->rank <= lastRank) {
      run.equal = positionOf((*equal)->rank);
      limit = (*equal)->rank;
      beforeEqual = true;
    }
  }
  const RankSet& other = probe->hasFlags(CMDBIT_NO) ? bucket.positive : bucket.negated;
  for (auto it = other.lower_bound(start.rank); it != other.end(); ++it) {
    const uint64_t rank = (*it)->rank;
    if (rank > limit || (beforeEqual && rank == limit)) break;
    run.otherSign.push_back(positionOf(rank));
  }
  run.end = positionOf(lastRank) + 1;
  return run;
}

void CommandMatchIndex::insert(size_t position, CiscoCommandLine* record) {
  const uint64_t rank = rankFor(position);
  mCommitted = false;
  auto data = std::make_unique<Slot>();
  data->record = record;
  data->rank = rank;
  describe(*data);
  Slot& entered = *data;
  mLevel.insert(position, data.get());
  mSlots[record] = std::move(data);
  if (entered.live) enterLive(entered, false);
  updateRun(position);
  if (position > 0) updateRun(position - 1);
}

void CommandMatchIndex::refresh(size_t position) {
  Slot& data = *mLevel[position];
  if (data.live) leaveLive(data);
  describe(data);
  if (data.live) enterLive(data, false);
  updateRun(position);
  if (position > 0) updateRun(position - 1);
}

void CommandMatchIndex::removed(CiscoCommandLine* record) {
  Slot& data = slot(record);
  if (!data.live) return;
  leaveLive(data);
  data.live = false;
  const size_t position = positionOf(data.rank);
  if (position > 0) updateRun(position - 1);
}

}  // namespace qxparser
