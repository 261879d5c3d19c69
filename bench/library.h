// A build of libxfm as a source of functions: the one that this program is linked to, or another one beside
// it.
#pragma once

#include <memory>
#include <string>

namespace xfm::bench {

class Library {
 public:
  /// The one that this program is linked to.
  Library() = default;
  /// Another build, loaded from its file; throws if that cannot be loaded.
  explicit Library(const std::string& file);

  /// An exported function, good as long as the library. Throws if there is no such function, or if another
  /// build yields the function of this one: a kernel would race itself.
  template <class Function>
  Function function(const std::string& name) const {
    return reinterpret_cast<Function>(address(name));
  }

 private:
  void* address(const std::string& name) const;

  struct Close {
    void operator()(void* handle) const;
  };
  std::unique_ptr<void, Close> handle_;  // null for the one linked
};

}  // namespace xfm::bench
