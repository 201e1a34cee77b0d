// Call tables: row files (tests/data/README.md) whose rows name a call, its
// arguments and its results, every field with C escapes. A table test maps
// each name to the call and runs every row; a call that throws gives "throws"
// and the message as its result.
#pragma once

#include <gtest/gtest.h>

#include <exception>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "support/CaseFile.h"

namespace testsupport {

using Args = std::vector<std::string>;

// How many fields of a row are the call's arguments, and the call, whose
// results are joined by tabs.
struct Call {
  size_t arguments;
  std::function<std::string(const Args&)> call;
};
using Calls = std::map<std::string, Call>;

inline std::string yesNo(bool answer) { return answer ? "true" : "false"; }

inline Call oneText(std::function<std::string(const std::string&)> op) {
  return {1, [op](const Args& a) { return op(a.at(0)); }};
}

inline Call oneWord(std::function<bool(const std::string&)> check) {
  return {1, [check](const Args& a) { return yesNo(check(a.at(0))); }};
}

inline Call twoWords(std::function<bool(const std::string&, const std::string&)> check) {
  return {2, [check](const Args& a) { return yesNo(check(a.at(0), a.at(1))); }};
}

// Runs every row of tests/data/<relative>; returns how many there were.
inline size_t runCallTable(const std::string& relative, const Calls& calls) {
  size_t rows = 0;
  for (const std::string& line : dataLines(readDataFile(relative))) {
    Args fields;
    for (const std::string& field : splitFields(line)) fields.push_back(unescaped(field));
    const auto call = calls.find(fields.front());
    const size_t arguments = call == calls.end() ? 0 : call->second.arguments;
    if (call == calls.end() || fields.size() < arguments + 1) {
      ADD_FAILURE() << relative << ": no such call or too few fields: " << line;
      continue;
    }
    std::string result;
    try {
      result = call->second.call(Args(fields.begin() + 1, fields.begin() + 1 + arguments));
    } catch (const std::exception& error) {
      result = std::string("throws ") + error.what();
    }
    EXPECT_EQ(result, joinFields(Args(fields.begin() + 1 + arguments, fields.end()))) << relative << ": " << line;
    ++rows;
  }
  EXPECT_GT(rows, 0u) << relative;
  return rows;
}

}  // namespace testsupport
