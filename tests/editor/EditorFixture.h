// Test helper for the line editor: an editor on a captured screen, fed key
// strings one byte at a time the way the console loop feeds it.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "editor/GetLineData.h"

namespace editortest {

inline std::string bs(int n) { return std::string(n, '\b'); }
inline std::string sp(int n) { return std::string(n, ' '); }

class EditorTest : public ::testing::Test {
 protected:
  void SetUp() override {
    GetLineData::getline_init(nullptr, nullptr);
    ed = std::make_unique<GetLineData>();
    ed->Gl_setconsole(1);
  }
  void TearDown() override { GetLineData::getline_init(nullptr, nullptr); }

  // Begins a line as the console loop does: set-up, then a full draw of the
  // prompt. The screen output of the set-up is dropped.
  void start(const std::string& prompt = "R#", int width = 80) {
    prompt_ = prompt;
    ed->Gl_setwidth(width);
    char none = 0;
    ed->Getlinem(&none, -1, prompt_.c_str(), nullptr);
    ed->setPrompt(prompt_.c_str());
    ed->clearLine();
    ed->gl_fixup(prompt_.c_str(), -2, GetLineData::kBufSize);
    ed->clearOutput();
  }

  // Feeds each byte of keys as one call; returns what was drawn. `last`
  // receives the pointer returned by the last call.
  std::string feed(const std::string& keys, int mode = 0) {
    ed->clearOutput();
    for (char k : keys) {
      char buffer[2] = {k, 0};
      last = ed->Getlinem(buffer, mode, prompt_.c_str(), nullptr);
    }
    return ed->outputString();
  }

  std::string line() const { return ed->getLine(); }

  std::unique_ptr<GetLineData> ed;
  std::string prompt_ = "R#";
  char* last = nullptr;
};

}  // namespace editortest
