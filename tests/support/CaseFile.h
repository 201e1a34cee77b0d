// Case tables kept as text files under tests/data/ (format in
// tests/data/README.md). A file holds cases; a case opens with a line
// "=== <name>" and holds sections, each opened by "--- <key>" and made of
// the lines up to the next "---" or "===", every line ending in "\n" as
// written (trailing blanks and tabs count; empty lines in front of a "---"
// or "===" line separate and belong to no section). Lines starting with "#"
// before a case's first section are comments. A section "--- key: value"
// holds the value alone, with no line end and with the escapes \n \r \t \a
// \b \\ and \xHH read as in C. Row files (one row a line, fields cut at
// tabs) are read with dataLines and splitFields.
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace testsupport {

// `text` with the escapes \n \r \t \a \b \\ and \xHH replaced by their characters.
inline std::string unescaped(const std::string& text) {
  std::string out;
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\\' || i + 1 == text.size()) {
      out += text[i];
      continue;
    }
    const char c = text[++i];
    if (c == 'x' && i + 2 < text.size()) {
      out += static_cast<char>(std::stoi(text.substr(i + 1, 2), nullptr, 16));
      i += 2;
    } else {
      out += c == 'n' ? '\n' : c == 'r' ? '\r' : c == 't' ? '\t' : c == 'b' ? '\b' : c == 'a' ? '\a' : c;
    }
  }
  return out;
}

struct Case {
  std::string name;
  std::string file;
  int line = 0;  // of the "===" line
  std::map<std::string, std::string> sections;

  bool has(const std::string& key) const { return sections.count(key) != 0; }
  // The section's text; an absent section fails the test and reads empty.
  const std::string& operator[](const std::string& key) const {
    static const std::string empty;
    auto found = sections.find(key);
    if (found != sections.end()) return found->second;
    ADD_FAILURE() << where() << ": no section " << key;
    return empty;
  }
  // The section's text, or `fallback` where the case has none.
  std::string get(const std::string& key, const std::string& fallback = std::string()) const {
    auto found = sections.find(key);
    return found == sections.end() ? fallback : found->second;
  }
  // "file:line (name)", for failure messages.
  std::string where() const { return file + ":" + std::to_string(line) + " (" + name + ")"; }
};

// Opens the section that `header` ("key" or "key: value") names; returns the
// key that the following lines go to, empty for a one-line value.
inline std::string openSection(Case& c, const std::string& header) {
  const size_t colon = header.find(": ");
  if (colon == std::string::npos) {
    c.sections[header].clear();
    return header;
  }
  c.sections[header.substr(0, colon)] = unescaped(header.substr(colon + 2));
  return std::string();
}

// The cases of tests/data/<relative>; a missing or empty file fails the test.
inline std::vector<Case> readCases(const std::string& relative) {
  std::vector<Case> cases;
  std::ifstream in(std::string(VTYCONF_TEST_DATA_DIR) + "/" + relative, std::ios::binary);
  if (!in) {
    ADD_FAILURE() << "case file missing: tests/data/" << relative;
    return cases;
  }
  std::string line, key, blanks;
  int number = 0;
  while (std::getline(in, line)) {
    ++number;
    if (line.empty() && !key.empty()) {
      blanks += "\n";
      continue;
    }
    if (line.compare(0, 4, "=== ") != 0 && line.compare(0, 4, "--- ") != 0 && !key.empty()) {
      cases.back().sections[key] += blanks;
    }
    blanks.clear();
    if (line.compare(0, 4, "=== ") == 0) {
      cases.push_back(Case{line.substr(4), relative, number, {}});
      key.clear();
    } else if (line.compare(0, 4, "--- ") == 0 && !cases.empty()) {
      key = openSection(cases.back(), line.substr(4));
    } else if (!key.empty()) {
      cases.back().sections[key] += line + "\n";
    } else if (!line.empty() && line[0] != '#') {
      ADD_FAILURE() << relative << ":" << number << ": text outside a section";
    }
  }
  EXPECT_FALSE(cases.empty()) << "no cases in tests/data/" << relative;
  return cases;
}

// Where the case has a section `key`, `actual` must equal it.
inline void expectSection(const Case& c, const std::string& key, const std::string& actual) {
  if (!c.has(key)) return;
  EXPECT_EQ(actual, c[key]) << c.where() << " [" << key << "]";
}

// The whole of tests/data/<relative>; empty when it cannot be read.
inline std::string readDataFile(const std::string& relative) {
  std::ifstream in(std::string(VTYCONF_TEST_DATA_DIR) + "/" + relative, std::ios::binary);
  std::stringstream text;
  text << in.rdbuf();
  return text.str();
}

// The non-empty lines of `text` that do not start with "#".
inline std::vector<std::string> dataLines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  std::string line;
  while (std::getline(in, line)) {
    if (!line.empty() && line[0] != '#') lines.push_back(line);
  }
  return lines;
}

// Splits at every `separator` (fields may be empty).
inline std::vector<std::string> splitFields(const std::string& line, char separator = '\t') {
  std::vector<std::string> fields;
  size_t start = 0;
  for (size_t at = line.find(separator); at != std::string::npos; at = line.find(separator, start)) {
    fields.push_back(line.substr(start, at - start));
    start = at + 1;
  }
  fields.push_back(line.substr(start));
  return fields;
}

// The fields joined by `separator`.
inline std::string joinFields(const std::vector<std::string>& fields, char separator = '\t') {
  std::string out;
  for (size_t i = 0; i < fields.size(); ++i) out += (i > 0 ? std::string(1, separator) : "") + fields[i];
  return out;
}

}  // namespace testsupport
