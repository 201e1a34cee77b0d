// vtyconf._core: the library as a Python extension module.
//
// The pure-Python package `vtyconf` (python/vtyconf/) gives the names people
// use; this file only carries values across. The grammar is loaded once per
// process, on the first call that needs it. The library allows one operation
// at a time in a process, so every call takes one module-wide lock and keeps
// the interpreter lock for its whole length: a second thread waits (letting
// the interpreter go while it does), it never runs beside. Records of a parsed
// configuration stay in C++ and are wrapped on access, so reading costs what
// the library costs.
//
// Errors of every kind come back as one exception type, vtyconf.Error, with
// `file` and `line` attributes (None where unknown).
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <mutex>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "config/CaptureCleaner.h"
#include "config/CommandDump.h"
#include "config/FailingLine.h"
#include "config/HintListing.h"
#include "config/NamedQuery.h"
#include "config/QxParserUtil.h"
#include "config/ReaderLineMap.h"
#include "config/RefusedRecord.h"
#include "config/SortedText.h"
#include "notes/DRScriptFile.h"
#include "notes/DesignNoteParser.h"
#include "notes/NoteStaging.h"
#include "platform/Pathname.h"
#include "platform/PlatformOs.h"
#include "platform/QXFileSystem.h"
#include "results/DRResultTree.h"
#include "results/UIVariableForDR.h"
#include "results/UIVariableKind.h"
#include "translator/DRTranslator.h"

namespace py = pybind11;
using qxparser::CiscoCommandLine;
using qxparser::CommandDump;
using qxparser::QxParserUtil;

namespace {

py::object& errorType() {
  static py::object type;
  return type;
}

[[noreturn]] void raiseError(const std::string& message, const std::string& file = std::string(),
                             int line = 0) {
  py::object error = errorType()(message);
  error.attr("file") = file.empty() ? py::object(py::none()) : py::object(py::str(file));
  error.attr("line") = line > 0 ? py::object(py::int_(line)) : py::object(py::none());
  PyErr_SetObject(errorType().ptr(), error.ptr());
  throw py::error_already_set();
}

// Held for the whole of every call into the library. A thread that finds the
// lock taken lets the interpreter go while it waits: the holder may need the
// interpreter to finish (a collection that runs Python code can hand it over).
class LibraryCall {
 public:
  explicit LibraryCall(bool needsGrammar = true) : mLock(mutex(), std::try_to_lock) {
    if (!mLock.owns_lock()) {
      py::gil_scoped_release waiting;
      mLock.lock();
    }
    if (needsGrammar) loadGrammarOnce();
  }

 private:
  static std::mutex& mutex() {
    static std::mutex m;
    return m;
  }
  static void loadGrammarOnce() {
    static bool loaded = false;
    if (loaded) return;
    try {
      QxParserUtil::createNewParserResource();
    } catch (const std::exception& e) {
      raiseError(std::string("cannot load the grammar: ") + e.what());
    }
    loaded = true;
  }
  std::unique_lock<std::mutex> mLock;
};

// ------------------------------------------------------------ parse

struct Refusal {
  std::string file;
  int line = 0;
  std::string text;
  std::string message;
};

// One parsed configuration; owns its records (of all levels).
struct ConfigData {
  std::string name;
  std::string text;
  std::vector<std::string> leftOut;
  qxparser::ReaderLineMap lines;
  std::vector<CiscoCommandLine*> records;
  std::vector<Refusal> refused;
  ConfigData() = default;
  ConfigData(const ConfigData&) = delete;
  ConfigData& operator=(const ConfigData&) = delete;
  // Records hold pointers into the grammar, which lives as long as the process.
  // When the interpreter ends, the process's memory goes back as a whole:
  // deleting a large configuration record by record would only delay the exit.
  ~ConfigData() {
    if (!interpreterEnding()) QxParserUtil::deleteCommands(records);
  }
  static bool& interpreterEnding() {
    static bool ending = false;
    return ending;
  }

  bool isShown(const CiscoCommandLine& record) const {
    if (record.getFlag() == qxparser::CMD_TEXT) return false;
    return lines.isBannerText(record.getLineNo()) || !qxparser::isRefusedRecord(record);
  }
};

// A view of one record; keeps its configuration alive.
struct Record {
  std::shared_ptr<ConfigData> owner;
  const CiscoCommandLine* record;

