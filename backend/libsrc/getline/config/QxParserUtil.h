// QxParserUtil: what callers do with whole configurations.
//
// A class of static members used as a namespace: set-up and tear-down of the
// shared grammar resources, reading a configuration into commands (replayed
// through a scratch terminal in configuration mode), searches of
// configuration files, device order, merge and fallback.
//
// Resources: call createNewParserResource once before the first VTY and
// destroyParserResource after the last. Records returned by the reading
// operations belong to the caller, with their children; they may only be
// compared while the resources live. Readings may run on two threads at once
// (the walker's scratch is kept per thread); the device-text operations are
// for one thread at a time and read long texts on a second thread of their
// own (SideReading).
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "config/CiscoCommandLine.h"
#include "config/TypedTextReader.h"
#include "platform/Export.h"
#include "terminal/VTY.h"

namespace qxparser {

class CommandMatchIndex;
class SideReading;

// What a search of a configuration file returns.
enum SEARCHTYPE {
  SEARCH_SECTION_BODY = 0,    // the lines inside the matched section
  SEARCH_LINE = 1,            // the matched line alone
  SEARCH_SECTION = 2,         // the head line and its section
  SEARCH_ACL_SECTION = 4,     // an access list, with the body of a named one
  SEARCH_ACL_LINE = 5,        // the head lines only
  SEARCH_ACL_SECTION_ALT = 6  // as SEARCH_ACL_SECTION
};

class VTYCONF_API QxParserUtil {
 public:
  // Loads the KeyFiles and the trees of the three modes; the command-order
  // table is filled from this resource folder when the first terminal is made
  // (or the table is first asked for). Throws ParserException when a
  // definition file is missing or malformed; trees built before the failure
  // stay in place.
  static void createNewParserResource();
  static void createParserResource();
  static void destroyParserResource();

  // Reads a configuration text into records of all levels (caller owns).
  static bool getCmdInfo(const std::string& text, std::vector<CiscoCommandLine*>& commands, std::string& errorText,
                         int& errorLine);
  static bool hintCommand(std::string& configuration, std::string& line, std::vector<ConfigHint>& hints);
  // vtyconf's own: hintCommand with every level asked on its own (the
  // specified one stops listing once a level has no next word).
  static bool hintCommandEachLevel(std::string& configuration, const std::string& line,
                                   std::vector<ConfigHint>& hints);

  // Searches of a configuration file; the result is appended to `result`.
  static void GetCmdsFromConfig(const std::string& configFile, std::string& result, const std::string& key,
                                SEARCHTYPE type);

  static bool isTheSameCmd(const std::string& a, const std::string& b, bool withNo);

  // Merge: the configuration after the changes, in device order.
  static std::string mergeConfigCmds(const std::string& changes, const std::string& config);
  static void SortCiscoCommands(std::vector<CiscoCommandLine*>& commands);

  // Fallback: mode 0 gives the commands that undo `first` (changes) applied
  // to `second` (configuration); any other mode the commands that turn the
  // configuration `first` into `second`.
  // Both texts are compared in the form a merge writes, and that form indents
  // a command two or more levels deep with NUL bytes, at which the text read
  // back ends: nothing from the first such command on is compared.
  static std::string fallbackConfigCmds(const std::string& first, const std::string& second, unsigned int mode);
  // vtyconf's own: the same comparison over every level. NUL bytes are taken
  // as blanks, in the given texts (a merge result may be one of them) and in
  // the written form read back, so commands at any depth, and everything
  // behind them, take part. The result is written as
  // fallbackConfigCmds writes it (NUL indent bytes included).
  static std::string fallbackConfigCmdsAllLevels(const std::string& first, const std::string& second,
                                                 unsigned int mode);
  // vtyconf's own, for text as people type it (TypedTextReader: CLI mode,
  // abbreviations, mode exits): reading into records of all levels, merge,
  // and the fallback over every level. Refused lines of each text are
  // appended to the given list (null: not wanted); they change nothing, as
  // on the device. The results are written as the specified operations
  // write theirs.
  static bool getCmdInfoTyped(const std::string& text, std::vector<CiscoCommandLine*>& commands,
                              std::vector<RefusedLine>& refused);
  static std::string mergeConfigCmdsTyped(const std::string& changes, const std::string& config,
                                          std::vector<RefusedLine>* changesRefused,
                                          std::vector<RefusedLine>* configRefused);
  static std::string fallbackConfigCmdsTyped(const std::string& first, const std::string& second, unsigned int mode,
                                             std::vector<RefusedLine>* firstRefused,
                                             std::vector<RefusedLine>* secondRefused);
  static bool removeInterfaceFromConfigFile(const std::string& path, const std::string& name);

