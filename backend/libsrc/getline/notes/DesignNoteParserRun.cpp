// The static run operations of DesignNoteParser: naming the temporary files of
// a run, starting the interpreter, reading the result file and clearing up.
#include <cstdint>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>

#include "notes/DRScriptFile.h"
#include "notes/DesignNoteParser.h"
#include "platform/MultiVendorFileSystem.h"
#include "platform/Pathname.h"
#include "platform/PlatformOs.h"
#include "platform/QX128Guid.h"
#include "platform/QXFileSystem.h"
#include "platform/StlHelper.h"
#include "results/DRCheck.h"
#include "results/DRResultTree.h"
#include "results/SyntaxStringBuilder.h"
#include "results/UIVariableForDR.h"
#include "translator/DRTranslator.h"

namespace {

bool fileExists(const std::string& path) { return platform::access(path, 0) == 0; }

// The address of an object in base 10: the name of the per-run folder of UI
// files and of the temporary files of an unsaved script.
std::string addressName(const void* object) {
  return std::to_string(static_cast<unsigned long long>(reinterpret_cast<std::uintptr_t>(object)));
}

// Starts the interpreter and waits; its exit status is not looked at, the
// result file is the only sign of how the run went.
void runInterpreter(const std::string& interpreter, const std::string& program, const std::string& configPath,
                    const std::string& resultPath, const std::string& uiFolder) {
  QXFileSystem::ExecuteArgv(
      DesignNoteParser::buildRunArguments(interpreter, program, configPath, resultPath, uiFolder));
}

}  // namespace

std::vector<std::string> DesignNoteParser::buildRunArguments(const std::string& interpreter,
                                                             const std::string& program,
                                                             const std::string& configPath,
                                                             const std::string& resultPath,
                                                             const std::string& uiFolder) {
  // A program name that begins with "-" would be read as a switch by the
  // interpreter; "./" keeps it a file name. The arguments behind the program
  // belong to the program and are passed as they are.
  std::string programArg = program;
  if (!programArg.empty() && programArg[0] == '-') programArg = std::string(".") + platform::kPathSeparator + programArg;
  return {interpreter, programArg, configPath, resultPath, uiFolder};
}

std::string DesignNoteParser::getRealScriptFile(const std::string& scriptPath) {
  std::size_t pos = scriptPath.rfind(".cmf");
  if (pos == std::string::npos) return scriptPath;
  const std::string base = scriptPath.substr(0, pos);
  if (fileExists(base + ".pl")) return base + ".pl";
  if (fileExists(base + ".py")) return base + ".py";
  return scriptPath;
}

std::string DesignNoteParser::getDesignNote(const std::string& scriptPath, const std::string& configPath,
                                            const UIVariableForDR* ui) {
  if (scriptPath.empty() || configPath.empty() || !fileExists(scriptPath) || !fileExists(configPath)) return "";
  DRScriptFile script(scriptPath);
  const std::string temp = QXFileSystem::GetTempFolder();
  const std::string program = temp + script.getFileName() + ".pl";
  if (!script.getContext().empty()) {
    DRTranslator translator(script.getContext(), program);
    translator.translateScriptFile();
  }
  const std::string result = temp + script.getFileName() + ".drtmp";
  std::string uiFolder;
  if (ui != nullptr) {
    uiFolder = temp + addressName(ui);
    platform::makeDir(uiFolder);
    ui->save(uiFolder, false);
  }

  runInterpreter(QXFileSystem::GetPerlExepath(), program, configPath, result,
                 uiFolder.empty() ? uiFolder : uiFolder + platform::kPathSeparator);

  std::string text;
  std::ifstream in(StlHelper::AToW(result), std::ios::binary);
  const bool opened = in.is_open();
  if (opened) {
    text.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    in.close();
  }
  platform::deleteFile(program);
  platform::deleteFile(result);
  if (ui != nullptr) Pathname(uiFolder).removeFile(true);
  return opened ? text : std::string();
}

