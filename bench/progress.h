// How far a long run is.
#pragma once

#include <cstddef>

namespace xfm::bench {

/// Shows "WORK done/all" on the terminal, in place of what was shown before, and nothing any more when all is
/// done. Does nothing if nobody is watching: standard error is no terminal.
void show_progress(const char* work, std::size_t done, std::size_t all);

/// Removes it, so that a line can be printed.
void hide_progress();

}  // namespace xfm::bench
