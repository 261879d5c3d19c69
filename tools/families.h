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
  /// The kernel of a length, by its row or by another tree.
  std::function<gen::Kernel(int length, gen::Precision precision, const std::string& tree)> make;

  std::string generic(const gen::ElementType& type) const { return "xfm" + name + "_" + type.suffix(); }
};

const std::vector<Family>& families();

/// The exported functions besides: they are declared in the header's hand-written frame.
const std::vector<std::string>& plain_functions();

}  // namespace xfm
