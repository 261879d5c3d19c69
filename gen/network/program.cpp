#include "gen/network/program.h"

#include <fmt/format.h>

#include <bit>
#include <optional>
#include <stdexcept>
#include <utility>

namespace xfm::gen {

// Reads the lanes of a network into a program, each lane once.
class ProgramReader {
 public:
  ProgramReader(Programs& programs, const Network& network, Precision precision, const Numbering& numbering)
      : programs_(programs),
        network_(network),
        precision_(precision),
        numbering_(numbering),
        known_(network.nodes().size(), Sequence<std::optional<Result>>(network.width())) {}

  Program run() {
    Program program;
    for (const Store& store : network_.stores()) {
      for (int l = 0; store.node >= 0 && l < store.lanes.size(); ++l) {
        if (store.lanes[l] < 0) continue;
        const int output = number(numbering_.outputs, store.lanes[l]);
        if (output >= program.size()) program.resize(static_cast<std::size_t>(output) + 1);
        program[output] = lane(store.node, l);
      }
    }
    return program;
  }

 private:
  using Kind = Programs::Kind;

  static int number(const PerLane& numbers, int place) {
    return place < numbers.size() ? numbers[place] : place;
  }

  Result lane(NodeId id, int l) {
    if (!known_[id][l]) known_[id][l] = compute(id, l);
    return *known_[id][l];
  }

  Result lane(const Place& place) { return lane(place.node, place.lane); }

  Result compute(NodeId id, int l) {
    const Node& node = network_.node(id);
    const Precision precision = network_.inner(id) ? Precision::binary64 : precision_;
    const auto in = [&](std::size_t operand) { return lane(node.in[operand], l); };
    switch (node.op) {
      case Op::load:
        if (node.lanes[l] < 0) return programs_.zero(precision);
        return programs_.make({.kind = Kind::input,
                               .precision = precision,
                               .input = number(numbering_.inputs, node.lanes[l])});
      case Op::permute:
        return lane(network_.source(node, l));
      case Op::sign_flip:
        return node.lanes[l] == 1 ? -in(0) : in(0);
      case Op::add:
        return programs_.add(in(0), in(1), precision);
      case Op::sub:
        return programs_.add(in(0), node.lanes.empty() || node.lanes[l] == 1 ? -in(1) : in(1), precision);
      case Op::mul:
        return programs_.mul(rounded(node.constant(l).value, precision), in(0), precision);
      case Op::twice:
        return programs_.add(in(0), in(0), precision);
      case Op::factor:
        return scale(in(0), precision);
      case Op::minus:
        return minus(in(0), precision);
      case Op::widen:
        return in(0);
      case Op::narrow:
        return narrow(in(0));
      case Op::combination:
        break;
    }
    return combination(node, l);
  }

  Result scale(Result v, Precision precision) {
    const Result plain = programs_.make({.kind = Kind::scale, .precision = precision, .a = {v.operation}});
    return v.negative ? -plain : plain;
  }
  // Under Equality::values 0 - v is -v.
  Result minus(Result v, Precision precision) {
    return programs_.add(programs_.zero(precision), -v, precision);
  }

  // Products and sums in binary64, rounded once if the kernel's precision is lower.
  Result combination(const Node& node, int l) {
    constexpr Precision inner = Precision::binary64;
    std::optional<Result> total;
    for (const Term& term : node.terms) {
      const Result product = programs_.mul(rounded(term.coefficient.value, inner), lane(term.node, l), inner);
      total = total ? programs_.add(*total, product, inner) : product;
    }
    Result result = *total;
    if (scales(node.finish)) result = scale(result, inner);
    if (node.finish == Finish::negated) result = minus(result, inner);
    return node.finish == Finish::unrounded ? result : narrow(result);
  }

  Result narrow(Result v) {
    if (precision_ == Precision::binary64) return v;
    const Result plain = programs_.make({.kind = Kind::narrow, .precision = precision_, .a = {v.operation}});
    return v.negative ? -plain : plain;
  }

  Programs& programs_;
  const Network& network_;
  Precision precision_;
  const Numbering& numbering_;
  Sequence<Sequence<std::optional<Result>>> known_;
};

Program Programs::read(const Network& network, Precision precision, const Numbering& numbering) {
  return ProgramReader(*this, network, precision, numbering).run();
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
  if (constant < 0) return -mul(-constant, a, precision);
  if (constant == 1) return a;
  if (equality_ == Equality::values && (constant == 0 || is_zero(a))) return zero(precision);
  const Result product =
      make({.kind = Kind::mul, .precision = precision, .constant = constant, .a = {a.operation}});
  return a.negative ? -product : product;
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
