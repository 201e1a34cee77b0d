// A tiny program that uses the installed or embedded library.
#include <iostream>

#include "platform/QXFileSystem.h"
#include "toolkit/ParserToolCase.h"

int main() {
  using qxparser::ParserToolCase;
  if (ParserToolCase::string2Lower("Interface") != "interface") return 1;
  if (!ParserToolCase::isPvFormStr("<1-10>")) return 1;
  std::cout << "resources: " << QXFileSystem::GetSystemResourceFolder() << "\n";
  return 0;
}
