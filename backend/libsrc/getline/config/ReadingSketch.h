// ReadingSketch: what the device-text rollback still asks of a typed reading
// once the two configurations are compared, kept without the reading.
//
// The rollback spells each command it writes in the words an input typed for
// it, leaves out the negations of lines that stand unchanged in both inputs,
// writes changed banners whole, and adds the lines the comparison misses and
// the edits of changed named lists, found from two sketches. For that it
// needs, of each record of a typed reading: its full and current text
// (getOriginalCmd, getCurrentCommand), the line it was typed as (the last
// line of its raw text, trailing blanks cut; asked only of records with a
// grammar path; a reading settled without raw texts gives it from the lines
// of its text), whether it has a grammar path, its "no", stored and mode
// flags, and where it stands among the records of its mode; and the banners
// the reading holds. A sketch keeps exactly that, in a tenth of the reading's
// memory, so that the reading can be freed before the texts are read a
// second time for the comparison. A command longer than kLongestCommand (256
// MiB) cannot be sketched (std::length_error).
//
// Entries stand in the reading's order, each followed by those of its
// children (depth first): entry `i`'s children are `i + 1`, then `end` of
// that one, and so on while below `end(i)`. A command's text is a view of
// the text the reading was written into in the merge form where it stands
// there in turn (that text is kept with the sketch; the fallback reads it
// once more and lets go of it, so it costs the sketch nothing of its own),
// else it lives in one buffer of the sketch; a typed line that is its
// command's text behind blanks of indent (the usual case in a configuration
// the device wrote) is not stored again. Immutable once made; safe to read
// from several threads.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "config/CiscoCommandLine.h"
#include "config/TextLines.h"

namespace qxparser {

class ReadingSketch {
 public:
  ReadingSketch() = default;
  // The sketch of a reading's top-level records (as DeviceTextReader::read
  // gives them) and everything below them.
  // `form`, where given: the reading written in the merge form
  // (QxParserUtil::expandMergedCmds) before it was settled.
  // `lines`, where given: the lines of the text the reading was read from,
  // for a reading settled without raw texts (DeviceTextReader::settleByLines);
  // only looked at while the sketch is made.
  explicit ReadingSketch(const std::vector<CiscoCommandLine*>& topLevel,
                         std::shared_ptr<const std::string> form = nullptr, const TextLines* lines = nullptr);

  size_t size() const { return mEntries.size(); }
  // The index behind entry `at`'s children, grandchildren and so on.
  size_t end(size_t at) const { return mEntries[at].end; }
  // The record's getOriginalCmd().
  std::string_view command(size_t at) const {
    const Entry& entry = mEntries[at];
    const std::string_view held = entry.commandInForm ? std::string_view(*mForm) : std::string_view(mTexts);
    return held.substr(entry.commandAt, entry.commandSize);
  }
  // The record's getCurrentCommand() (a reading gives it the same text as
  // getOriginalCmd(), which the sketch then keeps once).
  std::string_view currentCommand(size_t at) const;
  // Whether the record had a grammar path (getTreeNodeSize() > 0).
  bool hasPath(size_t at) const { return mEntries[at].hasPath != 0; }
  // Its CMDBIT_NO, CMDBIT_STORED and CMDBIT_OPENS_MODE flags.
  bool isNegated(size_t at) const { return mEntries[at].negated != 0; }
  bool isStored(size_t at) const { return mEntries[at].stored != 0; }
  bool opensMode(size_t at) const { return mEntries[at].opensMode != 0; }
  // Whether the record was read from a line (its raw text is not empty).
  bool wasTyped(size_t at) const { return static_cast<Typed>(mEntries[at].typed) != Typed::None; }
  // The line the record was typed as, trailing blanks and tabs cut; empty
  // for a record without a grammar path (a comment, a refused line).
  std::string typedLine(size_t at) const;
  // Bytes of text the sketch holds in a buffer of its own (not in the form).
  size_t ownTextBytes() const { return mTexts.size(); }
  // The banners by kind ("banner motd"), each as the device shows it.
  const std::map<std::string, std::string>& banners() const { return mBanners; }

 private:
  // None: not read from a line. Unkept: read from one, not kept (no path).
  enum class Typed : uint8_t { None, Unkept, Stored, Indented };
  // Sixteen bytes an entry: a sketch has one per record.
  struct Entry {
    Entry()
        : commandSize(0), hasPath(false), commandInForm(false), typed(0), end(0), negated(false), stored(false),
          opensMode(false) {}
    uint32_t commandAt = 0;
    // Below kLongestCommand.
    uint32_t commandSize : 28;
    uint32_t hasPath : 1;
    // The command's text is in mForm (else in mTexts).
    uint32_t commandInForm : 1;
    // A Typed.
    uint32_t typed : 2;
    // Stored: the place in mTexts of the typed line's length (four bytes),
    // which its characters follow. Indented: `lineAt` blanks, then the
    // command's text without its trailing blanks and line end.
    uint32_t lineAt = 0;
    // Below kMostEntries.
    uint32_t end : 29;
    uint32_t negated : 1;
    uint32_t stored : 1;
    uint32_t opensMode : 1;
  };
  static_assert(sizeof(Entry) == 16, "a sketch entry is sixteen bytes");
  static constexpr size_t kLongestCommand = (size_t{1} << 28) - 1;
  // More records than a reading can hold in memory (each takes more than a
  // hundred bytes).
  static constexpr size_t kMostEntries = (size_t{1} << 29) - 1;

  void add(const CiscoCommandLine& record);
  // The record's raw text as a settling with raw texts gives it: its own, or
  // else its line in mLines.
  std::string_view rawTextOf(const CiscoCommandLine& record) const;
  uint32_t keep(std::string_view text);
  // The command's place in mForm at the reading position, moved past it;
  // false (and no move) where the form does not hold it there.
  bool findInForm(std::string_view command, uint32_t& at);

  std::vector<Entry> mEntries;
  std::string mTexts;
  std::shared_ptr<const std::string> mForm;
  size_t mFormAt = 0;
  const TextLines* mLines = nullptr;
  std::map<std::string, std::string> mBanners;
  // The current commands that are not their records' original ones, by
  // entry (none from a reading).
  std::map<size_t, std::string> mCurrent;
};

}  // namespace qxparser
