// Reading, merge and fallback of text as people type it: the same
// comparisons as the specified operations, on records read by
// TypedTextReader.
#include "config/QxParserUtil.h"

namespace qxparser {

bool QxParserUtil::getCmdInfoTyped(const std::string& text, std::vector<CiscoCommandLine*>& commands,
                                   std::vector<RefusedLine>& refused) {
  std::vector<CiscoCommandLine*> all;
  try {
    const bool ok = TypedTextReader::read(text, all, refused);
    commands.insert(commands.end(), all.begin(), all.end());
    return ok;
  } catch (...) {
    deleteCommands(all);
    throw;
  }
}

void QxParserUtil::transformCmdsTyped(const std::string& text, std::vector<CiscoCommandLine*>& commands,
                                      std::vector<RefusedLine>* refused) {
  std::vector<CiscoCommandLine*> all;
  std::vector<RefusedLine> unwanted;
  try {
    TypedTextReader::read(text, all, refused ? *refused : unwanted);
  } catch (...) {
    deleteCommands(all);
    throw;
  }
  keepTopLevel(all, commands);
}

std::string QxParserUtil::mergeConfigCmdsTyped(const std::string& changes, const std::string& config,
                                               std::vector<RefusedLine>* changesRefused,
                                               std::vector<RefusedLine>* configRefused) {
  std::vector<CiscoCommandLine*> changeCmds;
  std::vector<CiscoCommandLine*> configCmds;
  std::string text;
  try {
    transformCmdsTyped(changes, changeCmds, changesRefused);
    transformCmdsTyped(config, configCmds, configRefused);
    // As the specified merge: an empty side gives the other text back.
    if (changes.empty()) {
      text = config;
    } else if (config.empty()) {
      text = changes;
    } else {
      mergeCiscoCommands(changeCmds, configCmds, nullptr);
      text = expandMergedCmds(configCmds, 0);
    }
  } catch (...) {
    deleteTopLevel(changeCmds);
    deleteTopLevel(configCmds);
    throw;
  }
  deleteTopLevel(changeCmds);
  deleteTopLevel(configCmds);
  return text;
}

std::string QxParserUtil::fallbackConfigCmdsTyped(const std::string& first, const std::string& second,
                                                  unsigned int mode, std::vector<RefusedLine>* firstRefused,
                                                  std::vector<RefusedLine>* secondRefused) {
  return fallbackWithReaders(first, second, mode, firstRefused, secondRefused, Readers());
}

std::string QxParserUtil::fallbackWithReaders(const std::string& first, const std::string& second,
                                              unsigned int mode, std::vector<RefusedLine>* firstRefused,
                                              std::vector<RefusedLine>* secondRefused, Readers readers) {
  std::vector<RefusedLine> unwantedFirst;
  std::vector<RefusedLine> unwantedSecond;
  readers.first = firstRefused ? firstRefused : &unwantedFirst;
  readers.second = secondRefused ? secondRefused : &unwantedSecond;
  if (first.empty()) {
    // Nothing to compare; the second text is still read for its report.
    std::vector<CiscoCommandLine*> ignored;
    transformCmdsTyped(second, ignored, readers.second);
    deleteTopLevel(ignored);
    return second;
  }
  return fallbackNormalised(first, second, mode, true, readers);
}

}  // namespace qxparser
