#include "ConsoleExecLine.h"

#include "terminal/VTY.h"

namespace vtycli {

ExecAnswer answerExecLine(const std::string& line) {
  qxparser::VTY vty("Router", true);
  vty.setPreferInterfaceTypes(true);
  std::string discarded;
  vty.parse("enable \n", true, nullptr);
  vty.getOutputString(discarded);
  ExecAnswer answer;
  answer.refused = !vty.parse(line + " \n", true, nullptr);
  answer.errorOffset = vty.lastErrorOffset();
  vty.getOutputString(answer.text);
  return answer;
}

}  // namespace vtycli
