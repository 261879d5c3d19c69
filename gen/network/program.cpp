#include "gen/network/program.h"

#include <fmt/format.h>

#include <bit>
#include <cmath>
#include <stdexcept>
#include <utility>

#include "gen/network/interpreter.h"

namespace xfm::gen {
// The arithmetic that writes down operations. Under Equality::values 0 - v is -v.
struct Programs::Arithmetic {
  using Scalar = Result;

  Programs& programs;
  Precision precision;
  const PerLane& inputs;

  Result input(int place) const {
    return programs.make({.kind = Kind::input, .precision = precision, .input = number(place, inputs)});
  }
  Result zero() const { return programs.zero(precision); }
  Result add(Result a, Result b) const { return programs.add(a, b, precision); }
  Result mul(const Constant& c, Result a) const {
    return programs.mul(gen::rounded(c.value, precision), a, precision);
  }
  Result scale(Result a) const { return programs.linear({Kind::scale, precision}, a); }
  Result rounded(Result a) const {
    return precision == Precision::binary64 ? a : programs.linear({Kind::narrow, precision}, a);
  }
  Arithmetic inner() const { return {programs, Precision::binary64, inputs}; }
};

Program Programs::read(const Network& network, Precision precision, const Numbering& numbering) {
  Program program;
  const Arithmetic arithmetic{*this, precision, numbering.inputs};
  Interpreter(network, arithmetic).each_output([&](int place, Result result) {
    const int output = number(place, numbering.outputs);
    if (output >= program.size()) program.resize(static_cast<std::size_t>(output) + 1);
    program[output] = result;
  });
  return program;
}

Result Programs::make(Operation operation) {
  const auto [place, fresh] = known_.try_emplace(operation, operations_.size());
  if (fresh) {
    hashes_.push_back(hash(operation));
    operations_.push_back(operation);
  }
  return {place->second, false};
}

// Operands are in the order of their hashes, which does not depend on what was read before.
Result Programs::add(Result a, Result b, Precision precision) {
  const auto order = [&](Result r) { return std::pair(hashes_[r.operation], r.negative); };
  if (order(b) < order(a)) std::swap(a, b);
  bool negative = false;
  if (equality_ == Equality::values) {
    if (is_zero(a)) return b;
    if (is_zero(b)) return a;
    negative = a.negative;
    if (negative) a = -a, b = -b;
  }
  const Result sum = make({.kind = Kind::add, .precision = precision, .a = a, .b = b});
  return negative ? -sum : sum;
}

Result Programs::mul(double constant, Result a, Precision precision) {
  if (std::signbit(constant)) return -mul(-constant, a, precision);
  if (constant == 1) return a;
  if (equality_ == Equality::values && (constant == 0 || is_zero(a))) return zero(precision);
  return linear({.kind = Kind::mul, .precision = precision, .constant = constant}, a);
}

// Signs go through an operation with one operand.
Result Programs::linear(Operation operation, Result a) {
  operation.a = {a.operation};
  const Result plain = make(operation);
  return a.negative ? -plain : plain;
}

namespace {

// The finaliser of MurmurHash3 (Appleby 2011) over a running sum.
std::uint64_t mixed(std::uint64_t hash, std::uint64_t word) {
  hash = (hash + word) * 0xff51afd7ed558ccd;
  hash = (hash ^ hash >> 33U) * 0xc4ceb9fe1a85ec53;
  return hash ^ hash >> 33U;
}

}  // namespace

std::uint64_t Programs::with(std::uint64_t hash, Result r) const {
  return r.operation < 0 ? mixed(hash, 0) : mixed(hash, hashes_[r.operation] + (r.negative ? 1 : 0));
}

std::uint64_t Programs::hash(const Operation& operation) const {
  std::uint64_t hash = 0;
  hash = mixed(hash, static_cast<std::uint64_t>(operation.kind));
  hash = mixed(hash, static_cast<std::uint64_t>(operation.precision));
  hash = mixed(hash, static_cast<std::uint64_t>(operation.input));
  hash = mixed(hash, std::bit_cast<std::uint64_t>(operation.constant));
  return with(with(hash, operation.a), operation.b);
}

std::uint64_t Programs::digest(const Program& program) const {
  std::uint64_t hash = 0;
  for (const Result r : program) hash = with(hash, r);
  return hash;
}

std::string Programs::name(Result r, const Sequence<int>& names) const {
  const Operation& of = operations_[r.operation];
  const std::string plain = of.kind == Kind::input  ? fmt::format("x{}", of.input)
                            : of.kind == Kind::zero ? "0"
                                                    : fmt::format("t{}", names[r.operation]);
  return (r.negative ? "-" : "") + plain;
}

std::string Programs::line(const Operation& operation, const Sequence<int>& names) const {
  const auto operand = [&](Result r) { return name(r, names); };
  switch (operation.kind) {
    case Kind::add: {
      // A positive operand first, so that a difference reads as one.
      const bool exchanged = operation.a.negative && !operation.b.negative;
      const Result a = exchanged ? operation.b : operation.a, b = exchanged ? operation.a : operation.b;
      return fmt::format("{} {} {}", operand(a), b.negative ? "-" : "+", operand({b.operation}));
    }
    case Kind::mul:
      return fmt::format("{:a} * {}", operation.constant, operand(operation.a));
    case Kind::scale:
      return "s * " + operand(operation.a);
    default:
      return "round " + operand(operation.a);
  }
}

std::string Programs::text(const Program& program) const {
  Sequence<int> names(operations_.size(), -1);
  int next = 0;
  bool binary32 = false;  // the outputs' precision; operations in another one say so
  for (const Result r : program) {
    if (r.operation >= 0) binary32 = operations_[r.operation].precision == Precision::binary32;
  }
  std::string text;
  const auto write = [&](const auto& self, int id) -> void {
    const Operation& operation = operations_[id];
    if (operation.kind == Kind::input || operation.kind == Kind::zero || names[id] >= 0) return;
    for (const Result r : {operation.a, operation.b}) {
      if (r.operation >= 0) self(self, r.operation);
    }
    names[id] = next++;
    text += fmt::format("t{} = {}{}\n", names[id], line(operation, names),
                        binary32 && operation.precision == Precision::binary64 ? "  (binary64)" : "");
  };
  for (int k = 0; k < program.size(); ++k) {
    const Result r = program[k];
    if (r.operation < 0) continue;
    write(write, r.operation);
    text += fmt::format("y{} = {}\n", k, name(r, names));
  }
  return text;
}

void check_same(const Program& one, const std::string& name, const Program& other,
                const std::string& other_name) {
  if (one.size() != other.size())
    throw std::runtime_error(fmt::format("{}: the number of outputs is not that of {}", name, other_name));
  for (int k = 0; k < one.size(); ++k) {
    if (one[k] != other[k])
      throw std::runtime_error(fmt::format("{}: output {} is not computed as in {}", name, k, other_name));
  }
}

}  // namespace xfm::gen
