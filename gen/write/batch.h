// Writer of batch kernels: a scalar program with a vector for every scalar, one transform in each lane.
#pragma once

#include <string>

#include "gen/kernel.h"
#include "gen/targets/target.h"

namespace xfm::gen {

/// A kernel with its network read lane by lane; throws if that is not the same scalar program.
Kernel batch_kernel(Kernel kernel);

/// The body of a batch kernel: a function called body.
std::string emit_batch_body(const Kernel& kernel, const Target& target);

/// Whether a body for contiguous transforms, without a transposition before and behind, may pay. Of
/// binary32 complex numbers two fit into 128 bits, so that single kernels shuffle more than others.
bool contiguous_body_pays(const ElementType& type);
/// This body: a function called contiguous.
std::string emit_contiguous_body(const Kernel& kernel, const Target& target);

}  // namespace xfm::gen
