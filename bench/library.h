// A build of libxfm as a source of functions: the one that this program is linked to, or a private copy of a
// file.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace xfm::bench {

class Library {
 public:
  /// The one that this program is linked to.
  Library() = default;
  /// A fresh copy of the file, loaded; throws if that fails.
  explicit Library(const std::string& file);

  /// An exported function, valid as long as the library is. Throws if the library has no such function of its
  /// own.
  template <class Function>
  Function function(const std::string& name) const {
    return reinterpret_cast<Function>(address(name));
  }
  /// Where it was loaded from.
  std::string file() const;

 private:
  void* address(const std::string& name) const;

  struct Close {
    void operator()(void* handle) const;
  };
  std::string file_;
  std::unique_ptr<void, Close> handle_;  // null for the one linked
};

/// What races: this build, and another one or none. Several copies of each, of which every kernel runs in the
/// fastest: its time can depend by half on the physical pages that hold its code, and those are a matter of
/// luck, which lasts as long as the system caches the file.
struct Builds {
  std::vector<Library> ours;
  std::vector<Library> other;
};

/// This build as it is linked; or, if a file is named, copies of it and of the build in the file.
Builds loaded_builds(const std::string& other_file);

}  // namespace xfm::bench
