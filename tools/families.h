// The families of transforms: the one list that the public header, the export map, the generic functions, the
// kernels and the catalogue of tests and bench are made from.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "gen/kernel.h"

namespace xfm {

struct Family {
  std::string name;  ///< "DFTFwd_CToC": between the prefix and the length
  std::vector<gen::ElementType> types;
  std::vector<int> lengths;   ///< lengths that have a kernel
  int lowest, highest;        ///< what the generic function may accept
  std::string vocabulary;     ///< header that the generated kernels include
  std::string documentation;  ///< Doxygen text of the family
  /// The kernel of a length, by its row or by another tree. Empty in a family that is written by hand.
  std::function<gen::Kernel(int length, gen::Precision precision, const std::string& tree)> make;
  /// Instead of make: what the catalogue tells of a kernel that is written by hand.
  std::function<gen::Row(int length, gen::Precision precision)> row = nullptr;
  std::string argument = "length";  ///< what the generic function's argument is called
  bool takes_buffer = false;        ///< the last argument is a work buffer

  bool by_hand() const { return !make; }
  std::string generic(const gen::ElementType& type) const { return "xfm" + name + "_" + type.suffix(); }
};

const std::vector<Family>& families();

/// The exported functions besides: they are declared in the header's hand-written frame.
const std::vector<std::string>& plain_functions();

}  // namespace xfm
