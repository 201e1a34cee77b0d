// DeviceOrderSort: the order in which a merge writes one nesting level.
//
// The level is put in order by a selection sort whose comparison is not a
// strict order: two commands are compared by line number when both have one,
// else by order number when both have one, else not at all. The outcome
// therefore depends on the exact procedure, and both functions here give the
// outcome of that procedure: selectionOrderPlain runs it as it is (quadratic),
// selectionOrder finds each pass's candidate by jumping from one change of
// candidate to the next through minimum trees, which gives the same sequence.
// It leaves alone the positions ahead of the first one that a later key beats
// (one pass from the back finds it), and runs the plain procedure on a rest
// of a few keys.
//
// Plain values in and out; no shared state; not tied to any grammar.
#pragma once

#include <cstddef>
#include <vector>

#include "config/CiscoCommandLine.h"

namespace qxparser {

struct DeviceOrderKey {
  int lineNo = 0;   // counts when at least 1
  int orderNo = 0;  // counts when at least 1
};

// The sorted sequence as indices into `keys`: element k of the result is the
// index of the key that ends at position k.
std::vector<size_t> selectionOrderPlain(const std::vector<DeviceOrderKey>& keys);
std::vector<size_t> selectionOrder(const std::vector<DeviceOrderKey>& keys);

// Sorts records of one level by their line and order numbers.
void sortByDeviceOrder(std::vector<CiscoCommandLine*>& commands);

}  // namespace qxparser
