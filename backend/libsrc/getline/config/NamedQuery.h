// NamedQuery: the fixed searches of a configuration file, by name.
//
// vrfs, vrf NAME, protocols, protocol NAME..., interface NAME,
// interfaces NAME..., acls, acl KEY, nat KEY, route-map KEY, section KEY,
// lines KEY: each is one call of QXParserGetConfig or QxParserUtil on a file
// given by its path. Keys may be given as a person types them: `vrf GUEST`
// (ip vrf or vrf definition), `acl WAN-IN` or `acl 10` (either kind of list),
// `protocol ospf` (every OSPF process) or `protocol ospf 10`, `route-map OUT`,
// `interface Gi0/2`; whole header lines work as before. Static data and a dispatch; the searches themselves
// follow the library's single-thread rule.
#pragma once

#include <string>
#include <vector>

#include "platform/Export.h"

namespace qxparser {

struct NamedQueryKind {
  const char* name;
  bool needsKey;  // at least one key word is required
};

// The query called `word`; null when there is none.
VTYCONF_API const NamedQueryKind* namedQuery(const std::string& word);
// Every query, in the order above.
VTYCONF_API const std::vector<NamedQueryKind>& namedQueries();

// Runs query `what` with `keys` on the file at `path`. Answers that are a
// list (interfaces, acls) go to `items` and the result is true; all others
// go to `text` and the result is false. An unknown `what` leaves both empty.
VTYCONF_API bool runNamedQuery(const std::string& what, const std::vector<std::string>& keys,
                               const std::string& path, std::string& text, std::vector<std::string>& items);

}  // namespace qxparser
