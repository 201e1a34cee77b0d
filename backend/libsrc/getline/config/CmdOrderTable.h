// CmdOrderTable: the process-wide command-order table (internal to the library).
//
// Maps a grammar file name ("configuration_mod.cfm", "interface.cfm", ...) to
// template commands in device order, each with its orderNo set. The templates
// are owned by the table: destroyParserResource deletes them. Read by
// CiscoCommandLine::setOrderNo, from any number of threads at once (its
// lookup indexes are built under a lock).
//
// Filling the table reads the order files with a terminal, which costs more
// than a job that reads nothing (an empty configuration) needs: resource
// creation hands the filling over with deferCmdOrderTable, and the first
// terminal made afterwards (or the first gCmdOrderTable call) runs it, once;
// a second caller waits for the first to finish. Clearing the table must not
// overlap any reading.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "config/CiscoCommandLine.h"

namespace qxparser {

using CmdOrderTable = std::map<std::string, std::vector<CiscoCommandLine*>>;

// The table, filled first when a filling is still deferred.
CmdOrderTable& gCmdOrderTable();
// Deletes every template, empties the table and drops a deferred filling.
void clearCmdOrderTable();
// `fill` fills the table when it is first needed.
void deferCmdOrderTable(std::function<void()> fill);
// Runs the deferred filling now, if there is one. Within the filling (on the
// thread that runs it) this does nothing, so the readings of the order files
// see the table as it grows, file by file.
void fillDeferredCmdOrderTable();
// Whether the template's path is a prefix of the command's path, or the two
// part where the template had ended its line.
bool templateFits(const CiscoCommandLine& templ, const CiscoCommandLine& command);

}  // namespace qxparser