  // Builds the overwrite set from files/commandflag/cisco.flg. Nothing in the
  // library calls it; throws ParserException when the file is missing.
  static void setOverwriteCmds();

  // vtyconf's own: deletes records returned by the reading operations, with
  // their children (records of all levels may be in the vector).
  static void deleteCommands(std::vector<CiscoCommandLine*>& commands);

  // Whether long texts of one job may be read on a second thread at once
  // (see SideReading; by default where the machine has more than one
  // processor).
  static void setReadingThreadsAllowed(bool allowed);
  static bool readingThreadsAllowed();
  // vtyconf's own: whether the device-text operations below free the records
  // they built their result from before they return (the default). A program
  // that ends after one such operation may turn this off: the records then
  // stay reachable until the process ends, whose exit frees them at once.
  static void setFreeRecordsOnReturn(bool free);
  static bool freeRecordsOnReturn();
  // deleteCommands, or (with freeRecordsOnReturn off) the records kept
  // reachable until the process ends; `commands` is empty afterwards.
  static void releaseResultRecords(std::vector<CiscoCommandLine*>& commands);

  // The device-text operations below read their texts as the device reads
  // pasted text (DeviceTextReader over TypedTextReader) and append refused
  // lines to the given lists (null: not wanted). They are what the program
  // runs.
  // vtyconf's own: mergeConfigCmds written as the device shows the result
  // (DeviceTextWriter). The commands of `config` that the changes leave alone
  // come out as they were read, comments and banner text included; new and
  // changed commands in the device's spelling. The merge itself is the same.
  // An empty `changes` returns `config` as it stands.
  static std::string mergeConfigCmdsDeviceText(const std::string& changes, const std::string& config,
                                               std::vector<RefusedLine>* changesRefused = nullptr,
                                               std::vector<RefusedLine>* configRefused = nullptr);
  // vtyconf's own: fallbackConfigCmdsTyped written as device text: a
  // command that one of the inputs holds as it stands comes out as that input
  // wrote it; any other ("no " and the command it negates) in the device's
  // spelling, in the words an input typed for it. Each under its mode's head
  // line, one blank of indent per level, "!" behind each top-level block.
  static std::string fallbackConfigCmdsDeviceText(const std::string& first, const std::string& second,
                                                  unsigned int mode, std::vector<RefusedLine>* firstRefused = nullptr,
                                                  std::vector<RefusedLine>* secondRefused = nullptr);
  // vtyconf's own: the commands of `config` in device order (as `sort` of the
  // program gives them) as device text: each command as it was read, banner
  // text and certificate data with their command, comment lines left out and
  // "!" behind each mode block of the top level.
  static std::string sortConfigDeviceText(const std::string& config);
  // vtyconf's own: any configuration text (a merge writer's result, a section
  // that a search returned) with every command in the device's spelling, one
  // blank of indent per level; lines that are no commands stay as they are.
  static std::string deviceText(const std::string& text);