  int line() const { return owner->lines.fileLineOf(record->getLineNo()); }
  std::string text() const { return CommandDump::commandText(*record); }
  std::vector<Record> children() const {
    std::vector<Record> out;
    for (const CiscoCommandLine* child : record->getChildCommands()) out.push_back(Record{owner, child});
    return out;
  }
  py::dict toDict() const {
    py::dict item;
    item["line"] = line();
    item["level"] = record->getLevel();
    item["text"] = text();
    item["flag"] = CommandDump::flagName(record->getFlag());
    item["order"] = record->getOrderNo();
    item["flags"] = CommandDump::markNames(*record);
    py::list children;
    for (const Record& child : this->children()) children.append(child.toDict());
    item["children"] = children;
    return item;
  }
};

std::vector<Record> topRecords(const std::shared_ptr<ConfigData>& data) {
  std::vector<Record> out;
  for (const CiscoCommandLine* record : data->records) {
    if (record->getParentCommand() == nullptr && data->isShown(*record)) out.push_back(Record{data, record});
  }
  return out;
}

std::shared_ptr<ConfigData> parseText(const std::string& text, const std::string& name, bool clean) {
  LibraryCall call;
  auto data = std::make_shared<ConfigData>();
  data->name = name;
  data->text = text;
  if (clean) qxparser::cleanCapture(data->text, data->leftOut);
  data->lines = qxparser::mapReaderLines(data->text);
  // Read as the device reads pasted text, as the program reads it.
  std::vector<qxparser::RefusedLine> refusedLines;
  try {
    QxParserUtil::getCmdInfoTyped(data->text, data->records, refusedLines);
  } catch (const std::exception& e) {
    QxParserUtil::deleteCommands(data->records);
    raiseError(e.what(), name, qxparser::failingLine(data->lines, data->text));
  }
  std::map<int, std::string> messages;
  for (const qxparser::RefusedLine& line : refusedLines) messages.emplace(line.lineNo, line.message);
  for (const CiscoCommandLine* record : data->records) {
    const auto found = messages.find(record->getLineNo());
    if (found == messages.end() &&
        (data->lines.isBannerText(record->getLineNo()) || !qxparser::isRefusedRecord(*record))) {
      continue;
    }
    data->refused.push_back(Refusal{name, data->lines.fileLineOf(record->getLineNo()),
                                    CommandDump::commandText(*record),
                                    found != messages.end() ? found->second : qxparser::refusalMessage(*record)});
  }
  return data;
}

// The refused lines of a change set. Reads the change set alone for now; the
// configuration it is meant for is taken so that a check against it can
// follow without a change for callers.
std::vector<Refusal> checkChanges(const std::string& changes, const std::string& /*config*/,
                                  const std::string& name) {
  return parseText(changes, name, true)->refused;
}

// ------------------------------------------------------ text operations


std::string merge(const std::string& changes, const std::string& config) {
  LibraryCall call;
  try {
    return QxParserUtil::mergeConfigCmdsDeviceText(changes, config);
  } catch (const std::exception& e) {
    raiseError(e.what());
  }
}

std::string rollback(const std::string& first, const std::string& second, bool delta) {
  LibraryCall call;
  try {
    return QxParserUtil::fallbackConfigCmdsDeviceText(first, second, delta ? 0 : 1);
  } catch (const std::exception& e) {
    raiseError(e.what());
  }
}

std::string sorted(const std::string& config) {
  LibraryCall call;
  try {
    return QxParserUtil::sortConfigDeviceText(config);
  } catch (const std::exception& e) {
    raiseError(e.what());
  }
}

py::object query(const std::string& path, const std::string& what, const std::vector<std::string>& keys) {
  const qxparser::NamedQueryKind* kind = qxparser::namedQuery(what);
  if (kind == nullptr) {
    std::string names;
    for (const auto& known : qxparser::namedQueries())
      names += (names.empty() ? "" : ", ") + std::string(known.name);
    raiseError("unknown query '" + what + "'; queries are " + names);
  }
  if (kind->needsKey && keys.empty()) raiseError("query " + what + " needs a key");
  LibraryCall call;
  std::string text;
  std::vector<std::string> items;
  bool isList = false;
  try {
    isList = qxparser::runNamedQuery(what, keys, path, text, items);
    // In device text, as the program prints it.
    text = QxParserUtil::deviceText(text);
    for (std::string& item : items) item = QxParserUtil::deviceText(item);
  } catch (const std::exception& e) {
    raiseError(e.what(), path);
  }
  if (isList) return py::cast(items);
  return py::str(text);
}

std::vector<py::tuple> hint(std::string config, std::string line) {
  LibraryCall call;
  std::vector<qxparser::ConfigHint> hints;
  try {
    QxParserUtil::hintCommand(config, line, hints);
  } catch (const std::exception& e) {
    raiseError(e.what());
  }
  std::vector<py::tuple> out;
  for (const qxparser::HintLevel& level : qxparser::hintLevels(hints)) {
    std::vector<std::pair<std::string, std::string>> words;
    for (const qxparser::HintWord& word : level.words) words.emplace_back(word.word, word.help);
    out.push_back(py::make_tuple(level.prompt, words));
  }
  return out;
}

// ------------------------------------------------------------- notes

void requireReadable(const std::string& path) {
  if (platform::access(path, 4) != 0 || Pathname(path).isDirectory())
    raiseError("cannot read the script", path);
}

std::vector<std::string> messageLines(const std::string& messages) {
  std::vector<std::string> out;
  std::istringstream in(messages);
  std::string line;
  while (std::getline(in, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (!line.empty()) out.push_back(line);
  }
  return out;
}

std::vector<std::string> checkNote(const std::string& script) {
  requireReadable(script);
  LibraryCall call(false);
  return messageLines(DesignNoteParser::checkScriptFile(DRScriptFile(script).getContext()));
}

std::string translateNote(const std::string& script) {
  requireReadable(script);
  LibraryCall call(false);
  std::ifstream in(script, std::ios::binary);
  const std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  NoteStaging folder;
  const std::string target = folder.folder() + platform::kPathSeparator + "note.pl";
  DRTranslator translator(text, target);
  translator.translateScriptFile();
  if (!translator.errorText.empty()) {
    const std::vector<std::string> lines = messageLines(translator.errorText);
    raiseError(lines.empty() ? translator.errorText : lines.front(), script);
  }
  std::ifstream program(target, std::ios::binary);
  if (!program) raiseError("cannot write the program", target);
  return std::string((std::istreambuf_iterator<char>(program)), std::istreambuf_iterator<char>());
}

py::list treeLines(const DRResultTree& tree) {
  py::list lines;
  for (const LineFormat* line : tree.getLines()) {
    if (line == nullptr) continue;
    const char* tag = line->mTagKind == LineTagOpen    ? "open"
                      : line->mTagKind == LineTagClose ? "close"
                                                       : "none";
    py::list children = line->mChildren != nullptr ? treeLines(*line->mChildren) : py::list();
    lines.append(py::make_tuple(line->mLineNumber, line->mText, tag, line->mLineCount, children));
  }
  return lines;
}

py::list runNote(const std::string& script, const std::string& config, const std::string& configName,
                 const std::vector<std::pair<std::string, std::string>>& ui) {
  std::unique_ptr<UIVariableForDR> values;
  for (const auto& [kindName, value] : ui) {
    const int kind = uiVariableKindNamed(kindName);
    if (kind == 0)
      raiseError("ui kind '" + kindName +
                 "': expected one of interface, protocol, address, interface-name, vrf, route-map, nat");
    if (!values) values = std::make_unique<UIVariableForDR>();
    values->addVariableValue(kind, value);
  }
  LibraryCall call(false);
  NoteStaging staged;
  std::string error;
  std::string messages;
  if (!staged.stageScript(script, error, messages)) {
    if (!error.empty()) raiseError(error, script);
    const std::vector<std::string> lines = messageLines(messages);
    raiseError(lines.empty() ? messages : lines.front(), script);
  }
  std::string text = config;
  std::vector<std::string> leftOut;
  qxparser::cleanCapture(text, leftOut);
  if (!staged.stageConfigText(text, error)) raiseError(error, configName);
  std::unique_ptr<DRResultTree> tree(
      DesignNoteParser::getDesignNoteTree(staged.scriptPath(), staged.configPath(), values.get()));
  if (!tree) raiseError("the note wrote no result (is perl installed, or VTYCONF_PERL set?)", script);
  return treeLines(*tree);
}

std::string recordRepr(const Record& r) {
  return "Record(line=" + std::to_string(r.line()) + ", level=" + std::to_string(r.record->getLevel()) +
         ", text=" + py::repr(py::str(r.text())).cast<std::string>() + ")";
}

}  // namespace

PYBIND11_MODULE(_core, m) {
  m.doc() = "The native part of vtyconf; use the package `vtyconf`.";
  errorType() = py::reinterpret_steal<py::object>(PyErr_NewExceptionWithDoc(
      "vtyconf.Error", "An error of vtyconf; `file` and `line` say where (or None).", PyExc_Exception,
      nullptr));
  m.attr("Error") = errorType();
  py::module_::import("atexit").attr("register")(
      py::cpp_function([]() { ConfigData::interpreterEnding() = true; }));

  py::class_<Refusal>(m, "Refusal", "A line the device refused: file, line (the file's own), text, message.")
      .def_readonly("file", &Refusal::file)
      .def_readonly("line", &Refusal::line)
      .def_readonly("text", &Refusal::text)
      .def_readonly("message", &Refusal::message)
      .def("__eq__",
           [](const Refusal& a, const Refusal& b) {
             return a.file == b.file && a.line == b.line && a.text == b.text && a.message == b.message;
           })
      .def("__repr__", [](const Refusal& r) {
        return "Refusal(" + r.file + ":" + std::to_string(r.line) + ": " +
               py::repr(py::str(r.text)).cast<std::string>() + ", " + r.message + ")";
      });

  py::class_<Record>(m, "Record", "One command as the device read it, with its child commands.")
      .def_property_readonly("text", &Record::text, "the command's text, without indent")
      .def_property_readonly(
          "level", [](const Record& r) { return r.record->getLevel(); }, "0 at the top")
      .def_property_readonly("line", &Record::line, "the file's own line number")
      .def_property_readonly(
          "order", [](const Record& r) { return r.record->getOrderNo(); }, "device order")
      .def_property_readonly(
          "flag", [](const Record& r) { return CommandDump::flagName(r.record->getFlag()); },
          "how a merge treats it: overwrite, additive, negated, ...")
      .def_property_readonly(
          "flags", [](const Record& r) { return CommandDump::markNames(*r.record); },
          "the names of the set marks: no, stored, mode, ...")
      .def_property_readonly("children", &Record::children, "the commands inside this one")
      .def("to_dict", &Record::toDict, "the record as `vtyconf parse --json` writes it")
      .def("__repr__", &recordRepr);

  py::class_<ConfigData, std::shared_ptr<ConfigData>>(m, "Config", "A configuration as the device read it.")
      .def_readonly("name", &ConfigData::name, "the name given to parse (a file name, or '<text>')")
      .def_readonly("text", &ConfigData::text, "the text that was read (a terminal capture cleaned)")
      .def_readonly("left_out", &ConfigData::leftOut, "capture lines left out, as 'LINE: text'")
      .def_readonly("refused", &ConfigData::refused, "the refused lines, in file order")
      .def_property_readonly(
          "lines", [](const ConfigData& d) { return d.records.size(); }, "lines read")
      .def_property_readonly(
          "records", [](const std::shared_ptr<ConfigData>& d) { return topRecords(d); },
          "the top-level commands (refused lines and comments left out)")
      .def("__len__", [](const std::shared_ptr<ConfigData>& d) { return topRecords(d).size(); })
      .def("__iter__", [](const std::shared_ptr<ConfigData>& d) { return py::iter(py::cast(topRecords(d))); })
      .def("__repr__", [](const ConfigData& d) {
        return "Config(" + py::repr(py::str(d.name)).cast<std::string>() + ", " +
               std::to_string(d.records.size()) + " lines, " + std::to_string(d.refused.size()) + " refused)";
      });

  m.def("parse", &parseText, py::arg("text"), py::arg("name"), py::arg("clean"),
        "Reads a configuration text; `clean` leaves out the lines of a terminal capture.");
  m.def("check", &checkChanges, py::arg("changes"), py::arg("config"), py::arg("name"),
        "The refused lines of a change set meant for `config`.");
  m.def("merge", &merge, py::arg("changes"), py::arg("config"),
        "The configuration after the changes, in device order (NUL indent bytes as blanks).");
  m.def("rollback", &rollback, py::arg("first"), py::arg("second"), py::arg("delta"),
        "The commands that lead back, compared over every level (NUL indent bytes as blanks).");
  m.def("sort", &sorted, py::arg("config"), "The commands in device order.");
  m.def("query", &query, py::arg("path"), py::arg("what"), py::arg("keys"),
        "A named query of the file at `path`: text, or a list for interfaces and acls.");
  m.def("hint", &hint, py::arg("config"), py::arg("line"),
        "The next words after `line` at the end of `config`: [(prompt, [(word, help)])].");
  m.def("check_note", &checkNote, py::arg("script"),
        "The check and trial translation messages of a note file.");
  m.def("translate_note", &translateNote, py::arg("script"), "The Perl program of a note file.");
  m.def("run_note", &runNote, py::arg("script"), py::arg("config"), py::arg("config_name"), py::arg("ui"),
        "Runs a note over a configuration text: [(line, text, tag, count, children)].");
  m.def(
      "set_resources", [](const std::string& folder) { QXFileSystem::SetSystemResourceFolder(folder); },
      py::arg("folder"));
}
