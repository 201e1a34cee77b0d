#include "config/CiscoCommandLine.h"

#include <algorithm>
#include <climits>
#include <cstdint>
#include <memory>
#include <new>
#include <stdexcept>
#include <utility>

#include "grammar/ParserTreeNode.h"
#include "toolkit/ParserToolCase.h"

namespace qxparser {

namespace {

const std::string kEndWord = "\n";
// Nodes on the path of a typical command.
constexpr size_t kUsualPathLength = 4;
// The most room a path's hint reserves at once.
constexpr size_t kLongPathHint = 64;

bool nodeHas(const ParserTreeNode* node, uint32_t flag) { return node && node->hasFlag(flag); }

}  // namespace

CiscoCommandLine::CiscoCommandLine() : flags(0), flag(CMD_ADDITIVE), mCurrentIsOriginal(false) {}

void CiscoCommandLine::setLevel(int value) {
  if (value < INT16_MIN || value > INT16_MAX) throw std::out_of_range("mode level out of range");
  level = static_cast<int16_t>(value);
}

CiscoCommandLine::CiscoCommandLine(const CiscoCommandLine& other)
    : orderNo(other.orderNo),
      majorCmdStr(other.majorCmdStr),
      originalCmd(other.originalCmd),
      flags(other.flags),
      flag(other.flag),
      mCurrentIsOriginal(other.mCurrentIsOriginal),
      level(other.level),
      mRawText(other.mRawText) {
  copyPathFrom(other);
  copyTexts(other);
  for (CiscoCommandLine* child : other.childCommands) {
    auto copy = std::make_unique<CiscoCommandLine>(*child);
    childCommands.push_back(copy.release());
  }
  if (!other.mRare || !other.mRare->subCommands) return;
  for (auto& entry : *other.mRare->subCommands) {
    auto copy = std::make_unique<CiscoCommandLine>(*entry.second);
    copy->parentCommand = this;
    ownSubCommands()[entry.first] = copy.release();
  }
}

CiscoCommandLine& CiscoCommandLine::operator=(const CiscoCommandLine& other) {
  if (this == &other) return *this;
  level = other.level;
  majorCmdStr = other.majorCmdStr;
  originalCmd = other.originalCmd;
  flag = other.flag;
  orderNo = other.orderNo;
  flags = other.flags;
  mCurrentIsOriginal = other.mCurrentIsOriginal;
  copyPathFrom(other);
  mRawText = other.mRawText;
  copyTexts(other);
  if (!other.mRare || !other.mRare->subCommands) return *this;
  for (auto& entry : *other.mRare->subCommands) {
    if (ownSubCommands().count(entry.first)) continue;  // an existing entry stays
    auto copy = std::make_unique<CiscoCommandLine>(*entry.second);
    copy->parentCommand = this;
    ownSubCommands()[entry.first] = copy.release();
  }
  return *this;
}

CiscoCommandLine::~CiscoCommandLine() {
  clearPath(false);
  if (!mRare || !mRare->subCommands) return;
  for (auto& entry : *mRare->subCommands) delete entry.second;
}

const std::string& CiscoCommandLine::noText() {
  static const std::string kNone;
  return kNone;
}

void CiscoCommandLine::reservePath(size_t nodes) {
  // A hint (the words left on the line): a line of many words repeats its
  // nodes, so a long hint is cut and the path grows by itself if need be.
  nodes = std::min(nodes, kLongPathHint);
  if (nodes > mPathCapacity) regrowPath(nodes);
}

void CiscoCommandLine::regrowPath(size_t capacity) {
  if (capacity > UINT16_MAX) throw std::length_error("command path longer than 65535 grammar nodes");
  auto* block = static_cast<CmdPathEntry*>(::operator new(capacity * sizeof(CmdPathEntry)));
  for (uint16_t i = 0; i < mPathSize; ++i) {
    ::new (static_cast<void*>(block + i)) CmdPathEntry(std::move(mPath[i]));
    mPath[i].~CmdPathEntry();
  }
  ::operator delete(mPath);
  mPath = block;
  mPathCapacity = static_cast<uint16_t>(capacity);
}

CmdPathEntry& CiscoCommandLine::appendPathEntry() {
  if (mPathSize == mPathCapacity) {
    // Most paths are a handful of nodes long: room for them at once.
    regrowPath(mPathCapacity == 0 ? kUsualPathLength : 2 * static_cast<size_t>(mPathCapacity));
  }
  CmdPathEntry* entry = ::new (static_cast<void*>(mPath + mPathSize)) CmdPathEntry();
  ++mPathSize;
  return *entry;
}

void CiscoCommandLine::clearPath(bool keep) {
  for (uint16_t i = 0; i < mPathSize; ++i) mPath[i].~CmdPathEntry();
  mPathSize = 0;
  if (keep) return;
  ::operator delete(mPath);
  mPath = nullptr;
  mPathCapacity = 0;
}

void CiscoCommandLine::copyPathFrom(const CiscoCommandLine& other) {
  if (this == &other) return;
  clearPath(true);
  reservePath(other.mPathSize);
  for (uint16_t i = 0; i < other.mPathSize; ++i) {
    ::new (static_cast<void*>(mPath + i)) CmdPathEntry(other.mPath[i]);
    ++mPathSize;
  }
}

void CiscoCommandLine::copyTexts(const CiscoCommandLine& other) {
  const Rare* theirs = other.mRare.get();
  const bool str = theirs && theirs->originalStr;
  const bool read = theirs && theirs->readForm;
  const bool current = theirs && !theirs->currentCommand.empty();
  if (!str && !read && !current) {
    if (mRare) {
      mRare->currentCommand.clear();
      mRare->originalStr.reset();
      mRare->readForm.reset();
    }
    return;
  }
  Rare& mine = rare();
  mine.currentCommand = current ? theirs->currentCommand : std::string();
  mine.originalStr = str ? std::make_unique<std::string>(*theirs->originalStr) : nullptr;
  mine.readForm = read ? std::make_unique<std::string>(*theirs->readForm) : nullptr;
}

const std::map<ParserTreeNode*, CiscoCommandLine*>& CiscoCommandLine::getSubCommands() const {
  static const SubCommands kNone;
  return mRare && mRare->subCommands ? *mRare->subCommands : kNone;
}

CiscoCommandLine::SubCommands& CiscoCommandLine::ownSubCommands() {
  Rare& held = rare();
  if (!held.subCommands) held.subCommands = std::make_unique<SubCommands>();
  return *held.subCommands;
}

void CiscoCommandLine::setMajorCommands(const std::string& text) {
  if (text.empty()) {
    majorCmdStr.reset();
  } else {
    majorCmdStr = SharedText(text);
  }
}

const std::string& CiscoCommandLine::getOriginalStr() const {
  return mRare && mRare->originalStr ? *mRare->originalStr : noText();
}

void CiscoCommandLine::setOriginalStr(const std::string& text) {
  if (mRare && mRare->originalStr) {
    *mRare->originalStr = text;
  } else if (!text.empty()) {
    rare().originalStr = std::make_unique<std::string>(text);
  }
}


std::vector<std::string> CiscoCommandLine::getMajorCommands() const {
  std::vector<std::string> out;
  if (majorCmdStr) ParserToolCase::splitString(*majorCmdStr, "\r\n", out);
  return out;
}

void CiscoCommandLine::getAllChildCommands(std::vector<CiscoCommandLine*>& out) const {
  for (CiscoCommandLine* child : childCommands) {
    out.push_back(child);
    child->getAllChildCommands(out);
  }
}

void CiscoCommandLine::setFlags(unsigned int bits, bool recursive) {
  flags |= bits;
  if (!recursive) return;
  if (!mRare || !mRare->subCommands) return;
  for (auto& entry : *mRare->subCommands) entry.second->setFlags(bits, true);
}

void CiscoCommandLine::setNoCompleteCmd(bool value) {
  for (CiscoCommandLine* cmd = this; cmd; cmd = cmd->parentCommand) {
    if (value) {
      cmd->flags |= CMDBIT_NO_COMPLETE;
    } else {
      cmd->flags &= ~CMDBIT_NO_COMPLETE;
    }
    if (!(cmd->flags & CMDBIT_SUB)) break;
  }
}

void CiscoCommandLine::setParentCommand(CiscoCommandLine* parent, bool addToChildren) {
  parentCommand = parent;
  if (parent && addToChildren) parent->childCommands.push_back(this);
}

void CiscoCommandLine::flagTheCmd() { flag = ParserToolCase::getCmdFlag(getCurrentCommand()); }

void CiscoCommandLine::clearVisitedOption() {
  orderNo = 0;
  flags = 0;
  parentCommand = nullptr;
  clearPath(true);
  // Nested commands of a dropped walk would otherwise receive the words of
  // the next attempt at another level.
  if (!mRare) return;
  if (mRare->subCommands) {
    for (auto& entry : *mRare->subCommands) delete entry.second;
    mRare->subCommands.reset();
  }
  mRare->currentSubCommand = nullptr;
}

void CiscoCommandLine::delOnlyChildCmds() {
  for (CiscoCommandLine* child : childCommands) {
    child->delOnlyChildCmds();
    delete child;
  }
  childCommands.clear();
}

void CiscoCommandLine::takeFlagFrom(const ParserTreeNode* node) {
  if (nodeHas(node, NODE_FLAG_A)) {
    flag = CMD_ADDITIVE;
  } else if (nodeHas(node, NODE_FLAG_O)) {
    flag = CMD_OVERWRITE;
  } else if (nodeHas(node, NODE_FLAG_M)) {
    flag = CMD_MERGEABLE;
  }
}

void CiscoCommandLine::enterNode(ParserTreeNode* node, const std::string& word) {
  for (CmdPathEntry* at = mPath; at != pathEnd(); ++at) {
    CmdPathEntry& entry = *at;
    if (entry.node != node) continue;
    if (node->hasFlag(NODE_FLAG_WA) && !entry.words.empty()) {
      // Prose keeps its typed order: the words join the first one.
      std::string joined = std::string(*entry.words.begin()) + " " + word;
      entry.words.erase(entry.words.begin());
      entry.words.insert(std::move(joined));
    } else {
      entry.words.insert(word);
    }
    return;
  }
  // Made in place: an element moved in would cost a move and a destruction.
  CmdPathEntry& entry = appendPathEntry();
  entry.node = node;
  entry.words.insert(word);
}

void CiscoCommandLine::addTreeNodes(ParserTreeNode* node, const std::string& word, bool isNo) {
  if (!node) return;
  if (node->mIsOption && mPathSize > 0 && node->mParent == mPath[mPathSize - 1].node) {
    SubCommands& subs = ownSubCommands();
    auto existing = subs.find(node);
    if (existing != subs.end()) {
      rare().currentSubCommand = existing->second;
      return;
    }
    auto sub = std::make_unique<CiscoCommandLine>();
    sub->parentCommand = this;
    sub->flags |= CMDBIT_SUB;
    if (isNo) sub->flags |= CMDBIT_NO;
    bool noComplete = !node->hasFlag(NODE_FLAG_N) || node->hasFlag(NODE_FLAG_NC);
    if (noComplete) {
      flags |= CMDBIT_NO_COMPLETE;
    } else {
      flags &= ~CMDBIT_NO_COMPLETE;
    }
    if ((flags & CMDBIT_SUB) && parentCommand) parentCommand->setNoCompleteCmd(noComplete);
    sub->takeFlagFrom(node);
    sub->enterNode(node, word);
    rare().currentSubCommand = sub.get();
    subs[node] = sub.release();
    return;
  }
  if (CiscoCommandLine* sub = currentSub()) {
    sub->addTreeNodes(node, word, isNo);
    return;
  }
  if (isNo) {
    flags |= CMDBIT_NO;
    if (mPathSize == 0) flags &= ~CMDBIT_STORED;
    if (node->hasFlag(NODE_FLAG_SN) || node->hasFlag(NODE_FLAG_SB)) flags |= CMDBIT_STORED;
    if (node->hasFlag(NODE_FLAG_NE)) flags |= CMDBIT_NO_ENDS_ANYWHERE;
    bool noComplete = !(flags & CMDBIT_NO_ENDS_ANYWHERE) &&
                      (!node->hasFlag(NODE_FLAG_N) || node->hasFlag(NODE_FLAG_NC));
    if (noComplete) {
      flags |= CMDBIT_NO_COMPLETE;
    } else {
      flags &= ~CMDBIT_NO_COMPLETE;
    }
    if ((flags & CMDBIT_SUB) && parentCommand) parentCommand->setNoCompleteCmd(noComplete);
  } else {
    if (mPathSize == 0) flags |= CMDBIT_STORED;
    if (node->hasFlag(NODE_FLAG_SN)) flags &= ~CMDBIT_STORED;
    if (node->hasFlag(NODE_FLAG_SB)) flags |= CMDBIT_STORED;
  }
  if (node->mEntersMode) flags |= CMDBIT_OPENS_MODE;
  if (node->hasFlag(NODE_FLAG_CF)) flags |= CMDBIT_CONFLICT;
  takeFlagFrom(node);
  enterNode(node, word);
}

const std::string& CiscoCommandLine::genCommandStr() {
  keepReadForm();
  keepCurrentCommand();
  originalCmd.clear();
  bool firstElement = true;
  for (const CmdPathEntry& entry : getTreeNodes()) {
    for (const auto& word : entry.words) {
      if (!firstElement) originalCmd += ' ';
      originalCmd += word;
    }
    firstElement = false;
  }
  for (auto& entry : getSubCommands()) {
    size_t newline = originalCmd.find('\n');
    if (newline != std::string::npos) originalCmd.erase(newline);
    originalCmd += ' ';
    originalCmd += entry.second->genCommandStr();
  }
  if (originalCmd.empty() || originalCmd.back() != '\n') originalCmd += '\n';
  return originalCmd;
}

bool CiscoCommandLine::isExactlyMatch(CiscoCommandLine* other) const {
  return other && getCurrentCommand() == other->getCurrentCommand();
}

bool CiscoCommandLine::isComparable(const CiscoCommandLine* other) const {
  const CmdPathView myPath = getTreeNodes();
  if (!other || (flags & CMDBIT_REMOVED) || myPath.empty()) return false;
  const CmdPathView theirPath = other->getTreeNodes();
  auto mine = myPath.begin();
  auto theirs = theirPath.begin();
  for (; mine != myPath.end() && theirs != theirPath.end(); ++mine, ++theirs) {
    if (!nodeHas(mine->node, NODE_FLAG_K) && !nodeHas(theirs->node, NODE_FLAG_K)) continue;
    if (mine->node != theirs->node || mine->words != theirs->words) return false;
  }
  for (; mine != myPath.end(); ++mine) {
    if (nodeHas(mine->node, NODE_FLAG_K)) return false;
  }
  for (; theirs != theirPath.end(); ++theirs) {
    if (nodeHas(theirs->node, NODE_FLAG_K)) return false;
  }
  return true;
}

bool CiscoCommandLine::isConflictWith(CiscoCommandLine* other) const {
  const CmdPathView myPath = getTreeNodes();
  if (!other || !(flags & CMDBIT_CONFLICT) || myPath.empty()) return false;
  const CmdPathView theirPath = other->getTreeNodes();
  auto theirs = theirPath.begin();
  for (auto mine = myPath.begin(); mine != myPath.end(); ++mine, ++theirs) {
    if (theirs == theirPath.end() || mine->node != theirs->node) return false;
    if (nodeHas(mine->node, NODE_FLAG_CF) && mine->words != theirs->words) return true;
  }
  return false;
}

bool CiscoCommandLine::isNoable(const CiscoCommandLine* no) const {
  const CmdPathView myPath = getTreeNodes();
  if (!no || (flags & CMDBIT_REMOVED) || myPath.empty()) return false;
  const CmdPathView theirPath = no->getTreeNodes();
  auto mine = myPath.begin();
  auto theirs = theirPath.begin();
  for (; mine != myPath.end() && theirs != theirPath.end(); ++mine, ++theirs) {
    if (mine->words.count(kEndWord) || theirs->words.count(kEndWord)) break;
    if (mine->node != theirs->node) return false;
    if (nodeHas(mine->node, NODE_FLAG_NE)) return true;
    bool compare = nodeHas(mine->node, NODE_FLAG_K) ||
                   (nodeHas(mine->node, NODE_FLAG_N) && !nodeHas(mine->node, NODE_FLAG_M));
    if (compare && mine->words != theirs->words) return false;
  }
  for (; theirs != theirPath.end(); ++theirs) {
    if (nodeHas(theirs->node, NODE_FLAG_N)) return false;
  }
  for (; mine != myPath.end(); ++mine) {
    if (nodeHas(mine->node, NODE_FLAG_NK)) return false;
  }
  return true;
}

bool CiscoCommandLine::mergeCommand(CiscoCommandLine* other) {
  if (!other || flag != CMD_MERGEABLE || other->flag != CMD_MERGEABLE) return true;
  const bool negated = (other->flags & CMDBIT_NO) != 0;
  const CmdPathView theirPath = other->getTreeNodes();
  CmdPathEntry* mine = mPath;
  auto theirs = theirPath.begin();
  for (; mine != pathEnd() && theirs != theirPath.end(); ++mine, ++theirs) {
    if (!nodeHas(theirs->node, NODE_FLAG_M) || nodeHas(theirs->node, NODE_FLAG_K) ||
        !nodeHas(mine->node, NODE_FLAG_M)) {
      continue;
    }
    if (!negated) {
      mine->words.insert(theirs->words.begin(), theirs->words.end());
    } else {
      for (const auto& word : theirs->words) mine->words.erase(word);
      if (mine->words.empty()) return false;
    }
  }
  bool nestedN = false;
  for (auto& entry : other->getSubCommands()) {
    ParserTreeNode* node = entry.first;
    CiscoCommandLine* theirsSub = entry.second;
    const bool hasN = nodeHas(node, NODE_FLAG_N);
    nestedN = nestedN || hasN;
    SubCommands& subs = ownSubCommands();
    auto found = subs.find(node);
    if (found == subs.end()) {
      if (!negated) {
        auto copy = std::make_unique<CiscoCommandLine>(*theirsSub);
        copy->parentCommand = this;
        subs[node] = copy.release();
      }
      continue;
    }
    CiscoCommandLine* mineSub = found->second;
    if (!negated) {
      if (theirsSub->flag == CMD_MERGEABLE) {
        mineSub->mergeCommand(theirsSub);
      } else {
        *mineSub = *theirsSub;
      }
      continue;
    }
    if (theirsSub->flag == CMD_MERGEABLE && !theirsSub->getSubCommands().empty() && mineSub->mergeCommand(theirsSub)) {
      continue;
    }
    if (hasN) {
      if (currentSub() == mineSub) rare().currentSubCommand = nullptr;
      mineSub->delOnlyChildCmds();
      delete mineSub;
      subs.erase(found);
    }
  }
  if (!negated) {
    genCommandStr();
    return true;
  }
  if (!nestedN && !theirPath.empty()) {
    auto last = theirPath.end();
    --last;
    bool options = last->node && !last->node->mOptions.empty();
    if (!options && last != theirPath.begin()) {
      --last;
      options = last->node && !last->node->mOptions.empty();
    }
    if (options) return false;
  }
  if (!nestedN || !getSubCommands().empty()) {
    genCommandStr();
    return true;
  }
  if (mPathSize > 0) {
    const CmdPathEntry& last = mPath[mPathSize - 1];
    if (last.words.count(kEndWord) || (last.node && last.node->mChildren.count(kEndWord))) {
      genCommandStr();
      return true;
    }
  }
  return false;
}

}  // namespace qxparser
