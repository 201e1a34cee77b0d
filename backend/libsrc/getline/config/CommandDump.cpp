#include "config/CommandDump.h"

namespace qxparser {

const char* CommandDump::flagName(CiscoCommandLineFlag flag) {
  switch (flag) {
    case CMD_NEGATED:
      return "negated";
    case CMD_NEGATED_OVERWRITE:
      return "negated-overwrite";
    case CMD_ADDITIVE:
      return "additive";
    case CMD_OVERWRITE:
      return "overwrite";
    case CMD_MERGEABLE:
      return "mergeable";
    case CMD_TEXT:
      return "text";
  }
  return "unknown";
}

std::vector<std::string> CommandDump::markNames(const CiscoCommandLine& record) {
  static const std::pair<unsigned int, const char*> kBits[] = {{CMDBIT_NO, "no"},
                                                               {CMDBIT_STORED, "stored"},
                                                               {CMDBIT_OPENS_MODE, "mode"},
                                                               {CMDBIT_REMOVED, "removed"},
                                                               {CMDBIT_NO_ENDS_ANYWHERE, "no-ends-anywhere"},
                                                               {CMDBIT_NO_COMPLETE, "no-incomplete"},
                                                               {CMDBIT_SUB, "sub"},
                                                               {CMDBIT_CONFLICT, "conflict"}};
  std::vector<std::string> names;
  for (const auto& bit : kBits) {
    if (record.hasFlags(bit.first)) names.push_back(bit.second);
  }
  return names;
}

std::string CommandDump::commandText(const CiscoCommandLine& record) {
  std::string text = record.getOriginalCmd();
  if (text.empty()) text = record.getOriginalStr();
  while (!text.empty() && (text.back() == '\n' || text.back() == ' ' || text.back() == '\r')) text.pop_back();
  std::size_t start = text.find_first_not_of(" \t");
  return start == std::string::npos ? std::string() : text.substr(start);
}

void CommandDump::dumpCommand(const CiscoCommandLine& record, std::string& out, bool withChildren,
                              const LineMap& lineOf) {
  int level = record.getLevel() > 0 ? record.getLevel() : 0;
  int line = lineOf ? lineOf(record.getLineNo()) : record.getLineNo();
  out.append(static_cast<std::size_t>(level) * 2, ' ');
  out += commandText(record);
  out += "\t[" + std::to_string(line) + " order " + std::to_string(record.getOrderNo()) + " " +
         flagName(record.getFlag());
  for (const std::string& mark : markNames(record)) out += " " + mark;
  out += "]\n";
  if (!withChildren) return;
  for (const CiscoCommandLine* child : record.getChildCommands()) {
    if (child != nullptr) dumpCommand(*child, out, true, lineOf);
  }
}

void CommandDump::dumpCommands(const std::vector<CiscoCommandLine*>& records, std::string& out,
                               const LineMap& lineOf) {
  for (const CiscoCommandLine* record : records) {
    if (record != nullptr && record->getParentCommand() == nullptr) dumpCommand(*record, out, true, lineOf);
  }
}

}  // namespace qxparser
