// A test fixture for tests that drive a terminal over the small fixture
// grammar of tests/data/terminal: the grammar is loaded once per suite and
// dropped afterwards, and each test gets a fresh interactive terminal "R1"
// (owned by the fixture) in the mode it starts in.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "config/QxParserUtil.h"
#include "support/TestResources.h"
#include "terminal/VTY.h"

namespace testsupport {

class TerminalFixture : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    useResources(fixtureResources("terminal"));
    qxparser::QxParserUtil::createNewParserResource();
  }
  static void TearDownTestSuite() { qxparser::QxParserUtil::destroyParserResource(); }
  void SetUp() override { vty_ = std::make_unique<qxparser::VTY>("R1", true); }

  // What the terminal has written since the last call.
  std::string take() {
    std::string out;
    vty_->getOutputString(out);
    return out;
  }

  std::unique_ptr<qxparser::VTY> vty_;
};

}  // namespace testsupport
