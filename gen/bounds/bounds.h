// Certified bounds on the error of a kernel, from its scalar program.
//
// Every value v of a program is a linear form f(v) of the inputs x. An operation returns w (1 + d) + t, where
// w is its exact result for the operands as they were computed, |d| <= u is its rounding, and t, which is not
// zero if it underflows, is at most half the least subnormal number. The forms take constants as they are
// stored; T is the exact transform. Then the error of output j is
//
//   sum over v of g(v, j) (d(v) w(v) + t(v))  +  (f(j) - T(j)) x,
//
// with the gain g(v, j) by which a change of v reaches the output. This is an equation, not an approximation
// of first order, because the program is linear. What is of second order is in w(v), which differs from
// f(v) x by no more than the running error bound of the operands (Higham 2002, section 3.3).
//
// The sum is bounded for each group of operations of one depth by the lesser of
//
//   sum of |g(v, j)| |f(v)|                              each operation at its own worst input
//   |(g(v, j) |f(v)|)|_2  times the spectral norm        all of them at the same input (Cauchy and Schwarz)
//   of the rows f(v) / |f(v)|.
//
// Forms are evaluated in binary128, norms and gains in binary64; bounds.cpp says what makes up for that.
#pragma once

#include "gen/network/check.h"
#include "gen/network/program.h"

namespace xfm::gen {

/// u: the relative error of a rounding is no greater.
inline double unit_roundoff(Precision precision) {
  return precision == Precision::binary32 ? 0x1p-24 : 0x1p-53;
}

/// |computed - exact| <= norm u |x|_2 + underflow t, and <= unit u max |x(i)| + underflow t, where t is half
/// the least subnormal number, 2^-150 or 2^-1075. Overflow excepted.
struct Bound {
  double norm = 0, unit = 0, underflow = 0;
};

/// The greatest of each over all outputs.
Bound greatest(const Sequence<Bound>& bounds);

/// Rows of outputs, columns of inputs.
using Matrix = Sequence<Sequence<Wide>>;
Matrix matrix_of(const Definition& definition, int read, int written);

/// What multiplies the outputs: 1, or a factor below 1, whose product rounds, and which is itself stored with
/// a relative error of at most 2 u.
enum class Factor { one, any };

class ErrorAnalysis {
 public:
  /// Of what a network computes from so many inputs. They and the outputs are numbered by places in memory.
  ErrorAnalysis(const Network& network, Precision precision, int inputs, int outputs);

  /// For each output; norm and unit are relative to the factor, underflow is not. Throws std::runtime_error
  /// if the program does not compute this matrix.
  Sequence<Bound> bounds(const Matrix& exact, Factor factor) const;

  /// Inputs 1 and -1 at which the roundings of an output could add up to much: the sum of |g(v) f(v) x| is
  /// made greater and greater, from these signs on.
  Sequence<double> worst_signs(int output, Sequence<double> signs) const;

 private:
  using Row = Sequence<double>;
  /// A magnitude for |x|_2 = 1, and one for |x(i)| <= 1.
  struct Size {
    double norm = 0, unit = 0;
  };
  struct Value {
    double rounding = 0, underflow = 0;  ///< of its operation: the greatest d and t, in units of the kernel's
    int depth = 0;
    Size size{};                  ///< of the form
    Size before{}, after{};       ///< running error bounds of w and of the result, in units of u
    double underflow_before = 0;  ///< what underflow adds to them
    double underflow_after = 0;
  };
  struct Group {
    bool scales;  ///< by the factor, where the other groups do anything else
    Sequence<int> values;
    double spectral_norm = 0;
  };

  void classify(int id);
  void find_form(int id);
  void find_running_error(int id);
  void find_inputs_read();
  void find_gains();
  void find_groups();
  Bound roundings(int output, Factor factor) const;
  Bound bound(int output, const Sequence<Wide>& exact, Factor factor) const;

  const Precision precision_;
  const int inputs_;
  Programs programs_{Equality::bits};
  const Program program_;
  const Sequence<Programs::Operation>& operations_;
  Sequence<int> read_;  ///< the inputs that are: not those at the places of a layout's zeros
  Sequence<Value> values_;
  Sequence<Sequence<Wide>> forms_;
  Sequence<Row> rows_;   ///< the forms in binary64
  Sequence<Row> gains_;  ///< of each value, to all outputs
  Sequence<Group> groups_;
};

/// Of a network that is bound to memory.
Sequence<Bound> bounds(const Network& network, Precision precision, const Matrix& exact, Factor factor);

}  // namespace xfm::gen
