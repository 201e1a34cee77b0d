// The loader of definition files. The order of steps in addNodeLine and
// finishNode is what gives the grammar its shape (which map a child lands in,
// which parent is first, which back edges exist), so it follows the format's
// rules step by step; see DefinitionLoader.h for the format in short.
#include "grammar/DefinitionLoader.h"

#include <algorithm>
#include <fstream>
#include <memory>
#include <set>
#include <string_view>
#include <utility>

#include "grammar/DefinitionLine.h"
#include "grammar/HelpTextStore.h"
#include "grammar/NodeLookup.h"
#include "grammar/NodePool.h"
#include "grammar/ParserException.h"
#include "platform/Pathname.h"
#include "platform/PlatformOs.h"
#include "platform/QXFileSystem.h"
#include "platform/StlHelper.h"
#include "toolkit/ParserToolCase.h"
#include "toolkit/ToolkitText.h"

namespace qxparser {

std::map<std::string, KeyTable>& gKeyTables() {
  static auto* tables = new std::map<std::string, KeyTable>();
  return *tables;
}

std::map<std::string, ParserTreeNode*>& gSharedGrammars() {
  static auto* grammars = new std::map<std::string, ParserTreeNode*>();
  return *grammars;
}

std::map<ParserTreeNode*, std::string>& gPromptSuffixes() {
  static auto* suffixes = new std::map<ParserTreeNode*, std::string>();
  return *suffixes;
}

std::vector<std::string>& gModeFileNames() {
  static auto* names = new std::vector<std::string>();
  return *names;
}

void clearLoaderTables() {
  gKeyTables().clear();
  gSharedGrammars().clear();
  gPromptSuffixes().clear();
  gModeFileNames().clear();
  resetLookupPlans();
}

namespace {

// The flag of one code, 0 for a code that means nothing.
uint32_t flagOfCode(std::string_view code) {
  if (code.empty() || code.size() > 2) return 0;
  // The codes are one or two letters: the two bytes make one number.
  constexpr auto pair = [](char first, char second) { return (static_cast<unsigned>(first) << 8) | second; };
  switch (pair(code[0], code.size() == 2 ? code[1] : '\0')) {
    case pair('k', 0): return NODE_FLAG_K;
    case pair('o', 0): return NODE_FLAG_O;
    case pair('a', 0): return NODE_FLAG_A;
    case pair('m', 0): return NODE_FLAG_M;
    case pair('n', 0): return NODE_FLAG_N;
    case pair('m', 'b'): return NODE_FLAG_MB;
    case pair('m', 'a'): return NODE_FLAG_MA;
    case pair('l', 'b'): return NODE_FLAG_LB;
    case pair('l', 'e'): return NODE_FLAG_LE;
    case pair('s', 'n'): return NODE_FLAG_SN;
    case pair('s', 'b'): return NODE_FLAG_SB;
    case pair('o', 'b'): return NODE_FLAG_OB;
    case pair('o', 'e'): return NODE_FLAG_OE;
    case pair('n', 'c'): return NODE_FLAG_NC;
    case pair('c', 'f'): return NODE_FLAG_CF;
    case pair('r', 'p'): return NODE_FLAG_RP;
    case pair('n', 'e'): return NODE_FLAG_NE;
    case pair('n', 'k'): return NODE_FLAG_NK;
    case pair('i', 'f'): return NODE_FLAG_IF;
    case pair('w', 'a'): return NODE_FLAG_WA;
    default: return 0;
  }
}

// Files being read right now, to refuse a file that links itself.
std::set<std::string>& filesInProgress() {
  static auto* files = new std::set<std::string>();
  return *files;
}

[[noreturn]] void malformed(const ParserTree& tree, const std::string& what) {
  std::string where = "(unknown)";
  if (!tree.mLoading.empty()) {
    where = tree.mLoading.back().file + ":" + std::to_string(tree.mLoading.back().line);
  }
  throw ParserException(where + ": " + what);
}

// Text streams: a line read from a file written on another platform keeps
// its carriage return, which is not part of the line.
bool readTextLine(std::istream& stream, std::string& line) {
  if (!std::getline(stream, line)) return false;
  if (!line.empty() && line.back() == '\r') line.pop_back();
  return true;
}

ParserTreeNode* stackTop(ParserTree& tree) { return tree.mNodeStack.empty() ? nullptr : tree.mNodeStack.back(); }

ParserTreeNode* findExistingChild(ParserTreeNode* top, std::string_view a) {
  for (auto* map : {&top->mChildren, &top->mOptionalChildren, &top->mOptions}) {
    auto it = map->find(a);
    if (it != map->end()) return it->second;
  }
  if (!top->mHasComplexChild) return nullptr;
  for (auto* map : {&top->mChildren, &top->mOptions}) {
    for (auto& entry : *map) {
      if (entry.second->mIsComplex && entry.second->mKeywords.count(a)) return entry.second;
    }
  }
  return nullptr;
}

ParserTreeNode::NodeMap& targetMap(ParserTreeNode* parent, ParserTreeNode* child, int optional) {
  if (child->mIsOption) return parent->mOptions;
  if (optional == 1) return parent->mOptionalChildren;
  return parent->mChildren;
}

// The loop begin that a node with "le" closes, or null.
ParserTreeNode* findLoopBegin(ParserTreeNode* node) {
  int depth = 0;
  for (ParserTreeNode* n = node; n; n = n->mParent) {
    if (n->hasFlag(NODE_FLAG_LE)) ++depth;
    int lb = n->hasFlag(NODE_FLAG_LB) ? 1 : 0;
    if (depth == lb) return n;
    depth -= lb;
  }
  return nullptr;
}

struct LoadGuard {
  ParserTree& tree;
  std::string file;
  LoadGuard(ParserTree& t, const std::string& f) : tree(t), file(f) {
    filesInProgress().insert(file);
    // The file's root has just been pushed: it is the bottom element for it.
    tree.mLoading.push_back({file, 0, tree.mNodeStack.empty() ? 0 : tree.mNodeStack.size() - 1});
  }
  ~LoadGuard() {
    filesInProgress().erase(file);
    tree.mLoading.pop_back();
  }
};

}  // namespace

void loadKeyFiles() {
  std::string dir = QXFileSystem::GetSystemResourceFolder() + "files" + platform::kPathSeparator + "keyfiles";
  Pathname folder(dir);
  if (!folder.exists()) return;
  if (!platform::isPathSeparator(dir.back())) dir += platform::kPathSeparator;
  for (const Pathname& entry : Pathname(dir).dirContents()) {
    std::string name = entry.file();
    if (name == "." || name == ".." || entry.isDirectory()) continue;
    std::string path = dir + name;
    size_t cut = path.find_last_of("/\\");
    name = cut == std::string::npos ? path : path.substr(cut + 1);
    KeyTable table;
    loadKeyFile(table, path);
    gKeyTables()["&" + name] = table;
  }
  resetLookupPlans();
}

void loadKeyFile(KeyTable& table, const std::string& path) {
  std::ifstream in(StlHelper::AToW(path));
  if (!in) {
    // An unreadable KeyFile is an empty table; the load goes on.
    return;
  }
  std::string line;
  std::vector<std::string> pieces;
  while (readTextLine(in, line)) {
    if (line.empty()) continue;
    ParserToolCase::splitString(ParserToolCase::string2Lower(line), "|", pieces);
    if (pieces.size() < 2) continue;
    table[pieces[0]] = pieces[1];
  }
}

namespace {

// Calls `emit(word)` for each word of `text` cut at any of `separators`, the
// way ParserToolCase::splitString cuts: runs of separators count as one, no
// empty word comes out, and the text ends at its first NUL.
template <typename Emit>
void forEachWordOf(std::string_view text, std::string_view separators, Emit emit) {
  text = text.substr(0, std::min(text.size(), text.find('\0')));
  std::size_t pos = 0;
  while ((pos = text.find_first_not_of(separators, pos)) != std::string_view::npos) {
    std::size_t end = std::min(text.size(), text.find_first_of(separators, pos));
    emit(text.substr(pos, end - pos));
    pos = end;
  }
}

template <typename Map, typename Value>
void putEntry(Map& map, std::string_view key, const Value& value) {
  auto placed = map.emplace(key, value);
  if (!placed.second) placed.first->second = value;
}

// `kept`: a view the help text store gave.
void putKeptWord(ParserTreeNode::WordMap& map, std::string_view key, std::string_view kept) {
  auto placed = map.emplace(key, kept);
  if (!placed.second) placed.first->second = kept;
}

void putWord(ParserTreeNode::WordMap& map, std::string_view key, std::string_view help) {
  putKeptWord(map, key, HelpTextStore::keep(help));
}

// A child enters the map of its parent that its kind asks for; the parent
// notes a complex child (blocks and includes fill the maps themselves).
void putChild(ParserTreeNode* parent, std::string_view key, ParserTreeNode* child, int optional) {
  ParserTreeNode::NodeMap& map = targetMap(parent, child, optional);
  putEntry(map, key, child);
  if (child->mIsComplex && &map != &parent->mOptionalChildren) parent->mHasComplexChild = true;
}

// The flag codes between slashes; the field ends at a NUL.
void setFlags(ParserTreeNode* node, std::string_view c) {
  c = c.substr(0, c.find('\0'));
  for (std::size_t pos = 0; pos < c.size();) {
    const std::size_t end = std::min(c.size(), c.find('/', pos));
    if (end > pos) node->mFlags |= flagOfCode(c.substr(pos, end - pos));
    pos = end + 1;
  }
}

void addChildOf(ParserTreeNode* parent, std::string_view key, std::string_view help, ParserTreeNode* child,
                int optional) {
  if (key.empty() || !parent || !child) return;
  putChild(parent, key, child, optional);
  if (!child->mIsComplex) putWord(parent->mHelp, key, help);
  if (!child->mParent) child->mParent = parent;
}

// The token between "[" and "]", each of them optional.
std::string_view optionInner(std::string_view token, bool& open, bool& close) {
  const std::size_t openPos = token.find('[');
  const std::size_t closePos = token.find(']');
  open = openPos != std::string_view::npos;
  close = closePos != std::string_view::npos;
  const std::size_t begin = open ? openPos + 1 : 0;
  const std::size_t end = close ? closePos : token.size();
  return end > begin ? token.substr(begin, end - begin) : std::string_view();
}

void finishing(ParserTree& tree, ParserTreeNode* parent, ParserTreeNode* node, std::string_view text,
               int optional);

ParserTreeNode* addLine(ParserTree& tree, std::string_view a, std::string_view b, std::string_view c,
                        std::string_view d) {
  if (!a.empty() && a[0] == '!') {
    size_t base = tree.mLoading.empty() ? 0 : tree.mLoading.back().stackBase;
    // The root of the file is the bottom element for this file; closing it
    // would make the next line's parent a node of another file, or nothing.
    if (tree.mNodeStack.size() <= base + 1) malformed(tree, "\"!\" line with no open level to close");
    tree.mNodeStack.pop_back();
    return stackTop(tree);
  }
  ParserTreeNode* top = stackTop(tree);
  if (!top) malformed(tree, "line outside of any level");
  if (!a.empty()) {
    if (ParserTreeNode* existing = findExistingChild(top, a)) {
      tree.mNodeStack.push_back(existing);
      return existing;
    }
  }
  bool open = false, close = false;
  std::string_view key = optionInner(a, open, close);
  ParserTreeNode* node = nullptr;
  if (close) {
    if (!open) malformed(tree, "token \"" + std::string(a) + "\" closes \"]\" without opening \"[\"");
    node = top;
  } else {
    node = NodePool::newNode();
  }
  if (key == "<cr>") {
    node->mIsEnd = true;
    key = "\n";
  }
  putWord(node->mKeywords, key, b);
  setFlags(node, c);
  if (node->hasFlag(NODE_FLAG_OB)) node->mIsOption = true;
  node->mText.assign(d.data(), d.size());
  addChildOf(top, key, b, node, open ? 1 : 0);
  finishing(tree, top, node, d, open ? 1 : 0);
  tree.mNodeStack.push_back(node);
  return node;
}

void conflictsOf(ParserTreeNode* node, std::string_view d) {
  if (!node->hasFlag(NODE_FLAG_CF)) return;
  std::vector<std::string> words;
  ParserToolCase::splitString(ParserToolCase::string2Lower(std::string(d)), ",", words);
  node->mConflicts.insert(words.begin(), words.end());
}

void finishing(ParserTree&, ParserTreeNode* parent, ParserTreeNode* node, std::string_view text, int optional) {
  if (node->hasFlag(NODE_FLAG_MB) || node->hasFlag(NODE_FLAG_MA)) node->mText.assign(text.data(), text.size());
  if (node->hasFlag(NODE_FLAG_LE)) {
    if (ParserTreeNode* begin = findLoopBegin(node)) {
      addChildOf(node, begin->firstKeyword(), begin->firstKeywordHelp(), begin, optional);
    }
  }
  conflictsOf(node, text);
  if (node->hasFlag(NODE_FLAG_OE)) {
    // From the end of an option the input may go on to any sibling option of
    // every enclosing group.
    for (ParserTreeNode* anc = node; anc; anc = anc->mParent) {
      if (!anc->hasFlag(NODE_FLAG_OB) || !anc->mParent) continue;
      ParserTreeNode::NodeMap siblings = anc->mParent->mOptions;
      for (auto& entry : siblings) {
        if (entry.second == node) continue;
        addChildOf(node, entry.first, entry.second->firstKeywordHelp(), entry.second, optional);
      }
    }
  }
  if (node->hasFlag(NODE_FLAG_OB) && parent) {
    // A new option must be reachable from the ends of the options before it.
    std::vector<ParserTreeNode*> work;
    for (auto& entry : parent->mOptions) {
      if (entry.second != node && entry.second->mParent == parent) work.push_back(entry.second);
    }
    const std::string key = node->firstKeyword();
    const std::string help = node->firstKeywordHelp();
    while (!work.empty()) {
      ParserTreeNode* n = work.back();
      work.pop_back();
      for (auto* map : {&n->mOptions, &n->mChildren}) {
        for (auto& entry : *map) {
          if (entry.second->mParent == n && entry.second != n) work.push_back(entry.second);
        }
      }
      if (n->hasFlag(NODE_FLAG_OE)) addChildOf(n, key, help, node, optional);
    }
  }
}

void readLines(ParserTree& tree, DefinitionLines& lines);

// The next line of `lines` that holds a first word, cut into `fields`, its
// first word in `token`; every line passed is counted for the messages.
bool nextDefinition(ParserTree& tree, DefinitionLines& lines, DefinitionLine& fields, std::string_view& token) {
  std::string_view line;
  while (lines.next(line)) {
    if (!tree.mLoading.empty()) ++tree.mLoading.back().line;
    if (line.empty()) continue;
    fields.cut(line);
    token = fields.token();
    if (!token.empty()) return true;
  }
  return false;
}

void readBlock(ParserTree& tree, std::string_view a, std::string_view c, DefinitionLines& lines) {
  if (a.empty() || a[0] != '#') return;
  ParserTreeNode* node = NodePool::newNode();
  node->mIsComplex = true;
  setFlags(node, c);
  if (node->hasFlag(NODE_FLAG_OB)) node->mIsOption = true;
  ParserTreeNode* parent = stackTop(tree);
  if (!parent) malformed(tree, "block outside of any level");
  ++parent->mComplexCounter;
  std::string key = "complex_node_" + std::to_string(parent->mComplexCounter);
  (node->mIsOption ? parent->mOptions : parent->mChildren)[key] = node;
  parent->mHasComplexChild = true;
  if (!node->mParent) node->mParent = parent;
  tree.mNodeStack.push_back(node);
  DefinitionLine fields;
  std::string_view word;
  while (nextDefinition(tree, lines, fields, word)) {
    if (word[0] == '#') break;
    putWord(node->mKeywords, word, fields.help());
  }
  finishing(tree, parent, node, std::string_view(), 0);
}

void linkItems(ParserTree& tree, std::string_view e, ParserTreeNode* node) {
  if (e.empty() || !node) return;
  std::vector<std::string_view> items;
  forEachWordOf(e, " \t", [&items](std::string_view word) { items.push_back(word); });
  for (size_t i = 0; i < items.size(); ++i) {
    std::string_view item = items[i];
    if (item[0] == '&') {
      std::string name(item.substr(1));
      auto found = gSharedGrammars().find(name);
      ParserTreeNode* root = nullptr;
      if (found == gSharedGrammars().end()) {
        root = loadGrammarFile(tree, name);
        root->mEntersMode = false;
        gSharedGrammars()[name] = root;
      } else {
        root = found->second;
      }
      // An include replaces the maps of the node it is written on.
      if (ParserTreeNode* top = stackTop(tree)) {
        top->mChildren = root->mChildren;
        top->mOptions = root->mOptions;
        top->mHelp = root->mHelp;
        if (root->mHasComplexChild) top->mHasComplexChild = true;
      }
    } else if (item[0] == '@') {
      if (i + 1 >= items.size()) malformed(tree, "mode link \"" + std::string(item) + "\" names no file");
      const std::string file(items[i + 1]);
      std::string mode(item.substr(1));
      gPromptSuffixes()[node] = mode;
      node->mModeName = std::move(mode);
      node->mEntersMode = true;
      tree.mNodeStack.push_back(node);
      auto found = tree.mFiles.find(file);
      ParserTreeNode* root = nullptr;
      if (found == tree.mFiles.end()) {
        root = loadGrammarFile(tree, file);
        tree.mFiles[file] = root;
        gModeFileNames().push_back(file);
      } else {
        root = found->second;
      }
      linkModeFile(tree, root, node);
      node->mFileName = file;
      tree.mNodeStack.pop_back();
      ++i;
    }
  }
}

void readLines(ParserTree& tree, DefinitionLines& lines) {
  DefinitionLine fields;
  std::string_view a;
  while (nextDefinition(tree, lines, fields, a)) {
    if (a[0] == '#') {
      readBlock(tree, a, fields.flags(), lines);
    } else {
      ParserTreeNode* node = addLine(tree, a, fields.help(), fields.flags(), fields.text());
      linkItems(tree, fields.links(), node);
    }
  }
}

// The whole content of an open file: one read into a string of the file's
// size where the size can be told, else piece by piece.
std::string wholeFile(std::istream& in) {
  std::string content;
  in.seekg(0, std::ios::end);
  const std::streamoff size = in.tellg();
  in.seekg(0, std::ios::beg);
  if (size > 0 && in) {
    content.resize(static_cast<size_t>(size));
    in.read(&content[0], size);
    content.resize(static_cast<size_t>(in.gcount()));
    if (in.gcount() < size) return content;
  }
  in.clear();
  char piece[4096];
  while (in.read(piece, sizeof piece) || in.gcount() > 0) content.append(piece, static_cast<size_t>(in.gcount()));
  return content;
}

}  // namespace

ParserTreeNode* loadGrammarFile(ParserTree& tree, const std::string& fileName) {
  if (filesInProgress().count(fileName)) {
    malformed(tree, "\"" + fileName + "\" links itself; a definition file may not include or open its own mode");
  }
  // Links name files of the definition folder itself. A path would let a
  // definition file read anything the process can open, a device or a pipe
  // included, which may never end.
  if (fileName.find_first_of("/\\") != std::string::npos) {
    malformed(tree, "\"" + fileName + "\" is not a file name of the definition folder");
  }
  ParserTreeNode* root = NodePool::newNode();
  root->mEntersMode = true;
  tree.mNodeStack.push_back(root);
  if (tree.mLoading.empty() || tree.mFilesFolder.empty()) {
    tree.mFilesFolder = QXFileSystem::GetSystemResourceFolder() + "files" + platform::kPathSeparator;
  }
  std::string path = tree.mFilesFolder + fileName;
  std::string content;
  {
    std::ifstream in(StlHelper::AToW(path));
    if (!in) throw ParserException("error: can't open file: " + path);
    content = wholeFile(in);
  }
  const size_t base = tree.mNodeStack.size() - 1;  // where this file's root stands
  {
    LoadGuard guard(tree, fileName);
    DefinitionLines lines(content);
    readLines(tree, lines);
  }
  // Levels that the file left open without their "!" end with the file: they
  // must not become parents of the lines of the file that linked this one.
  while (tree.mNodeStack.size() > base + 1) tree.mNodeStack.pop_back();
  if (!tree.mNodeStack.empty()) tree.mNodeStack.pop_back();
  return root;
}

void readGrammarStream(ParserTree& tree, std::istream& stream) {
  DefinitionLines lines(stream);
  readLines(tree, lines);
}

ParserTreeNode* addNodeLine(ParserTree& tree, const std::string& a, const std::string& b, const std::string& c,
                            const std::string& d) {
  return addLine(tree, a, b, c, d);
}

void parseNodeFlags(ParserTreeNode* node, const std::string& c) { setFlags(node, c); }

void parseConflicts(ParserTreeNode* node, const std::string& d) { conflictsOf(node, d); }

void addChild(ParserTreeNode* parent, const std::string& key, const std::string& help, ParserTreeNode* child,
              int optional) {
  addChildOf(parent, key, help, child, optional);
}

void finishNode(ParserTree& tree, ParserTreeNode* parent, ParserTreeNode* node, const std::string& text,
                int optional) {
  finishing(tree, parent, node, text, optional);
}

void readComplexNode(ParserTree& tree, const std::string& a, const std::string& c, std::istream& stream) {
  DefinitionLines lines(stream);
  readBlock(tree, a, c, lines);
}

void applyLinks(ParserTree& tree, const std::string& e, ParserTreeNode* node) { linkItems(tree, e, node); }

void linkModeFile(ParserTree&, ParserTreeNode* root, ParserTreeNode* node) {
  if (!root || !node) return;
  node->mChildren.reserve(node->mChildren.size() + root->mChildren.size());
  node->mHelp.reserve(node->mHelp.size() + root->mChildren.size() + root->mOptionalChildren.size() +
                      root->mSpareChildren.size() + root->mOptions.size());
  // Every map of the root in the order nextChild walks them, a child's help
  // from the root's help table ("" where it has none).
  const ParserTreeNode::NodeMap* maps[] = {&root->mChildren, &root->mOptionalChildren, &root->mSpareChildren,
                                           &root->mOptions};
  for (int m = 0; m < 4; ++m) {
    const int optional = m == 1 ? 1 : 0;
    // The map and the help table are both in key order: one walk over each.
    auto help = root->mHelp.begin();
    for (const auto& entry : *maps[m]) {
      const std::string& key = entry.first;
      if (key.empty()) continue;
      ParserTreeNode* child = entry.second;
      putChild(node, key, child, optional);
      if (!child->mIsComplex) {
        while (help != root->mHelp.end() && help->first < key) ++help;
        const bool found = help != root->mHelp.end() && help->first == key;
        putKeptWord(node->mHelp, key, found ? help->second : std::string_view());
      }
      if (!child->mParent) child->mParent = node;
    }
  }
}

namespace {

// The place is kept as an index, not an iterator: an insertion into another
// node's maps between two calls cannot leave it dangling.
struct ChildWalk {
  ParserTreeNode* node = nullptr;
  int map = 0;
  size_t index = 0;
};

ChildWalk& childWalk() {
  static ChildWalk walk;
  return walk;
}

ParserTreeNode::NodeMap* walkMap(ParserTreeNode* node, int index) {
  switch (index) {
    case 0: return &node->mChildren;
    case 1: return &node->mOptionalChildren;
    case 2: return &node->mSpareChildren;
    case 3: return &node->mOptions;
    default: return nullptr;
  }
}

}  // namespace

ParserTreeNode* nextChild(ParserTreeNode* node, std::string& key, std::string& help, int& optional, bool restart) {
  ChildWalk& w = childWalk();
  if (!node) return nullptr;
  if (restart || w.node != node) {
    w.node = node;
    w.map = 0;
    w.index = 0;
  }
  while (ParserTreeNode::NodeMap* map = walkMap(node, w.map)) {
    if (w.index < map->size()) {
      const auto& entry = *(map->begin() + static_cast<std::ptrdiff_t>(w.index));
      key = entry.first;
      auto h = node->mHelp.find(key);
      // Assigned, not built anew: the caller's strings keep their room.
      if (h == node->mHelp.end()) {
        help.clear();
      } else {
        help = h->second;
      }
      optional = w.map == 1 ? 1 : 0;
      ++w.index;
      return entry.second;
    }
    ++w.map;
    w.index = 0;
  }
  return nullptr;
}

}  // namespace qxparser
