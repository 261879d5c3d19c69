// The families of transforms, from their list (families.def).
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "gen/kernel.h"
#include "gen/targets/target.h"

namespace xfm {

/// Designs a kernel of a length, by its row or by another tree.
using Designer = std::function<gen::Design(int length, gen::Precision precision, const std::string& tree,
                                           const gen::Target& target)>;

struct Family {
  std::string name;  ///< "DFTFwd_CToC": between the prefix and the length
  int lowest, highest;
  bool complex;
  std::string documentation;  ///< Doxygen text
  Designer design;            ///< none in a family that is written by hand

  bool by_hand() const { return !design; }
  /// What the generic function's argument is called, and whether the last argument is a work buffer.
  std::string argument() const { return by_hand() ? "order" : "length"; }
  bool takes_buffer() const { return by_hand(); }

  std::vector<gen::ElementType> types() const;
  std::vector<int> lengths() const;
  std::string generic(const gen::ElementType& type) const { return "xfm" + name + "_" + type.suffix(); }
  gen::Kernel make(int length, gen::Precision precision, const std::string& tree = "",
                   const gen::Target& target = gen::baseline()) const;
};

const std::vector<Family>& families();

/// The other exported functions, which the header's hand-written frame declares.
const std::vector<std::string>& plain_functions();

}  // namespace xfm
