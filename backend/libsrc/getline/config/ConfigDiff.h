// ConfigDiff: two configurations compared as the device shows them.
//
// Each configuration is read (DeviceTextReader) and taken as a list of its
// commands in the order they stand, each with the head lines of the modes
// around it. Comment lines ("!", blank lines, "end") take no part. Two
// commands are the same when their device spelling (DeviceSpelling) and that
// of the heads around them are the same, so "interface gigabitethernet 0/1"
// equals "interface GigabitEthernet0/1" and a line matches only inside the
// same section. A line is shown as it was read, trailing blanks cut. The
// alignment is a longest common subsequence of those lists (quadratic in the
// part between the equal beginning and end); where that part is too long for
// it (more than 16 million pairs), a line counts as kept when the other side
// holds one like it, and the removals come before the additions.
//
// The result holds only what differs: each changed line with the heads of its
// section. Plain values; one comparison at a time per process, as for every
// reading operation.
#pragma once

#include <string>
#include <vector>

#include "platform/Export.h"

namespace qxparser {

class VTYCONF_API ConfigDiff {
 public:
  struct Change {
    char mark = ' ';                    // '-' only in the first, '+' only in the second
    std::vector<std::string> sections;  // the mode head lines around it, outermost first
    std::string line;                   // device text, indent included, no line end
  };

  static std::vector<Change> compare(const std::string& first, const std::string& second);

  // The changes as text: "--- name" and "+++ name", then for each run of
  // changes the section heads it stands under (marked "  ", written once while
  // they stay the same), and each line behind "- " or "+ ". With `color`, the
  // marks of ANSI terminals: red removals, green additions, bold heads.
  static std::string unified(const std::vector<Change>& changes, const std::string& firstName,
                             const std::string& secondName, bool color);
};

}  // namespace qxparser
