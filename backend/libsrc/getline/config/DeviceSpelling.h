// DeviceSpelling: one command as the device prints it.
//
// The words come from the record's full form (originalCmd: keywords in full),
// each in the spelling it was typed with where the typed line (the record's
// raw text) holds the same word in another case (values keep their case);
// an abbreviated keyword comes out in full. An interface type and its number
// become one word in the device's spelling ("gigabitethernet 0/1" ->
// "GigabitEthernet0/1"), and a keyword that the device prints in capitals
// comes out so ("ro" -> "RO", "dot1q" -> "dot1Q"). Both spellings are data,
// files of files/display/ in the resource folder, one "word|Display" row per
// line, read once per folder: interfacefile.display for the words of the
// interface KeyFile, keywords.display for literal keywords of the grammar.
//
// Pure functions over a record; the table is process-wide and loaded on first
// use, so the same one-at-a-time rule as for the rest of the library holds.
#pragma once

#include <string>

#include "config/CiscoCommandLine.h"
#include "platform/Export.h"

namespace qxparser {

class VTYCONF_API DeviceSpelling {
 public:
  // The command's device text: no indent, no line end, single blanks.
  static std::string spell(const CiscoCommandLine& record);
  // The device's name of an interface type given as a word of the interface
  // KeyFile (any case); the word itself when the table does not know it.
  static std::string interfaceType(const std::string& word);
  // Drops the loaded table, so that the next use reads it again.
  static void reload();

  // While one lives, the resource folder is looked up once instead of at
  // every line (for writing many lines, during which it does not change).
  class VTYCONF_API Batch {
   public:
    Batch();
    ~Batch();
    Batch(const Batch&) = delete;
    Batch& operator=(const Batch&) = delete;
  };
};

}  // namespace qxparser
