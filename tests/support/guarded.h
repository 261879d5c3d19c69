// Memory with an inaccessible page on either side: a read or write past an end of it faults.
#pragma once

#include <cstddef>

namespace xfm::test {

class Guarded {
 public:
  /// At least `bytes` between the guards, in whole pages.
  explicit Guarded(std::size_t bytes);
  ~Guarded();
  Guarded(const Guarded&) = delete;
  Guarded& operator=(const Guarded&) = delete;

  std::byte* begin() const { return begin_; }
  std::byte* end() const { return end_; }

  void forbid_writing();
  void allow_writing();

 private:
  std::byte* begin_;
  std::byte* end_;
};

}  // namespace xfm::test