 private:
  friend struct QxParserUtilPeer;
  // Typed texts (non-null refused lists) are read by TypedTextReader, the
  // others replayed. Long texts are read at once, the second on a thread of
  // the call's own. Each text is read twice: as typed, then in the form a
  // merge writes (see fallbackNormalised); each thread reads its text both
  // times without waiting for the other. A caller may look at the typed
  // readings before they go (TypedReading); `bothRead` (where set) runs on
  // this thread once both texts are read as typed (and the first in the
  // merge form as well), after both `read` hooks. `besideComparison` (where
  // set) is posted to the second thread once both texts are read in the
  // merge form, to run while the texts are compared; texts read one after
  // the other leave it to its owner's wait(). Where `compared` is set, the
  // top-level records the texts were compared by are moved there, for the
  // caller to free, instead of being freed before the call returns.
  struct TypedReading {
    // Filled with the typed reading of the text (all levels, in line order)
    // instead of its being freed at once; owned by the caller then.
    std::vector<CiscoCommandLine*>* records = nullptr;
    // On the thread that read the text, right after it, with the text the
    // reading was written into in the merge form; the hook may keep that
    // text (the fallback reads it once more and then lets go of it).
    std::function<void(const std::shared_ptr<const std::string>& form)> read;
    // On the same thread, right after `read`, before the text is read again.
    std::function<void()> release;
  };
  struct Readers {
    std::vector<RefusedLine>* first = nullptr;
    std::vector<RefusedLine>* second = nullptr;
    TypedReading firstTyped;
    TypedReading secondTyped;
    std::function<void()> bothRead;
    SideReading* besideComparison = nullptr;
    std::vector<CiscoCommandLine*>* compared = nullptr;
    // The second text's merge form where the caller has read the text as
    // typed already (as readTyped over all levels would): the second text is
    // then not read as typed again, and `secondTyped` is not called.
    std::shared_ptr<const std::string> secondForm;
  };
  // A configuration's typed reading that a merge keeps for the rollback that
  // reads the same text next (the delta rollback through the merge's
  // result): its merge form and its sketch. Defined with the device-text
  // operations.
  struct KeptReading;
  // mergeConfigCmdsDeviceText, keeping the reading of `config` in
  // `keptConfig` where given.
  static std::string mergeDeviceText(const std::string& changes, const std::string& config,
                                     std::vector<RefusedLine>* changesRefused,
                                     std::vector<RefusedLine>* configRefused, KeptReading* keptConfig);
  // fallbackConfigCmdsDeviceText, taking the reading of `second` from
  // `keptSecond` where given and where it is the reading this call would
  // make.
  static std::string rollbackDeviceText(const std::string& first, const std::string& second, unsigned int mode,
                                        std::vector<RefusedLine>* firstRefused,
                                        std::vector<RefusedLine>* secondRefused, KeptReading* keptSecond);
  static std::string fallbackWithReaders(const std::string& first, const std::string& second, unsigned int mode,
                                         std::vector<RefusedLine>* firstRefused,
                                         std::vector<RefusedLine>* secondRefused, Readers readers);
  // The first reading of one text of a fallback: as typed (into
  // `reading->records` where given, else freed) and written in the form a
  // merge writes, which it returns.
  static std::string readTyped(const std::string& text, bool allLevels, std::vector<RefusedLine>* typed,
                               const TypedReading& reading);
  // The form readTyped writes: the records in the merge form, over every
  // level with blanks for indent.
  static std::string mergeForm(const std::vector<CiscoCommandLine*>& topLevel, bool allLevels);
  // The second: that form read into its top-level records, by indent where
  // the text was typed.
  static void readMergeForm(const std::string& form, bool typed, std::vector<CiscoCommandLine*>& commands);
  static std::string fallbackNormalised(const std::string& first, const std::string& second, unsigned int mode,
                                        bool allLevels, const Readers& readers);
  static void keepTopLevel(std::vector<CiscoCommandLine*>& all, std::vector<CiscoCommandLine*>& commands);
  static void transformCmdsTyped(const std::string& text, std::vector<CiscoCommandLine*>& commands,
                                 std::vector<RefusedLine>* refused);
  static bool transformCmds(const std::string& text, std::vector<CiscoCommandLine*>& commands,
                            std::string& errorText, int& errorLine);
  static void GetSpecialCmdsFromConfig(const std::string& configFile, std::string& result, const std::string& key,
                                       SEARCHTYPE type);
  static void GetAclCmdsFromConfig(const std::string& configFile, std::string& result, const std::string& key,
                                   SEARCHTYPE type);
  static void fillCmdOrderTable();
  static void mergeCiscoCommands(std::vector<CiscoCommandLine*>& changes, std::vector<CiscoCommandLine*>& config,
                                 CiscoCommandLine* parent);
  static std::string expandMergedCmds(const std::vector<CiscoCommandLine*>& commands, int depth);
  // `index` (where given): the CommandMatchIndex of `config` (`to`), made
  // beforehand; else the call makes its own.
  static void fallbackCiscoCommands(std::vector<CiscoCommandLine*>& changes, std::vector<CiscoCommandLine*>& config,
                                    std::vector<CiscoCommandLine*>& out, CiscoCommandLine* parent,
                                    CommandMatchIndex* index = nullptr);
  static void fallbackCiscoCommandFile(std::vector<CiscoCommandLine*>& from, std::vector<CiscoCommandLine*>& to,
                                       std::vector<CiscoCommandLine*>& out, CiscoCommandLine* parent,
                                       CommandMatchIndex* index = nullptr);
  static CiscoCommandLine* createNoCommand(CiscoCommandLine* command);
  // vtyconf's own: deletes level-0 records with all their children.
  static void deleteTopLevel(std::vector<CiscoCommandLine*>& commands);
};

}  // namespace qxparser
