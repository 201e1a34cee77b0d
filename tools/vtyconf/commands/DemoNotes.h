// The design-note step of `vtyconf demo`: two example notes run over the
// example configuration, their result trees printed.
#pragma once

#include <filesystem>

namespace vtycli {

// False, after a message, when a note could not be run (no perl, say).
bool runDemoNotes(const std::filesystem::path& examples, const std::filesystem::path& config);

}  // namespace vtycli
