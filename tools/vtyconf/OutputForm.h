// OutputForm: which text merge, fallback, sort and query print.
//
// By default the program prints device text (what "show running-config"
// shows: commands as they were read, new ones in the device's spelling,
// comments and banners kept); `--merge-form` asks for the text of the
// library's merge writer instead (full lower-case words, interface types
// apart from their numbers, a blank behind each line, no comments). Each
// function here is one call of the library and returns what to print
// (NUL indent bytes already shown as blanks). No state.
#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

#include "config/TypedTextReader.h"

namespace vtycli {

// Adds the --merge-form flag to a subcommand.
void addMergeFormFlag(CLI::App& sub, bool& mergeForm);

// -j/--jobs of a job on two texts: 1 reads them one after the other on one
// processor; 2 (the default where the machine has more than one) lets long
// texts be read at once.
void addReadingThreadsOption(CLI::App& sub);

// Device text is read as the device reads pasted text: refused lines are
// appended to the lists. The merge-writer form is that of the specified
// operations, which replay the texts and report nothing.
std::string mergeOutput(const std::string& changes, const std::string& config, bool mergeForm,
                        std::vector<qxparser::RefusedLine>& changesRefused,
                        std::vector<qxparser::RefusedLine>& configRefused);
// `cutAtDeepLevels`: the library's fallbackConfigCmds (compared only up to the
// first command two levels inside a mode) instead of the comparison over
// every level.
std::string fallbackOutput(const std::string& first, const std::string& second, unsigned int mode,
                           bool cutAtDeepLevels, bool mergeForm, std::vector<qxparser::RefusedLine>& firstRefused,
                           std::vector<qxparser::RefusedLine>& secondRefused);
// A search's answer: sections in device spelling unless `mergeForm`.
std::string queryOutput(const std::string& answer, bool mergeForm);

}  // namespace vtycli
