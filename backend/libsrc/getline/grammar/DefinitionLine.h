// DefinitionLine: one line of a definition file cut into its five fields, and
// DefinitionLines: the lines of a definition file, one after the other.
//
// A DefinitionLine cuts exactly as ParserToolCase::parseCmdLine does (token,
// help, flags, text, links; the first four lower-cased, tabs read as blanks,
// an empty field between two bars read as one blank), but its fields are views
// into one buffer of its own that the next cut reuses: loading a grammar cuts
// forty thousand lines and keeps only a few of their pieces. The views are
// good until the next cut of the same object.
//
// DefinitionLines hands out the lines of a text as std::getline would (a last
// piece after the final line break only when it is not empty), each without
// the carriage return a file written on another platform leaves at its end.
// The text is either a whole file read at once or a stream read line by line;
// the lines handed out are good until the next one is asked for.
// Neither type is thread-safe; each loader call uses objects of its own.
#pragma once

#include <istream>
#include <string>
#include <string_view>

namespace qxparser {

class DefinitionLine {
 public:
  // Cuts `line`; the fields are empty when it holds blanks only.
  void cut(std::string_view line);

  std::string_view token() const { return mFields[0]; }
  std::string_view help() const { return mFields[1]; }
  std::string_view flags() const { return mFields[2]; }
  std::string_view text() const { return mFields[3]; }
  std::string_view links() const { return mFields[4]; }

 private:
  std::string mBuffer;
  std::string_view mFields[5];
};

class DefinitionLines {
 public:
  // The lines of `text`, which must outlive this object.
  explicit DefinitionLines(std::string_view text) : mRest(text) {}
  // The lines of `stream`, read when asked for.
  explicit DefinitionLines(std::istream& stream) : mStream(&stream) {}

  // The next line; false after the last one.
  bool next(std::string_view& line);

 private:
  std::string_view mRest;
  bool mDone = false;
  std::istream* mStream = nullptr;
  std::string mLine;
};

}  // namespace qxparser
