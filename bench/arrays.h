// The data of one race: both contestants transform the same input at the same addresses.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "tools/catalogue.h"

namespace xfm::bench {

struct Placement {
  bool unaligned = false;  ///< both arrays start one real scalar past an aligned address
  bool in_place = false;   ///< dst is src
};

class Arrays {
 public:
  Arrays(const catalogue::Kernel& kernel, Placement placement);

  void* src() { return src_; }
  void* dst() { return dst_; }
  /// Work buffer of the kernel; null where it needs none.
  void* buffer() { return buffer_; }

  /// The same pseudo-random input every time.
  void fill();
  /// Zeros: repeated transforms in place, or of an input that the last one has destroyed, then neither grow
  /// nor shrink, and take as long as any others.
  void clear();
  /// The elements of dst as binary64.
  std::vector<double> output() const;

 private:
  struct Free {
    void operator()(std::byte* memory) const;
  };
  std::unique_ptr<std::byte, Free> memory_;
  std::size_t size_;
  catalogue::Precision precision_;
  int read_, written_;
  std::byte* src_;
  std::byte* dst_;
  std::byte* buffer_;
};

}  // namespace xfm::bench
