// Test helpers of the results tests: a private folder below the process's
// temporary folder, and the shared file readers and writers.
#pragma once

#include <string>

#include "support/TestFiles.h"

namespace resultstest {

using testsupport::readFile;
using testsupport::writeFile;

// A fresh, empty folder for one test (ends in a separator).
inline std::string freshFolder(const std::string& name) { return testsupport::scratchFolder(name); }

}  // namespace resultstest
