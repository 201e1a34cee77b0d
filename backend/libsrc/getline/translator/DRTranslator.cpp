// The driver of the translator: the public entry, the main loop over the words
// of the script, and the fixed head and tail of every generated program.
#include "translator/DRTranslator.h"

#include <fstream>
#include <iterator>
#include <sstream>

#include "platform/PlatformOs.h"
#include "platform/QXFileSystem.h"
#include "platform/StlHelper.h"
#include "translator/DRTranslatorInternal.h"

namespace {

// The head is fixed text and is written as it stands, in four writes; its "#"
// comment line stays a Perl comment because the head never passes the "#" pass.
// The order of the UI lists here differs from the order of kUIListNames; both
// are fixed.
const char* const kHeadPart1 =
    "\r\n"
    "#Read the config file into a perl hash variable.\r\n"
    "%allLines;\r\n"
    "@matchResults;\r\n"
    "@matchResultsBegin;\r\n"
    "@matchResultsEnd;\r\n"
    "@matchResultsMiddle;\r\n"
    "@UI_InterfaceList;\r\n"
    "@UI_ProtocolList;\r\n"
    "@UI_InterfaceNameList;\r\n"
    "@UI_IPAddressList;\r\n"
    "@UI_VrfNameList;\r\n"
    "@UI_RouteMapNameList;\r\n"
    "@UI_NATList;\r\n";
const char* const kHeadPart2 =
    "\r\n"
    "hashConfigFile();\r\n";
const char* const kHeadPart3 =
    "\r\n"
    "readUIFiles();\r\n";
// The empty block of the if is intended: opening the result file is the work.
const char* const kHeadPart4 =
    "$resultFile = $ARGV[1];\r\n"
    "if(open(OUTFILE, \">$resultFile\")) {\r\n"
    "}\r\n"
    "else {\r\n"
    "\tprint \"Can't open result file!\";\r\n"
    "\treturn;\r\n"
    "}\r\n"
    "\r\n"
    "\r\n";
const char* const kCloseLine = "\r\nclose OUTFILE;\n";

}  // namespace

DRTranslator::DRTranslator(const std::string& script, const std::string& program)
    : scriptText(script), programPath(program), sourceText(script) {}

std::string DRTranslator::programHead() {
  return std::string(kHeadPart1) + kHeadPart2 + kHeadPart3 + kHeadPart4;
}

std::string DRTranslator::programCloseLine() { return kCloseLine; }

void DRTranslator::translateScriptFile() {
  platform::deleteFile(programPath);
  std::ofstream out(StlHelper::AToW(programPath), std::ios::out | std::ios::trunc);
  if (!out.is_open()) return;
  out << kHeadPart1;
  out << kHeadPart2;
  out << kHeadPart3;
  out << kHeadPart4;
  // A failed translation still gets the close line and the runtime, so the
  // program stays a complete one that merely does nothing.
  translateScriptFile(out);

  std::ifstream functions(StlHelper::AToW(QXFileSystem::GetScriptFilePath("DRFunctions")), std::ios::in);
  if (!functions.is_open()) {
    out.close();
    return;
  }
  std::string tail(kCloseLine);
  tail.append(std::istreambuf_iterator<char>(functions), std::istreambuf_iterator<char>());
  out << tail;
  out.close();
  functions.close();
}

int DRTranslator::translateScriptFile(std::ostream& out) {
  WordList list;
  while (!isFileEnd()) {
    std::string word = getWord();
    if (word.empty()) break;
    std::string stored = drtranslator::storedWord(word);
    list.push_back(stored);

    int result = 0;
    if (stored == "+") {
      result = translateAdd(list);
    } else if (stored == "-") {
      result = translateReduce(list);
    } else if (stored == "!") {
      result = processComment(list);
    } else if (stored == "\"") {
      result = processQuo(list);
    } else if (stored == "not") {
      result = processNot(list);
    } else if (stored == "isempty") {
      result = processIsEmpty(list);
    } else if (stored == "search_line") {
      result = processSearchLine(list);
    } else if (stored == "search_paragraph_begin") {
      result = processSearchParagraphBegin(list);
    } else if (stored == "search_paragraph_between") {
      result = processSearchParagraphBetween(list);
    } else if (stored == "search_paragraph") {
      result = processSearchParagraph(list);
    } else if (stored == "print") {
      result = checkIllegleExpression(list, stored);
      if (result == 0) result = processPrint(list);
    } else if (stored == "(") {
      result = checkIllegleMethod(list);
    } else if (stored[0] == '#' || stored == "if") {
      result = checkIllegleExpression(list, stored);
    } else if (stored == "is_in_samenet") {
      result = processIsInSameNet(list);
    }
    if (result != 0) return -1;
  }
  // Only a byte 0xFF that stopped getWord leaves text behind the cursor.
  if (!isFileEnd()) return -1;

  std::string body;
  for (const std::string& entry : list) body += entry;
  // Generated arrays are spelled with "#" while the list is built, so that the
  // handlers, which look for "@", do not take them for script variables.
  for (char& c : body) {
    if (c == '#') c = '@';
  }
  out << body;
  return 0;
}

void DRTranslator::reportMessage(const std::string& text) {
  errorText += text + getString(lineNumber) + ".\r\n";
}
