// NoteOutput: a design note's result tree as text for people.
//
// indentedTree() writes one result line per line, two blanks per level of
// nesting, with the configuration line number in front where the line has
// one ("12: interface GigabitEthernet0/3"). Pure function.
#pragma once

#include <string>

class DRResultTree;

namespace vtycli {

std::string indentedTree(const DRResultTree& tree, int depth);

}  // namespace vtycli
