// The four search statements. Each handler checks the arguments of its call and
// its emitter writes the call, the lines that prepare the result arrays ahead
// of the statement, the loop over the pattern's variables, and the lines that
// hand the group values to the script's variables.
#include "toolkit/ParserToolCase.h"
#include "translator/DRTranslator.h"

using qxparser::ParserToolCase;

int DRTranslator::processSearchLine(WordList& list) { return processSearch(list, "search_line", 1); }

int DRTranslator::processSearchParagraphBegin(WordList& list) {
  return processSearch(list, "search_paragraph_begin", 1);
}

int DRTranslator::processSearchParagraphBetween(WordList& list) {
  return processSearch(list, "search_paragraph_between", 2);
}

int DRTranslator::processSearchParagraph(WordList& list) { return processSearch(list, "search_paragraph", 3); }

int DRTranslator::processSearch(WordList& list, const std::string& keyword, std::size_t patternCount) {
  if (list.empty() || list.back() != keyword) return -1;
  list.pop_back();

  std::vector<std::string> arguments;
  if (getFunVariables(arguments) != 0) return -1;
  // Patterns, then the flag; set and name may be left out from the end.
  if (arguments.size() < patternCount + 1 || arguments.size() > patternCount + 3) {
    reportMessage("Function has wrong argument number on code line ");
    return -1;
  }

  std::vector<std::string> patterns(arguments.begin(), arguments.begin() + static_cast<std::ptrdiff_t>(patternCount));
  std::vector<std::vector<std::string>> groups(patternCount);
  std::vector<std::string> variables;
  for (std::size_t i = 0; i < patternCount; ++i) {
    // Only the first pattern indexes its variables by the loop; the others take
    // element 0, and their substitution variables are dropped.
    std::vector<std::string> dropped;
    solveRegular(patterns[i], groups[i], i == 0 ? variables : dropped, i == 0 ? 0 : 1);
  }

  std::string flag = ParserToolCase::string2Lower(arguments[patternCount]);
  if (flag != "first" && flag != "continuous" && flag != "all") {
    reportMessage("Function has wrong flag argument on code line ");
    return -1;
  }
  flag = "\"" + flag + "\"";

  std::string set = "\"\"";
  if (arguments.size() > patternCount + 1) set = ParserToolCase::string2Lower(arguments[patternCount + 1]);

  std::string name = "\"\"";
  if (arguments.size() > patternCount + 2) {
    std::string text = ParserToolCase::string2Lower(arguments[patternCount + 2]);
    for (int i = 0; i < 2; ++i) {
      std::size_t quote = text.find('"');
      if (quote != std::string::npos) text.erase(quote, 1);
    }
    name = "\"" + text + "\"";
  }

  switch (patternCount) {
    case 1:
      if (keyword == "search_line") return printSearchLine(list, patterns[0], groups[0], variables, flag, set, name);
      return printSearchParaGraphBegin(list, patterns[0], groups[0], variables, flag, set, name);
    case 2:
      return printSearchParaGraphBetween(list, patterns[0], groups[0], variables, patterns[1], groups[1], flag, set,
                                         name);
    default:
      return printSearchParaGraph(list, patterns[0], groups[0], variables, patterns[1], groups[1], patterns[2],
                                  groups[2], flag, set, name);
  }
}

int DRTranslator::printSearchLine(WordList& list, const std::string& pattern, const std::vector<std::string>& groups,
                                  const std::vector<std::string>& variables, const std::string& flag,
                                  const std::string& set, std::string name) {
  return emitSearch(list, "search_line", {pattern}, {&groups}, {"matchResults"}, variables, flag, set, name);
}

int DRTranslator::printSearchParaGraphBegin(WordList& list, const std::string& pattern,
                                            const std::vector<std::string>& groups,
                                            const std::vector<std::string>& variables, const std::string& flag,
                                            const std::string& set, std::string name) {
  return emitSearch(list, "search_paragraph_begin", {pattern}, {&groups}, {"matchResultsBegin"}, variables, flag,
                    set, name);
}

