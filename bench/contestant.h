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

  /// A rival that packs its data in another way rearranges the kernel's input to its own before a call whose
  /// output is looked at, and its output to the kernel's after it. In the race nothing is rearranged.
  virtual void take_input() {}
  virtual void give_output() {}
  /// Whether a call overwrites src, so that the next one finds other data there.
  virtual bool destroys_input() const { return false; }
  /// What the output is to be multiplied by to be the transform.
  virtual double factor() const { return 1; }
};

using ContestantPtr = std::unique_ptr<Contestant>;

}  // namespace xfm::bench
