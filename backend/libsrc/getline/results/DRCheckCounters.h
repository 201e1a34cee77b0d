// Internal to the library (not installed): the two process-wide counts that
// DRCheck uses to limit its messages. They start at 0 and are never reset by a
// check; tests reach them here to start from a known state.
#pragma once

namespace drcheck_detail {

int& errorCount();
int& warningCount();

}  // namespace drcheck_detail
