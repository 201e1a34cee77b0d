// CmdOrderTable: the process-wide command-order table (internal to the library).
//
// Maps a grammar file name ("configuration_mod.cfm", "interface.cfm", ...) to
// template commands in device order, each with its orderNo set. The templates
// are owned by the table: QxParserUtil fills it at resource creation and
// destroyParserResource deletes them. Read by CiscoCommandLine::setOrderNo,
// from any number of threads at once (its lookup indexes are built under a
// lock); filling and clearing it must not overlap any reading.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "config/CiscoCommandLine.h"

namespace qxparser {

using CmdOrderTable = std::map<std::string, std::vector<CiscoCommandLine*>>;

CmdOrderTable& gCmdOrderTable();
// Deletes every template and empties the table.
void clearCmdOrderTable();
// Whether the template's path is a prefix of the command's path, or the two
// part where the template had ended its line.
bool templateFits(const CiscoCommandLine& templ, const CiscoCommandLine& command);

}  // namespace qxparser
