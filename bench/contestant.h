// What the bench times: something that can run its transform many times in a row.
#pragma once

#include <memory>

namespace xfm::bench {

/// The loop over calls belongs to the contestant, so that each call in it is the plain call that a user would
/// write: the bench adds no indirection inside the timed loop.
class Contestant {
 public:
  virtual ~Contestant() = default;
  virtual void run(int calls) = 0;

  /// A rival with another data layout rearranges the kernel's input into its own before a call whose output
  /// is checked, and its output into the kernel's afterwards. Nothing is rearranged during the race.
  virtual void take_input() {}
  virtual void give_output() {}
  /// Whether a call overwrites src, so that the next one finds other data there.
  virtual bool destroys_input() const { return false; }
  /// Whether its output is the transform. Otherwise it is a yardstick.
  virtual bool transforms() const { return true; }
  /// What the output must be multiplied by to give the transform.
  virtual double factor() const { return 1; }
};

using ContestantPtr = std::unique_ptr<Contestant>;

}  // namespace xfm::bench
