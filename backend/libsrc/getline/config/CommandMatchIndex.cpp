// First-match lookups and comparable runs over one nesting level of commands.
#include "config/CommandMatchIndex.h"

#include <algorithm>
#include <functional>

#include "grammar/ParserTreeNode.h"

namespace qxparser {

namespace {

constexpr uint64_t kSpacing = uint64_t{1} << 24;
constexpr uint64_t kMinimumGap = uint64_t{1} << 8;
// A bucket with this many live commands looks texts up in a table.
constexpr uint32_t kTextTableFrom = 8;
// A level with fewer commands is scanned.
constexpr size_t kIndexFrom = 8;

template <typename T>
void appendRaw(std::string& key, T value) {
  key.append(reinterpret_cast<const char*>(&value), sizeof value);
}

uint64_t mix(uint64_t hash, uint64_t value) {
  uint64_t x = hash ^ (value + 0x9e3779b97f4a7c15ULL + (hash << 6) + (hash >> 2));
  x ^= x >> 30;
  x *= 0xbf58476d1ce4e5b9ULL;
  x ^= x >> 27;
  x *= 0x94d049bb133111ebULL;
  return x ^ (x >> 31);
}

bool isKey(const CmdPathEntry& entry) { return entry.node && entry.node->hasFlag(NODE_FLAG_K); }

size_t nextKey(CmdPathView path, size_t from) {
  while (from < path.size() && !isKey(path[from])) ++from;
  return from;
}

uint64_t textHash(std::string_view text) { return std::hash<std::string_view>{}(text); }

}  // namespace

std::string CommandMatchIndex::signature(const CiscoCommandLine* command) {
  // Fixed-size fields and length-prefixed words: equal keys mean equal
  // positions, nodes and word sets of the key elements.
  std::string key;
  uint32_t position = 0;
  for (const CmdPathEntry& entry : command->getTreeNodes()) {
    if (isKey(entry)) {
      appendRaw(key, position);
      appendRaw(key, entry.node);
      appendRaw(key, static_cast<uint32_t>(entry.words.size()));
      for (std::string_view word : entry.words) {
        appendRaw(key, static_cast<uint32_t>(word.size()));
        key += word;
      }
    }
    ++position;
  }
  return key;
}

uint64_t CommandMatchIndex::keyHash(const CiscoCommandLine* command) {
  const CmdPathView path = command->getTreeNodes();
  uint64_t hash = 0;
  for (size_t i = nextKey(path, 0); i < path.size(); i = nextKey(path, i + 1)) {
    hash = mix(hash, i);
    hash = mix(hash, reinterpret_cast<uintptr_t>(path[i].node));
    hash = mix(hash, path[i].words.size());
    for (std::string_view word : path[i].words) hash = mix(hash, textHash(word));
  }
  return hash;
}

bool CommandMatchIndex::sameKey(const CiscoCommandLine* a, const CiscoCommandLine* b) {
  const CmdPathView left = a->getTreeNodes();
  const CmdPathView right = b->getTreeNodes();
  size_t i = nextKey(left, 0);
  size_t j = nextKey(right, 0);
  for (; i < left.size() && j < right.size(); i = nextKey(left, i + 1), j = nextKey(right, j + 1)) {
    if (i != j || left[i].node != right[j].node || left[i].words != right[j].words) return false;
  }
  return i == left.size() && j == right.size();
}

void CommandMatchIndex::GapList::moveGap(size_t position) {
  Spill& held = *mSpill;
  std::vector<uint32_t>& data = held.data;
  if (position < held.gapBegin) {
    std::move_backward(data.begin() + static_cast<std::ptrdiff_t>(position),
                       data.begin() + static_cast<std::ptrdiff_t>(held.gapBegin),
                       data.begin() + static_cast<std::ptrdiff_t>(held.gapEnd));
    held.gapEnd -= static_cast<uint32_t>(held.gapBegin - position);
    held.gapBegin = static_cast<uint32_t>(position);
  } else if (position > held.gapBegin) {
    const uint32_t shift = static_cast<uint32_t>(position - held.gapBegin);
    std::move(data.begin() + static_cast<std::ptrdiff_t>(held.gapEnd),
              data.begin() + static_cast<std::ptrdiff_t>(held.gapEnd + shift),
              data.begin() + static_cast<std::ptrdiff_t>(held.gapBegin));
    held.gapBegin += shift;
    held.gapEnd += shift;
  }
}

bool CommandMatchIndex::GapList::spill(uint32_t value) {
  if (spilled()) return true;
  if (mOne == kNone) {
    mOne = value;
    return false;
  }
  Spill& held = block();
  held.data.push_back(mOne);
  mOne = kNone;
  held.gapBegin = held.gapEnd = 1;
  return true;
}

void CommandMatchIndex::GapList::push_back(uint32_t value) {
  if (!spill(value)) return;
  Spill& held = *mSpill;
  if (held.gapBegin == held.gapEnd) {
    // No gap: a plain vector.
    held.data.push_back(value);
    held.gapBegin = held.gapEnd = static_cast<uint32_t>(held.data.size());
    return;
  }
  insert(size(), value);
}

void CommandMatchIndex::GapList::insert(size_t position, uint32_t value) {
  if (!spill(value)) return;
  Spill& held = *mSpill;
  if (held.gapBegin == held.gapEnd) {
    if (position == held.data.size()) {
      push_back(value);
      return;
    }
    // No room: lay the list out again with a gap at the insertion.
    const size_t count = size();
    const size_t gap = count / 4 + 4;
    std::vector<uint32_t> wider(count + gap, kNone);
    for (size_t i = 0; i < count; ++i) wider[i < position ? i : i + gap] = (*this)[i];
    held.data.swap(wider);
    held.gapBegin = static_cast<uint32_t>(position);
    held.gapEnd = static_cast<uint32_t>(position + gap);
  } else {
    moveGap(position);
  }
  held.data[held.gapBegin++] = value;
  if (held.gapBegin == held.gapEnd) held.gapBegin = held.gapEnd = static_cast<uint32_t>(held.data.size());
}

void CommandMatchIndex::GapList::erase(size_t position) {
  if (!spilled()) {
    mOne = kNone;
    return;
  }
  moveGap(position);
  ++mSpill->gapEnd;
}

CommandMatchIndex::KeySet::KeySet(const std::vector<CiscoCommandLine*>& commands) {
  mKeys.reserve(commands.size());
  for (const CiscoCommandLine* command : commands) {
    if (!command->hasFlags(CMDBIT_REMOVED) && !command->getTreeNodes().empty()) {
      mKeys.emplace_back(keyHash(command), command);
    }
  }
  std::sort(mKeys.begin(), mKeys.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
}

CommandMatchIndex::KeySet::KeySet(std::vector<std::pair<uint64_t, const CiscoCommandLine*>> keys)
    : mKeys(std::move(keys)) {
  // Only the order of the hashes matters to the lookups.
  std::sort(mKeys.begin(), mKeys.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
}

bool CommandMatchIndex::KeySet::containsKeyOf(const CiscoCommandLine* probe, uint64_t hash) const {
  auto at = std::lower_bound(mKeys.begin(), mKeys.end(), hash,
                             [](const auto& entry, uint64_t key) { return entry.first < key; });
  for (; at != mKeys.end() && at->first == hash; ++at) {
    if (sameKey(at->second, probe)) return true;
  }
  return false;
}

CommandMatchIndex::CommandMatchIndex(std::vector<CiscoCommandLine*>& commands) : mCommands(commands) {
  const size_t count = mCommands.size();
  mSlots.reserve(count);
  mLevel.reserve(count);
  for (size_t i = 0; i < count; ++i) {
    const uint32_t id = static_cast<uint32_t>(mSlots.size());
    mSlots.emplace_back();
    mSlots[id].record = mCommands[i];
    mSlots[id].rank = (i + 1) * kSpacing;
    mLevel.push_back(id);
  }
  if (count >= kIndexFrom) buildIndex();
}

void CommandMatchIndex::buildIndex() {
  mIndexed = true;
  const size_t count = mLevel.size();
  mBuckets.reserve(count + count / 8);
  size_t tableSize = 16;
  while (tableSize < 2 * count + 2) tableSize *= 2;
  mBucketTable.assign(tableSize, kNone);
  mGiven.reserve(count);
  for (size_t i = 0; i < count; ++i) {
    const uint32_t id = mLevel[i];
    mGiven.emplace_back(mSlots[id].record, id);
    describe(id);
    if (mSlots[id].live) enterLive(id, true);
  }
  std::sort(mGiven.begin(), mGiven.end(), [](const auto& a, const auto& b) {
    return std::less<const CiscoCommandLine*>()(a.first, b.first);
  });
  for (size_t i = 0; i < count; ++i) updateRun(i);
}

size_t CommandMatchIndex::scanComparable(const CiscoCommandLine* probe) const {
  for (size_t i = 0; i < mLevel.size(); ++i) {
    if (at(i)->isComparable(probe)) return i;
  }
  return npos;
}

size_t CommandMatchIndex::scanNoable(const CiscoCommandLine* probe) const {
  for (size_t i = 0; i < mLevel.size(); ++i) {
    if (at(i)->isNoable(probe)) return i;
  }
  return npos;
}

CommandMatchIndex::Run CommandMatchIndex::scanRun(size_t from, const CiscoCommandLine* probe) const {
  Run run;
  const bool negated = probe->hasFlags(CMDBIT_NO);
  size_t i = from;
  for (; i < mLevel.size() && at(i)->isComparable(probe); ++i) {
    if (at(i)->getCurrentCommand() == probe->getCurrentCommand()) {
      run.equal = i;
      break;
    }
    if (at(i)->hasFlags(CMDBIT_NO) != negated) run.otherSign.push_back(i);
  }
  if (run.equal != npos) {
    while (i < mLevel.size() && at(i)->isComparable(probe)) ++i;
  }
  run.end = i;
  return run;
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
  for (size_t i = 0; i < mLevel.size(); ++i) level.push_back(mSlots[mLevel[i]].record);
  mCommands.swap(level);
  mCommitted = true;
}

size_t CommandMatchIndex::slotOf(const CiscoCommandLine* record) const {
  const auto given = std::lower_bound(mGiven.begin(), mGiven.end(), record,
                                      [](const auto& entry, const CiscoCommandLine* key) {
                                        return std::less<const CiscoCommandLine*>()(entry.first, key);
                                      });
  if (given != mGiven.end() && given->first == record) return given->second;
  return mInserted.at(record);
}

size_t CommandMatchIndex::lowerBound(const GapList& list, uint64_t rank) const {
  size_t low = 0;
  size_t high = list.size();
  while (low < high) {
    const size_t middle = low + (high - low) / 2;
    if (mSlots[list[middle]].rank < rank) {
      low = middle + 1;
    } else {
      high = middle;
    }
  }
  return low;
}

void CommandMatchIndex::enterList(GapList& list, uint32_t id, bool atEnd) {
  if (atEnd || list.empty() || mSlots[list[list.size() - 1]].rank < mSlots[id].rank) {
    list.push_back(id);
  } else {
    list.insert(lowerBound(list, mSlots[id].rank), id);
  }
}

void CommandMatchIndex::leaveList(GapList& list, uint32_t id) {
  const size_t at = lowerBound(list, mSlots[id].rank);
  if (at < list.size() && list[at] == id) list.erase(at);
}

uint32_t CommandMatchIndex::findBucket(const CiscoCommandLine* probe, uint64_t hash) const {
  const size_t mask = mBucketTable.size() - 1;
  for (size_t at = hash & mask;; at = (at + 1) & mask) {
    const uint32_t id = mBucketTable[at];
    if (id == kNone) return kNone;
    const Bucket& bucket = mBuckets[id];
    if (bucket.hash == hash && bucket.liveCount > 0 && sameKey(mSlots[bucket.representative].record, probe)) {
      return id;
    }
  }
}

uint32_t CommandMatchIndex::bucketFor(const CiscoCommandLine* record) {
  const uint64_t hash = keyHash(record);
  const uint32_t found = findBucket(record, hash);
  if (found != kNone) return found;
  if (2 * (mBuckets.size() + 1) > mBucketTable.size()) {
    // Keep the table at most half full.
    std::vector<uint32_t> wider(mBucketTable.size() * 2, kNone);
    const size_t mask = wider.size() - 1;
    for (uint32_t id : mBucketTable) {
      if (id == kNone) continue;
      size_t at = mBuckets[id].hash & mask;
      while (wider[at] != kNone) at = (at + 1) & mask;
      wider[at] = id;
    }
    mBucketTable.swap(wider);
  }
  const uint32_t id = static_cast<uint32_t>(mBuckets.size());
  mBuckets.emplace_back();
  mBuckets[id].hash = hash;
  const size_t mask = mBucketTable.size() - 1;
  size_t at = hash & mask;
  while (mBucketTable[at] != kNone) at = (at + 1) & mask;
  mBucketTable[at] = id;
  return id;
}

uint32_t CommandMatchIndex::firstMember(const Bucket& bucket) const {
  if (bucket.negated.empty()) return bucket.positive.empty() ? kNone : bucket.positive[0];
  if (bucket.positive.empty()) return bucket.negated[0];
  const uint32_t a = bucket.negated[0];
  const uint32_t b = bucket.positive[0];
  return mSlots[a].rank < mSlots[b].rank ? a : b;
}

void CommandMatchIndex::describe(uint32_t id) {
  Slot& data = mSlots[id];
  const CiscoCommandLine* record = data.record;
  const CmdPathView path = record->getTreeNodes();
  data.live = !record->hasFlags(CMDBIT_REMOVED) && !path.empty();
  data.bucket = kNone;
  data.negated = record->hasFlags(CMDBIT_NO);
  data.firstNode = path.empty() ? nullptr : path.front().node;
  data.endsAtOnce = !path.empty() && path.front().words.count("\n") > 0;
  if (!data.live) return;
  data.textHash = textHash(record->getCurrentCommand());
  const uint32_t bucket = bucketFor(record);
  mSlots[id].bucket = bucket;
}

template <typename Visit>
uint32_t CommandMatchIndex::firstInOrder(const Bucket& bucket, Visit visit) const {
  size_t a = 0;
  size_t b = 0;
  while (a < bucket.negated.size() || b < bucket.positive.size()) {
    const bool takeA =
        b == bucket.positive.size() ||
        (a < bucket.negated.size() && mSlots[bucket.negated[a]].rank < mSlots[bucket.positive[b]].rank);
    const uint32_t member = takeA ? bucket.negated[a++] : bucket.positive[b++];
    if (visit(member)) return member;
  }
  return kNone;
}

void CommandMatchIndex::buildTextTable(Bucket& bucket) {
  bucket.byText = std::make_unique<TextTable>();
  firstInOrder(bucket, [this, &bucket](uint32_t member) {
    (*bucket.byText)[mSlots[member].textHash].push_back(member);
    return false;
  });
}

void CommandMatchIndex::enterLive(uint32_t id, bool atEnd) {
  const Slot& data = mSlots[id];
  Bucket& bucket = mBuckets[data.bucket];
  if (bucket.liveCount++ == 0) bucket.representative = id;
  enterList(data.negated ? bucket.negated : bucket.positive, id, atEnd);
  enterList(data.endsAtOnce ? mEndsAtOnce : mByFirstNode[data.firstNode], id, atEnd);
  if (bucket.byText) {
    enterList((*bucket.byText)[data.textHash], id, atEnd);
  } else if (bucket.liveCount >= kTextTableFrom) {
    buildTextTable(bucket);
  }
}

void CommandMatchIndex::leaveLive(uint32_t id) {
  Slot& data = mSlots[id];
  if (data.endsAtOnce) {
    leaveList(mEndsAtOnce, id);
  } else {
    auto start = mByFirstNode.find(data.firstNode);
    if (start != mByFirstNode.end()) leaveList(start->second, id);
  }
  Bucket& bucket = mBuckets[data.bucket];
  if (data.stop) leaveList(bucket.stops, id);
  data.stop = false;
  leaveList(data.negated ? bucket.negated : bucket.positive, id);
  if (bucket.byText) {
    auto sameText = bucket.byText->find(data.textHash);
    if (sameText != bucket.byText->end()) {
      leaveList(sameText->second, id);
      if (sameText->second.empty()) bucket.byText->erase(sameText);
    }
  }
  --bucket.liveCount;
  // The record may have changed already: its key no longer speaks for the bucket.
  if (bucket.representative == id) bucket.representative = firstMember(bucket);
  data.bucket = kNone;
}

void CommandMatchIndex::updateRun(size_t position) {
  const uint32_t id = mLevel[position];
  Slot& data = mSlots[id];
  if (!data.live) return;
  bool continues = false;
  if (position + 1 < mLevel.size()) {
    const Slot& next = mSlots[mLevel[position + 1]];
    continues = next.live && next.bucket == data.bucket;
  }
  if (continues == !data.stop) return;
  data.stop = !continues;
  if (continues) {
    leaveList(mBuckets[data.bucket].stops, id);
  } else {
    enterList(mBuckets[data.bucket].stops, id, false);
  }
}

size_t CommandMatchIndex::positionOf(uint64_t rank) const { return lowerBound(mLevel, rank); }

void CommandMatchIndex::spread(size_t position) {
  // Widen a window of positions around the gap in front of `position` until
  // the ranks that bound it leave room for every member and one more, then
  // space the members evenly between those bounds. Ranks outside keep their
  // values, so every order stays as it was. At the end of the level the
  // bound is free.
  const size_t count = mLevel.size();
  auto rank = [this](size_t at) -> uint64_t& { return mSlots[mLevel[at]].rank; };
  for (size_t half = 1;; half *= 2) {
    const size_t low = position > half ? position - half : 0;
    const size_t high = std::min(count - 1, position + half - 1);
    const uint64_t members = high - low + 1;
    const uint64_t leftBound = low > 0 ? rank(low - 1) : 0;
    const uint64_t rightBound = high + 1 < count ? rank(high + 1) : rank(high) + kSpacing * (members + 1);
    const uint64_t step = (rightBound - leftBound) / (members + 1);
    if (step < kMinimumGap) continue;
    for (uint64_t j = 0; j < members; ++j) rank(low + j) = leftBound + step * (j + 1);
    return;
  }
}

uint64_t CommandMatchIndex::rankFor(size_t position) {
  auto rank = [this](size_t at) { return mSlots[mLevel[at]].rank; };
  if (position >= mLevel.size()) return (position > 0 ? rank(position - 1) : 0) + kSpacing;
  uint64_t before = position > 0 ? rank(position - 1) : 0;
  uint64_t after = rank(position);
  if (after - before < 2) {
    spread(position);
    before = position > 0 ? rank(position - 1) : 0;
    after = rank(position);
  }
  return before + (after - before) / 2;
}

uint64_t CommandMatchIndex::keyHashAt(size_t position) const {
  const Slot& slot = mSlots[mLevel[position]];
  if (mIndexed && slot.live) return mBuckets[slot.bucket].hash;
  return keyHash(slot.record);
}

size_t CommandMatchIndex::firstComparable(const CiscoCommandLine* probe, uint64_t probeHash) const {
  if (!mIndexed) return scanComparable(probe);
  const uint32_t found = findBucket(probe, probeHash);
  if (found == kNone) return npos;
  // The live commands stand in the level's order: the first that is
  // comparable is the answer.
  const uint32_t first = firstInOrder(mBuckets[found], [this, probe](uint32_t member) {
    return mSlots[member].record->isComparable(probe);
  });
  return first == kNone ? npos : positionOf(mSlots[first].rank);
}

size_t CommandMatchIndex::firstNoable(const CiscoCommandLine* probe) const {
  const auto& path = probe->getTreeNodes();
  // A probe without a path, or one whose path starts with the end of a line,
  // may negate commands of any start: scan.
  if (!mIndexed || path.empty() || path.front().words.count("\n") > 0) return scanNoable(probe);
  // The candidates, in level order: commands starting at the probe's first
  // node, and those whose first element ends a line.
  static const GapList kEmpty;
  auto same = mByFirstNode.find(path.front().node);
  const GapList& first = same == mByFirstNode.end() ? kEmpty : same->second;
  size_t a = 0;
  size_t b = 0;
  while (a < first.size() || b < mEndsAtOnce.size()) {
    const bool takeA =
        b == mEndsAtOnce.size() || (a < first.size() && mSlots[first[a]].rank < mSlots[mEndsAtOnce[b]].rank);
    const Slot& candidate = mSlots[takeA ? first[a++] : mEndsAtOnce[b++]];
    if (candidate.record->isNoable(probe)) return positionOf(candidate.rank);
  }
  return npos;
}

CommandMatchIndex::Run CommandMatchIndex::walkRun(size_t at, const CiscoCommandLine* probe) const {
  if (!mIndexed) return scanRun(at, probe);
  Run run;
  const Slot& start = mSlots[mLevel[at]];
  const Bucket& bucket = mBuckets[start.bucket];
  const size_t stop = lowerBound(bucket.stops, start.rank);
  // Every run ends at a stop: the last live command of a level has no
  // successor to continue it.
  const uint64_t lastRank = stop == bucket.stops.size() ? start.rank : mSlots[bucket.stops[stop]].rank;
  const size_t last = positionOf(lastRank);
  const std::string& text = probe->getCurrentCommand();
  if (bucket.byText) {
    auto sameText = bucket.byText->find(textHash(text));
    if (sameText != bucket.byText->end()) {
      const GapList& list = sameText->second;
      for (size_t i = lowerBound(list, start.rank); i < list.size(); ++i) {
        const Slot& candidate = mSlots[list[i]];
        if (candidate.rank > lastRank) break;
        if (candidate.record->getCurrentCommand() == text) {
          run.equal = positionOf(candidate.rank);
          break;
        }
      }
    }
  } else {
    // A small bucket: its run is read directly.
    for (size_t i = at; i <= last; ++i) {
      if (this->at(i)->getCurrentCommand() == text) {
        run.equal = i;
        break;
      }
    }
  }
  const size_t limit = run.equal == npos ? last + 1 : run.equal;
  const bool negated = probe->hasFlags(CMDBIT_NO);
  const GapList& other = negated ? bucket.positive : bucket.negated;
  if (!other.empty()) {
    for (size_t i = lowerBound(other, start.rank); i < other.size(); ++i) {
      const size_t position = positionOf(mSlots[other[i]].rank);
      if (position >= limit) break;
      run.otherSign.push_back(position);
    }
  }
  run.end = last + 1;
  return run;
}

void CommandMatchIndex::insert(size_t position, CiscoCommandLine* record) {
  const uint64_t rank = rankFor(position);
  mCommitted = false;
  const uint32_t id = static_cast<uint32_t>(mSlots.size());
  mSlots.emplace_back();
  mSlots[id].record = record;
  mSlots[id].rank = rank;
  mLevel.insert(position, id);
  if (!mIndexed) {
    if (mLevel.size() >= kIndexFrom) buildIndex();
    return;
  }
  mInserted[record] = id;
  describe(id);
  if (mSlots[id].live) enterLive(id, false);
  updateRun(position);
  if (position > 0) updateRun(position - 1);
}

void CommandMatchIndex::refresh(size_t position) {
  if (!mIndexed) return;
  const uint32_t id = mLevel[position];
  if (mSlots[id].live) leaveLive(id);
  describe(id);
  if (mSlots[id].live) enterLive(id, false);
  updateRun(position);
  if (position > 0) updateRun(position - 1);
}

void CommandMatchIndex::removed(CiscoCommandLine* record) {
  if (!mIndexed) return;
  const uint32_t id = static_cast<uint32_t>(slotOf(record));
  if (!mSlots[id].live) return;
  leaveLive(id);
  mSlots[id].live = false;
  const size_t position = positionOf(mSlots[id].rank);
  if (position > 0) updateRun(position - 1);
}

}  // namespace qxparser