int DRTranslator::printSearchParaGraphBetween(WordList& list, const std::string& beginPattern,
                                              const std::vector<std::string>& beginGroups,
                                              const std::vector<std::string>& variables,
                                              const std::string& endPattern,
                                              const std::vector<std::string>& endGroups, const std::string& flag,
                                              const std::string& set, std::string name) {
  return emitSearch(list, "search_paragraph_between", {beginPattern, endPattern}, {&beginGroups, &endGroups},
                    {"matchResultsBegin", "matchResultsEnd"}, variables, flag, set, name);
}

int DRTranslator::printSearchParaGraph(WordList& list, const std::string& beginPattern,
                                       const std::vector<std::string>& beginGroups,
                                       const std::vector<std::string>& variables, const std::string& endPattern,
                                       const std::vector<std::string>& endGroups, const std::string& middlePattern,
                                       const std::vector<std::string>& middleGroups, const std::string& flag,
                                       const std::string& set, std::string name) {
  return emitSearch(list, "search_paragraph", {beginPattern, endPattern, middlePattern},
                    {&beginGroups, &endGroups, &middleGroups},
                    {"matchResultsBegin", "matchResultsEnd", "matchResultsMiddle"}, variables, flag, set, name);
}

int DRTranslator::emitSearch(WordList& list, const std::string& keyword, const std::vector<std::string>& patterns,
                             const std::vector<const std::vector<std::string>*>& groupLists,
                             const std::vector<std::string>& resultArrays,
                             const std::vector<std::string>& variables, const std::string& flag,
                             const std::string& set, const std::string& name) {
  const bool guarded = !set.empty() && (set[0] == '@' || set[0] == '#');
  const std::string reference = guarded ? "\\" + set : set;

  // A search in a set is skipped when the set is empty.
  if (guarded) {
    insertPreLine("\n", list);
    insertPreLine("if (" + set + ")", list);
    insertPreLine("{", list);
  }
  for (std::size_t i = 0; i < resultArrays.size(); ++i) {
    insertPreLine("@" + resultArrays[i] + " = (\"\") x " + getString(static_cast<int>(groupLists[i]->size())) + ";\r\n",
                  list);
  }

  std::string call = keyword + "(";
  for (const std::string& pattern : patterns) call += pattern + ",";
  call += flag + "," + reference + "," + name;

  if (variables.empty()) {
    list.push_back(call + ");\r");
    list.push_back("\n");
  } else {
    // "{}\nels" and "e\n{\n" join up to "elsif" between two tests and "else"
    // after the last: when any list is not as long as the first, an empty block
    // takes the branch and the search does not run.
    const std::string& first = variables[0];
    std::string text = "$tempSize = " + first + ";\n";
    for (const std::string& variable : variables) text += "if($tempSize != " + variable + ")\n" + "{}\nels";
    text += "e\n{\n";
    text += "#searchset = ();\r\n";
    text += "#oneset = ();\r\n";
    text += "for($index = 0; $index <" + first + "; $index++)\n{\n";
    text += "#oneset = " + call + ");\r\n";
    text += "#searchset = combineLines(\\#searchset, \\#oneset);\r\n";
    text += "}\r\n";
    insertPreLine(text, list);
    list.push_back("#searchset;\r");
    list.push_back("\n");
    // Ends the else: the assignment to the script's target stands inside it.
    insertPreLine("}\n", list);
  }

  for (std::size_t i = 0; i < resultArrays.size(); ++i) {
    const std::vector<std::string>& groups = *groupLists[i];
    for (std::size_t g = 0; g < groups.size(); ++g) {
      list.push_back(groups[g] + " = split (/ /, $" + resultArrays[i] + "[" + getString(static_cast<int>(g)) + "]);\r");
      list.push_back("\n");
    }
  }

  if (guarded) insertPreLine("}", list);
  return 0;
}
