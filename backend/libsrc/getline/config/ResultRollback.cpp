// Change sets undone through the configuration they give.
#include "config/ResultRollback.h"

#include <sstream>
#include <vector>

namespace qxparser {

namespace {

bool isNumber(const std::string& word) {
  return !word.empty() && word.find_first_not_of("0123456789") == std::string::npos;
}

bool meansMore(const std::vector<std::string>& w) {
  const size_t n = w.size();
  if (n >= 3 && w[0] == "interface" && w[1] == "range") return true;
  if (n >= 3 && w[0] == "default" && w[1] == "interface") return true;
  if (n >= 4 && w[0] == "ip" && w[1] == "access-list" && w[2] == "resequence") return true;
  if (n == 4 && w[0] == "ip" && w[1] == "access-list" && (w[2] == "standard" || w[2] == "extended") &&
      isNumber(w[3])) {
    return true;
  }
  // Entries of an ordered list: a numbered list is rewritten whole ("no
  // access-list N" and its entries), a named list by entry, and what an entry
  // stands behind only the lists as they end up show.
  const size_t at = n >= 1 && w[0] == "no" ? 1 : 0;
  if (n >= at + 2 && w[at] == "access-list" && isNumber(w[at + 1])) return true;
  if (n >= at + 3 && (w[at] == "ip" || w[at] == "ipv6") && w[at + 1] == "access-list") return true;
  return n == 4 && w[0] == "no" && w[1] == "neighbor" && w[3] == "peer-group";
}

}  // namespace

bool ResultRollback::needed(const std::string& changes) {
  std::istringstream in(changes);
  for (std::string line; std::getline(in, line);) {
    // Every such line names an interface, an access list or a peer group.
    if (line.find("interface") == std::string::npos && line.find("access-list") == std::string::npos &&
        line.find("peer-group") == std::string::npos) {
      continue;
    }
    std::istringstream words(line);
    std::vector<std::string> w;
    for (std::string word; words >> word;) w.push_back(word);
    if (meansMore(w)) return true;
  }
  return false;
}

}  // namespace qxparser
