// Scalar programs: what a network computes, whatever its form.
//
// Read lane by lane, a network of any width is a graph of rounded scalar operations between numbered inputs
// and outputs. Permutations only rename lanes and vanish, sign flips become signs, and a product by 1 is its
// operand. Two networks give the same bits exactly if their graphs are equal, given that addition commutes,
// c*(-v) is -(c*v) and a - b is a + (-b); the sign and payload of NaN excepted. Equal values have equal
// numbers however they were written (hash-consing over all programs of a collection), so two programs are
// compared by the numbers of their outputs.
#pragma once

#include <compare>
#include <cstdint>
#include <map>
#include <string>

#include "gen/network/network.h"

namespace xfm::gen {

/// A result of a program: an operation's number in its collection, and a sign.
struct Result {
  int operation = -1;
  bool negative = false;

  Result operator-() const { return {operation, !negative}; }
  auto operator<=>(const Result&) const = default;
};

/// The results in the order of the outputs; where only zeros are stored there is no operation.
using Program = Sequence<Result>;

/// The numbers of inputs and outputs in a program, by the scalar's place in memory; places that are not
/// listed keep their own. Kernels that must be equal give the same quantity the same number.
struct Numbering {
  PerLane inputs{}, outputs{};
};
inline int number(int place, const PerLane& numbers) {
  return place < numbers.size() ? numbers[place] : place;
}

/// Where two programs may differ.
enum class Equality {
  bits,    ///< nowhere
  values,  ///< in products by 0 and in the signs of zeros: finite data give equal results, up to the signs of
           ///< zeros
};

/// A collection of programs that can be compared.
class Programs {
 public:
  enum class Kind { input, zero, add, mul, scale, narrow };

  struct Operation {
    Kind kind;
    Precision precision;  ///< of the result
    int input = -1;
    double constant = 0;
    Result a{}, b{};
    auto operator<=>(const Operation&) const = default;
  };

  explicit Programs(Equality equality) : equality_(equality) {}

  /// All operations of the collection, by number: operands come before the operations that use them.
  const Sequence<Operation>& operations() const { return operations_; }

  Program read(const Network& network, Precision precision, const Numbering& numbering = {});

  /// 64 bits that depend on the program alone.
  std::uint64_t digest(const Program& program) const;

  /// The program as text, one operation per line.
  std::string text(const Program& program) const;

 private:
  struct Arithmetic;

  Result make(Operation operation);
  Result zero(Precision precision) { return make({.kind = Kind::zero, .precision = precision}); }
  bool is_zero(Result r) const { return operations_[r.operation].kind == Kind::zero; }
  Result add(Result a, Result b, Precision precision);
  Result mul(double constant, Result a, Precision precision);
  Result linear(Operation operation, Result a);
  std::uint64_t hash(const Operation& operation) const;
  std::uint64_t with(std::uint64_t hash, Result r) const;
  std::string name(Result r, const Sequence<int>& names) const;
  std::string line(const Operation& operation, const Sequence<int>& names) const;

  Equality equality_;
  Sequence<Operation> operations_;
  Sequence<std::uint64_t> hashes_;
  std::map<Operation, int> known_;
};

/// Throws if the programs differ, naming both and the first output that differs.
void check_same(const Program& one, const std::string& name, const Program& other,
                const std::string& other_name);

}  // namespace xfm::gen