DRResultTree* DesignNoteParser::getDesignNoteTree(const std::string& scriptPath, const std::string& configPath,
                                                  const UIVariableForDR* ui) {
  if (scriptPath.empty() || configPath.empty() || !fileExists(scriptPath) || !fileExists(configPath)) {
    return nullptr;
  }
  const std::string program = getRealScriptFile(scriptPath);
  if (!fileExists(program)) return nullptr;
  DRScriptFile script(scriptPath);

  const std::string temp = MultiVendorFileSystem::GetDesignReaderTempPath();
  std::string result = temp + QX128Guid(true).ToUUIDString(true) + ".drtmp";
  std::string uiFolder;
  if (ui != nullptr) {
    uiFolder = temp + addressName(ui);
    platform::makeDir(uiFolder);
    ui->save(uiFolder, true);
    result = uiFolder + platform::kPathSeparator + script.getFileName() + ".drtmp";
  }

  std::string interpreter;
  if (program.find(".py") == std::string::npos) {
    interpreter = QXFileSystem::GetPerlExepath();
  } else {
    interpreter = QXFileSystem::GetPythonExepath();
    std::string home = QXFileSystem::GetSystemResourceFolder();
    StlHelper::trimRight(home, "/\\");
    platform::setEnv("PYTHONHOME", home);
  }
  runInterpreter(interpreter, program, configPath, result,
                 uiFolder.empty() ? uiFolder : uiFolder + platform::kPathSeparator);

  std::unique_ptr<DRResultTree> tree;
  if (Pathname(result).exists()) tree = std::make_unique<DRResultTree>(result);
  Pathname(result).removeFile(false);
  // Also without UI variables, where the path is empty and nothing happens.
  Pathname(uiFolder).removeFile(true);
  return tree.release();
}

std::string DesignNoteParser::getResultByMultiFilters(const std::vector<std::string>& scriptPaths,
                                                      const std::string& configPath, const UIVariableForDR* ui) {
  std::map<int, std::string> lines;
  for (const std::string& script : scriptPaths) {
    std::unique_ptr<DRResultTree> tree(getDesignNoteTree(script, configPath, ui));
    if (tree) tree->getAllLines(lines);
  }
  std::string text;
  for (const auto& line : lines) text += line.second + "\r\n";
  return text;
}

DRResultTree* DesignNoteParser::testDesignFilter(const std::string& scriptText, const std::string& configText) {
  if (scriptText.empty() || configText.empty()) return nullptr;
  const std::string temp = QXFileSystem::GetTempFolder();
  const std::string stem = temp + "DR" + addressName(&scriptText);
  const std::string program = stem + ".pl";
  {
    DRTranslator translator(scriptText, program);
    translator.translateScriptFile();
  }
  if (!fileExists(program)) return nullptr;

  const std::string configPath = stem + ".config";
  {
    std::ofstream out(StlHelper::AToW(configPath), std::ios::binary | std::ios::trunc);
    if (!out.is_open()) return nullptr;
    out << configText;
  }
  const std::string result = stem + ".drtmp";

  const std::string perl = QXFileSystem::GetPerlExepath();
  const std::string python = QXFileSystem::GetPythonExepath();
  // A substring test over the whole path, temporary folder included.
  const std::string& interpreter = program.find(".py") != std::string::npos ? python : perl;
  runInterpreter(interpreter, program, configPath, result, "");

  std::unique_ptr<DRResultTree> tree;
  if (fileExists(result)) tree = std::make_unique<DRResultTree>(result);
  platform::deleteFile(result);
  platform::deleteFile(program);
  platform::deleteFile(configPath);
  return tree.release();
}

std::string DesignNoteParser::checkScriptFile(const std::string& scriptText) {
  std::string messages;
  {
    DRCheck check(scriptText);
    check.syntaxCheck();
    messages = check.getErrStr();
  }
  if (!messages.empty()) return messages;
  const std::string path = QXFileSystem::GetTempFolder() + "DRCheck.pl";
  DRTranslator translator(scriptText, path);
  translator.translateScriptFile();
  platform::deleteFile(path);
  return translator.errorText;
}

bool DesignNoteParser::BuildSyntaxStringFromTree(const DRResultTree* tree, int depth, std::string& text,
                                                 std::list<int>& closeLines, int& lineCounter) {
  return results::buildSyntaxStringFromTree(tree, depth, text, closeLines, lineCounter);
}
