// NodeLookup: which node a typed word leads to.
//
// The single question the rest of the system asks of a grammar: given a node
// and an input token, which child comes next and under which canonical key.
// The order of the search decides which branch wins when several match: an
// exact literal, then a KeyFile word, then an angle-bracket placeholder, then
// a bare placeholder; mChildren before mOptions; by key, then by word. Then
// abbreviations (when asked for), then the catch-all words "word", "line" and
// "hostname or a.b.c.d"; then everything again with the token lower-cased.
//
// Lookups change the option state of nodes (mVisitedOptions) and clear
// mExcluded, both kept by the calling thread, and keep plans of the nodes
// they searched (below), also per thread: threads may search the same nodes
// at once. Resetting or turning off the plans must not happen while another
// thread searches. A token of only zeros typed
// into a numeric range throws std::out_of_range, which nothing here catches.
#pragma once

#include <string>

#include "grammar/ParserTreeNode.h"
#include "platform/Export.h"

namespace qxparser {

class LookupMemo;

VTYCONF_API ParserTreeNode* findChild(ParserTreeNode* node, const std::string& token);
VTYCONF_API ParserTreeNode* lookup(ParserTreeNode* node, const std::string& token, bool& flagOut,
                                   std::string& keyOut, bool abbreviate);
// What every caller uses: lookup, and a second try whose only effect is
// *retriedOut (read by help); on success the node's exclusions are cleared.
VTYCONF_API ParserTreeNode* lookupToken(ParserTreeNode* node, const std::string& token, bool& flagOut,
                                        std::string& keyOut, bool abbreviate, bool* retriedOut);
// The same, keeping in `memo` (when given) what the searches that read no
// state of the walk find, and answering from it what they found before
// (LookupMemo.h).
VTYCONF_API ParserTreeNode* lookupToken(ParserTreeNode* node, const std::string& token, bool& flagOut,
                                        std::string& keyOut, bool abbreviate, bool* retriedOut, LookupMemo* memo);
VTYCONF_API ParserTreeNode* findAbbreviation(ParserTreeNode* node, const std::string& token, std::string& keyOut);
VTYCONF_API ParserTreeNode* enterOption(ParserTreeNode* node, const std::string& token, ParserTreeNode* child);
VTYCONF_API bool isConflicting(const ParserTreeNode* node, const std::string& word);
VTYCONF_API bool matchesKeyTable(const std::string& token, const std::string& tableName);
VTYCONF_API bool hasInterfaceWords(const ParserTreeNode* node);
// 0 when a command may end at the node, 1 otherwise.
VTYCONF_API int nodeStatus(const ParserTreeNode* node);
VTYCONF_API void clearExcluded(ParserTreeNode* node);

// The searches keep, per node and per KeyFile table, the candidates of each
// step worked out once; they answer exactly what the plain scans answer. The
// loader calls resetLookupPlans when it reads KeyFiles; a plan is also
// dropped whenever a node has been made since it was built. Turning the
// plans off runs the plain scans (used to compare the two), and terminals
// then keep no answers either (LookupMemo, their order numbers).
VTYCONF_API void resetLookupPlans();
VTYCONF_API void setLookupPlansEnabled(bool enabled);
VTYCONF_API bool lookupPlansEnabled();

}  // namespace qxparser
