// RecordCopy: the copy that merge and fallback place into a level they build.
//
// The copy is made by the copy constructor (with copies of the children)
// and gets `parent` as its parent without being added to the parent's
// children: the caller puts it where it belongs and owns it from then on.
// Internal to the library; no shared state.
#pragma once

#include "config/CiscoCommandLine.h"

namespace qxparser {

inline CiscoCommandLine* copyUnder(const CiscoCommandLine* source, CiscoCommandLine* parent) {
  auto* copy = new CiscoCommandLine(*source);
  copy->setParentCommand(parent, false);
  return copy;
}

}  // namespace qxparser
