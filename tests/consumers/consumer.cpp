#include <iostream>
#include <string>

#include "config/QxParserUtil.h"

int main() {
  using qxparser::QxParserUtil;
  QxParserUtil::createNewParserResource();  // compile the grammar once per process
  const std::string running = "hostname R1\ninterface GigabitEthernet0/1\n shutdown\n";
  const std::string changes = "interface GigabitEthernet0/1\n description uplink\n";
  const std::string merged = QxParserUtil::mergeConfigCmds(changes, running);
  const std::string undo = QxParserUtil::fallbackConfigCmds(changes, running, 0);
  std::cout << merged << "--- undo:\n" << undo;
  QxParserUtil::destroyParserResource();
  return merged.find("description uplink") != std::string::npos ? 0 : 1;
}
