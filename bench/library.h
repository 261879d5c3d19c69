// Builds of libxfm as sources of functions.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tools/catalogue.h"

namespace xfm::bench {

/// The target of a name; without one, the target whose library the loader has chosen for this program. Throws
/// if this build does not have it or this processor cannot run it.
const catalogue::Target& chosen_target(const std::string& name);

/// A fresh copy of a libxfm, loaded.
class Library {
 public:
  /// Throws if the file cannot be loaded.
  explicit Library(const std::string& file);

  /// An exported function, valid as long as the library is. Throws if the library has no such function of its
  /// own.
  template <class Function>
  Function function(const std::string& name) const {
    return reinterpret_cast<Function>(address(name));
  }

 private:
  void* address(const std::string& name) const;

  struct Close {
    void operator()(void* handle) const;
  };
  std::string file_;
  std::unique_ptr<void, Close> handle_;
};

/// What races: the library of a target of this build, and another one or none.
struct Builds {
  const catalogue::Target* target;
  std::vector<Library> ours;
  std::vector<Library> other;
};

/// The other library is a file, a target of this build by its name, or none. If there is one, several copies
/// of each are loaded, of which every kernel runs in the fastest: its time can depend by half on the physical
/// pages that hold its code, and those are a matter of luck, which lasts as long as the system caches the
/// file.
Builds loaded_builds(const catalogue::Target& target, const std::string& other);

}  // namespace xfm::bench
