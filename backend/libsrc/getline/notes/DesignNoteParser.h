// DesignNoteParser: a folder of design scripts as an object, and the static
// operations that run a note.
//
// As an object it is one folder: its path (without a trailing separator), the
// script files in it and one DesignNoteParser for each subfolder, so that a
// folder tree on disk becomes a tree of objects. It reflects the disk as at
// the moment of its scan; the add and delete operations change disk and object
// together. An object owns its subfolder objects. A copy shares them (it is a
// shallow copy) and must not outlive the object it came from.
//
// The static run operations hand a script's Perl program (or a Python file
// beside it) and a configuration file to an external interpreter, started by
// QXFileSystem with an argument vector and never through a shell, wait for it,
// and read back the one result file it wrote. The program always sees three
// arguments: configuration file, result file, UI folder (ending in a separator,
// or empty when no UI variables were given). Temporary files live in the
// process's private temporary folder and are removed before the call returns.
// Failures are told by an empty string or a null pointer; nothing logs or
// throws. A returned DRResultTree or DesignNoteParser belongs to the caller.
//
// Threading: runs block the calling thread until the interpreter ends. Two runs
// of one script by getDesignNote would share file names; getDesignNoteTree
// without UI variables names its result file by a new identifier. PYTHONHOME,
// set for Python programs, holds for the whole process.
#pragma once

#include <list>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/Export.h"

class DRResultTree;
class UIVariableForDR;

class VTYCONF_API DesignNoteParser {
 public:
  using SubDirectMap = std::map<std::string, DesignNoteParser*>;
  using NameSet = std::set<std::string>;

  // Builds the object on folder; with scan, reads the folder tree. With UI
  // variables that name a root path R, the object ends up naming folder/R, and
  // (with scan) the tree is read from folder with only the subfolder R entered.
  // The folder filter admits folders of one level (the first one, or the one
  // inside R); the name filter excludes files whose name contains a member.
  DesignNoteParser(const std::string& folder, const UIVariableForDR* ui = nullptr, bool scan = true,
                   const NameSet* folderFilter = nullptr, const NameSet* nameFilter = nullptr);
  ~DesignNoteParser();
  DesignNoteParser(const DesignNoteParser& other) = default;
  DesignNoteParser& operator=(const DesignNoteParser& other) = default;

  bool genScriptFileTree(const std::string& folder, const UIVariableForDR* ui, const NameSet* folderFilter,
                         const NameSet* nameFilter);

  // A ".cmf" name is written as a new script (no favourite); a ".py" name is
  // only listed, the caller provides the file.
  bool addScriptFile(const std::string& name, const std::string& context, const std::string& description);
  bool addSubDirect(const std::string& name);
  // Deletes the one file; its side files stay.
  bool delScriptFile(const std::string& name);
  bool delSubDirect(const std::string& name);
  // The path of a script of this folder; for a bare name the first of ".cmf",
  // ".pl", ".py" that exists, else the ".cmf" path all the same.
  std::string getScriptFileFullPath(const std::string& name) const;

  const std::string& getRootDirct() const { return mRootDirct; }
  const SubDirectMap& getSubDirects() const { return mSubDirects; }
  const NameSet& getScriptFiles() const { return mScriptFiles; }

  // The favourite scripts of a folder tree that find something in the
  // configuration; script names without extension, branches with nothing
  // pruned. Null when nothing is found (or the folder or file is missing).
  static DesignNoteParser* getUsefulFiles(const std::string& folder, const std::string& configPath);
  // The same over the design-note root folder.
  static DesignNoteParser* getUsefulFiles(const std::string& configPath);

  // ---- running a note
  // The program to execute for a script: base ".pl", else base ".py", else the
  // path unchanged.
  static std::string getRealScriptFile(const std::string& scriptPath);
  // Translates the script afresh, runs it with Perl and returns the raw result
  // text; empty when anything is missing or no result file was written.
  static std::string getDesignNote(const std::string& scriptPath, const std::string& configPath,
                                   const UIVariableForDR* ui);
  // Runs the stored program of a script and returns its result tree; null when
  // no result file came to be. An empty tree means the note found nothing.
  static DRResultTree* getDesignNoteTree(const std::string& scriptPath, const std::string& configPath,
                                         const UIVariableForDR* ui);
  // Several notes over one configuration: the numbered result lines of all, in
  // configuration order, each line once (the earlier script wins), CR LF after
  // each.
  static std::string getResultByMultiFilters(const std::vector<std::string>& scriptPaths,
                                             const std::string& configPath, const UIVariableForDR* ui);
  // Runs unsaved script text over configuration text.
  static DRResultTree* testDesignFilter(const std::string& scriptText, const std::string& configText);

  // The delimiter check and a trial translation; the empty string when the
  // script is good, else the messages.
  static std::string checkScriptFile(const std::string& scriptText);
  // The path without its script extension (the last ".cmf", else ".pl", else
  // ".py", else the last "."); the folder stays. ("Bace" is the name callers
  // know it by.)
  static std::string getBaceNameFromScriptFilePath(const std::string& path);
  // A result tree as one text; see results::buildSyntaxStringFromTree.
  static bool BuildSyntaxStringFromTree(const DRResultTree* tree, int depth, std::string& text,
                                        std::list<int>& closeLines, int& lineCounter);

  // The argument vector of a run: interpreter, program, configuration file,
  // result file, UI folder.
  static std::vector<std::string> buildRunArguments(const std::string& interpreter, const std::string& program,
                                                    const std::string& configPath, const std::string& resultPath,
                                                    const std::string& uiFolder);

 private:
  std::string pathOf(const std::string& name) const;

  std::string mRootDirct;
  SubDirectMap mSubDirects;  // owned
  NameSet mScriptFiles;
  NameSet mExcludedNames;  // kept, not read again
};
