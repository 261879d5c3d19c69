// Calls that the bytes of an input describe, checked against the header and the interpreter.
#pragma once

#include "fuzz/input.h"
#include "tests/support/array.h"

namespace xfm::fuzz {

/// A fixed-length kernel or a generic function.
void call_single(Input& input);
/// A function of batches.
void call_batch(Input& input);
/// A size of a work buffer.
void call_size(Input& input);

/// Scalars of some kind, of which the input may choose the first bit by bit.
test::Array draw(Input& input, catalogue::Precision precision, int count);

/// Filled before a call, to see what it wrote.
constexpr int untouched = 0xAA;

}  // namespace xfm::fuzz
