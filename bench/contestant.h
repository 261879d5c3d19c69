// What the bench times: something that can run its transform many times in a row.
#pragma once

#include <memory>

namespace xfm::bench {

/// The loop over calls belongs to the contestant, so that each call in it is the plain call that a user would
/// write, with no indirection of the bench inside the timed loop.
class Contestant {
 public:
  virtual ~Contestant() = default;
  virtual void run(int calls) = 0;
  /// What the output is to be multiplied by to be the transform.
  virtual double factor() const { return 1; }
};

using ContestantPtr = std::unique_ptr<Contestant>;

}  // namespace xfm::bench
