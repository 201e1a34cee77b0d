// DefinitionLoader: reads mode definition files and KeyFiles into grammar nodes.
//
// Free functions of the loader and the process-wide tables it fills:
//   gKeyTables       "&name" -> KeyTable (word -> help), from files/keyfiles/
//   gSharedGrammars  included ("&file") grammar roots, loaded once per process
//   gPromptSuffixes  node -> prompt suffix of the mode it opens
//   gModeFileNames   the files loaded through "@" links, in load order
// These live until the process ends, across destroyParserResource.
// clearLoaderTables() empties them for a host (or a test) that switches to
// another resource folder. Nothing here is thread-safe.
//
// Line format: `token|help|flags|text|links`. The last field is always the
// links field; every line opens a level that a "!" line closes.
#pragma once

#include <istream>
#include <map>
#include <string>
#include <vector>

#include "grammar/ParserTree.h"
#include "grammar/ParserTreeNode.h"
#include "platform/Export.h"

namespace qxparser {

using KeyTable = std::map<std::string, std::string>;

VTYCONF_API std::map<std::string, KeyTable>& gKeyTables();
VTYCONF_API std::map<std::string, ParserTreeNode*>& gSharedGrammars();
VTYCONF_API std::map<ParserTreeNode*, std::string>& gPromptSuffixes();
VTYCONF_API std::vector<std::string>& gModeFileNames();
VTYCONF_API void clearLoaderTables();

VTYCONF_API void loadKeyFiles();
VTYCONF_API void loadKeyFile(KeyTable& table, const std::string& path);
VTYCONF_API ParserTreeNode* loadGrammarFile(ParserTree& tree, const std::string& fileName);
VTYCONF_API void readGrammarStream(ParserTree& tree, std::istream& stream);
VTYCONF_API ParserTreeNode* addNodeLine(ParserTree& tree, const std::string& a, const std::string& b,
                                        const std::string& c, const std::string& d);
VTYCONF_API void applyLinks(ParserTree& tree, const std::string& e, ParserTreeNode* node);
VTYCONF_API void readComplexNode(ParserTree& tree, const std::string& a, const std::string& c,
                                 std::istream& stream);
VTYCONF_API void parseNodeFlags(ParserTreeNode* node, const std::string& c);
VTYCONF_API void parseConflicts(ParserTreeNode* node, const std::string& d);
VTYCONF_API void addChild(ParserTreeNode* parent, const std::string& key, const std::string& help,
                          ParserTreeNode* child, int optional);
VTYCONF_API void finishNode(ParserTree& tree, ParserTreeNode* parent, ParserTreeNode* node,
                            const std::string& text, int optional);
VTYCONF_API void linkModeFile(ParserTree& tree, ParserTreeNode* root, ParserTreeNode* node);
// Iterates all children of a node: mChildren, mOptionalChildren,
// mSpareChildren, mOptions. Keeps its place in process-wide state; `restart`
// or another node starts over. Returns null after the last child.
VTYCONF_API ParserTreeNode* nextChild(ParserTreeNode* node, std::string& key, std::string& help, int& optional,
                                      bool restart);

}  // namespace qxparser
