#include "grammar/ParserTree.h"

#include "grammar/DefinitionLoader.h"

namespace qxparser {

ParserTree::ParserTree(const std::string& fileName, bool) { mRoot = loadGrammarFile(*this, fileName); }

}  // namespace qxparser
