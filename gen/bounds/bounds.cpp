#include "gen/bounds/bounds.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <stdexcept>
#include <utility>

#include "gen/bounds/spectral_norm.h"

namespace xfm::gen {
namespace {

using Kind = Programs::Kind;

// Underflow of a binary64 operation in a binary32 kernel, in units of the kernel's: 2^-1075 / 2^-150.
constexpr double inner_underflow = 0x1p-925;

// The evaluation of a bound rounds too. All of that is relative to the running error bound of the output, to
// which every path from every operation contributes without cancellation:
//
// - A form in binary128 has the running error of the program itself with 2^-113 for u, since operations that
//   are exact in the kernel are exact there: in units of u, at most 2^-60 of the bound.
// - A gain in binary64 is a sum over fewer than 2^13 operations on each path: 2^-53 2^14 = 2^-39.
//
// Norms and sums of at most 2^13 positive terms in binary64, and spectral norms of at most 128 rows, are
// relatively right to 2^-30. An entry of the exact matrix is right to 2^-110, which is 2^-57 in units of u,
// and a row has at most 128.
constexpr double of_running_error = 0x1p-38, relative = 1 + 0x1p-29, of_matrix = 0x1p-49;

// A stored factor, in units of u: 1 divided by N, or by the root of N, which is rounded itself in binary64.
constexpr double of_stored_factor = 2;

bool is_power_of_two(double v) {
  int exponent = 0;
  return std::abs(std::frexp(v, &exponent)) == 0.5;
}

// A program ends with the last output that is computed; zeros may be stored behind it.
Program with_zeros(Program program, int outputs) {
  program.resize(static_cast<std::size_t>(outputs));
  return program;
}

double norm_of(const Sequence<double>& row) {
  double squares = 0;
  for (const double v : row) squares += v * v;
  return std::sqrt(squares);
}

double sum_of(const Sequence<double>& row) {
  double sum = 0;
  for (const double v : row) sum += std::abs(v);
  return sum;
}

}  // namespace

Bound greatest(const Sequence<Bound>& bounds) {
  Bound all;
  for (const Bound& one : bounds) {
    all.norm = std::max(all.norm, one.norm);
    all.unit = std::max(all.unit, one.unit);
    all.underflow = std::max(all.underflow, one.underflow);
  }
  return all;
}

Matrix matrix_of(const Definition& definition, int read, int written) {
  Matrix matrix(written, Sequence<Wide>(read));
  Sequence<Wide> src(read), dst(written);
  for (int in = 0; in < read; ++in) {
    src[in] = 1;
    definition(src, dst);
    src[in] = 0;
    for (int out = 0; out < written; ++out) matrix[out][in] = dst[out];
  }
  return matrix;
}

ErrorAnalysis::ErrorAnalysis(const Network& network, Precision precision, int inputs, int outputs)
    : precision_(precision),
      inputs_(inputs),
      program_(with_zeros(programs_.read(network, precision), outputs)),
      operations_(programs_.operations()),
      values_(operations_.size()),
      forms_(operations_.size()),
      rows_(operations_.size()),
      gains_(operations_.size(), Row(program_.size())) {
  for (int id = 0; id < operations_.size(); ++id) {
    classify(id);
    find_form(id);
    find_running_error(id);
  }
  find_inputs_read();
  find_gains();
  find_groups();
}

// Which operations round, and which underflow: sums of numbers of a precision are exact where they are
// subnormal. A factor counts; where it is 1, roundings() leaves it out.
void ErrorAnalysis::classify(int id) {
  const Programs::Operation& operation = operations_[id];
  Value& value = values_[id];
  const bool is_inner = operation.precision != precision_;
  const double rounding = is_inner ? unit_roundoff(operation.precision) / unit_roundoff(precision_) : 1;
  const double underflow = is_inner ? inner_underflow : 1;
  const auto is_zero = [&](Result r) { return operations_[r.operation].kind == Kind::zero; };
  switch (operation.kind) {
    case Kind::input:
    case Kind::zero:
      return;
    case Kind::add:
      if (is_zero(operation.a) || is_zero(operation.b) || operation.a.operation == operation.b.operation)
        break;
      value.rounding = rounding;
      break;
    case Kind::mul:
      if (!is_power_of_two(operation.constant)) value.rounding = rounding;
      value.underflow = underflow;
      break;
    case Kind::scale:
      value.rounding = rounding;
      value.underflow = underflow;
      break;
    case Kind::narrow:
      value.rounding = rounding;
      value.underflow = underflow;
      break;
  }
  for (const Result r : {operation.a, operation.b}) {
    if (r.operation >= 0) value.depth = std::max(value.depth, values_[r.operation].depth);
  }
  if (value.rounding > 0) ++value.depth;
}

void ErrorAnalysis::find_form(int id) {
  const Programs::Operation& operation = operations_[id];
  Sequence<Wide>& form = forms_[id];
  form = Sequence<Wide>(inputs_);
  if (operation.kind == Kind::input) form[operation.input] = 1;
  if (operation.kind == Kind::mul) {
    const Sequence<Wide>& a = forms_[operation.a.operation];
    for (int i = 0; i < inputs_; ++i) {
      if (a[i] != 0) form[i] = Wide(operation.constant) * a[i];
    }
  } else {
    for (const Result r : {operation.a, operation.b}) {
      if (r.operation < 0) continue;
      const Sequence<Wide>& operand = forms_[r.operation];
      for (int i = 0; i < inputs_; ++i) {
        if (operand[i] == 0) continue;
        const Wide v = r.negative ? -operand[i] : operand[i];
        form[i] = form[i] == 0 ? v : form[i] + v;
      }
    }
  }
  rows_[id] = tabulated(inputs_, [&](int i) { return static_cast<double>(form[i]); });
  values_[id].size = {norm_of(rows_[id]), sum_of(rows_[id])};
}

void ErrorAnalysis::find_running_error(int id) {
  const Programs::Operation& operation = operations_[id];
  const double c = operation.kind == Kind::mul ? std::abs(operation.constant) : 1;
  const double u = unit_roundoff(precision_);
  Value& value = values_[id];
  for (const Result r : {operation.a, operation.b}) {
    if (r.operation < 0) continue;
    const Value& operand = values_[r.operation];
    value.before.norm += c * operand.after.norm;
    value.before.unit += c * operand.after.unit;
    value.underflow_before += c * operand.underflow_after;
  }
  const auto after = [&](double before, double size) {
    return before + value.rounding * (size + u * before);
  };
  value.after = {after(value.before.norm, value.size.norm), after(value.before.unit, value.size.unit)};
  value.underflow_after = value.underflow_before * (1 + u * value.rounding) + value.underflow;
}

void ErrorAnalysis::find_inputs_read() {
  for (const Programs::Operation& operation : operations_) {
    if (operation.kind == Kind::input) read_.push_back(operation.input);
  }
}

// From the outputs back to the inputs.
void ErrorAnalysis::find_gains() {
  for (int j = 0; j < program_.size(); ++j) {
    if (program_[j].operation >= 0) gains_[program_[j].operation][j] = 1;  // a sign does not matter
  }
  for (int id = operations_.size() - 1; id >= 0; --id) {
    const Programs::Operation& operation = operations_[id];
    for (const Result r : {operation.a, operation.b}) {
      if (r.operation < 0) continue;
      const double c = (operation.kind == Kind::mul ? operation.constant : 1) * (r.negative ? -1 : 1);
      Row& to = gains_[r.operation];
      const Row& from = gains_[id];
      for (int j = 0; j < program_.size(); ++j) to[j] += c * from[j];
    }
  }
}

void ErrorAnalysis::find_groups() {
  std::map<std::pair<int, bool>, Group> by_depth;
  for (int id = 0; id < values_.size(); ++id) {
    const bool is_used = std::ranges::any_of(gains_[id], [](double gain) { return gain != 0; });
    if (values_[id].rounding == 0 || !is_used) continue;
    const bool scales = operations_[id].kind == Kind::scale;
    Group& group = by_depth[{values_[id].depth, scales}];
    group.scales = scales;
    group.values.push_back(id);
  }
  for (auto& [depth, group] : by_depth) {
    Sequence<Row> rows;
    for (const int id : group.values) {
      const double norm = values_[id].size.norm;
      rows.push_back(
          tabulated(read_.size(), [&](int i) { return norm > 0 ? rows_[id][read_[i]] / norm : 0; }));
    }
    group.spectral_norm = spectral_norm_bound(rows);
    groups_.push_back(std::move(group));
  }
}

// The sum of the equation but for its last term, without a margin.
Bound ErrorAnalysis::roundings(int output, Factor factor) const {
  const double u = unit_roundoff(precision_);
  Bound total;
  for (const Group& group : groups_) {
    if (group.scales && factor == Factor::one) continue;
    double norms = 0, squares = 0, sums = 0;
    for (const int id : group.values) {
      const Value& value = values_[id];
      const double gain = std::abs(gains_[id][output]) * value.rounding;
      norms += gain * value.size.norm;
      squares += gain * value.size.norm * gain * value.size.norm;
      sums += gain * value.size.unit;
      total.norm += gain * u * value.before.norm;
      total.unit += gain * u * value.before.unit;
    }
    const double at_once = std::sqrt(squares) * group.spectral_norm;
    total.norm += std::min(norms, at_once);
    total.unit += std::min(sums, at_once * std::sqrt(read_.size()));
  }
  for (int id = 0; id < values_.size(); ++id) {
    const Value& value = values_[id];
    if (operations_[id].kind == Kind::scale && factor == Factor::one) continue;
    total.underflow +=
        std::abs(gains_[id][output]) * (value.underflow + u * value.rounding * value.underflow_before);
  }
  return total;
}

Bound ErrorAnalysis::bound(int output, const Sequence<Wide>& exact, Factor factor) const {
  const Result result = program_[output];
  if (result.operation < 0) return {};  // a zero is stored
  const double u = unit_roundoff(precision_);
  const Row constants = tabulated(inputs_, [&](int i) {
    const Wide entry = forms_[result.operation][i];
    return static_cast<double>((result.negative ? -entry : entry) - exact[i]) / u;
  });
  const Value& value = values_[result.operation];
  // A stored constant is off by no more than the product by it.
  if (norm_of(constants) > 2 * value.after.norm + 1)
    throw std::runtime_error(fmt::format("output {} is not that of the transform", output));
  const Bound rounded = roundings(output, factor);
  const auto with_margin = [](double bound, double running_error) {
    return (bound + of_running_error * running_error) * relative;
  };
  const double stored = factor == Factor::any ? of_stored_factor : 0;
  return {
      with_margin(rounded.norm + norm_of(constants) + stored * value.size.norm + of_matrix, value.after.norm),
      with_margin(rounded.unit + sum_of(constants) + stored * value.size.unit + of_matrix, value.after.unit),
      with_margin(rounded.underflow, value.underflow_after)};
}

Sequence<Bound> ErrorAnalysis::bounds(const Matrix& exact, Factor factor) const {
  return tabulated(program_.size(), [&](int output) { return bound(output, exact[output], factor); });
}

Sequence<Bound> bounds(const Network& network, Precision precision, const Matrix& exact, Factor factor) {
  return ErrorAnalysis(network, precision, exact[0].size(), exact.size()).bounds(exact, factor);
}

// Each change of signs makes the sum greater. A few make most of the difference.
Sequence<double> ErrorAnalysis::worst_signs(int output, Sequence<double> signs) const {
  constexpr int changes = 6;
  for (int change = 0; change < changes; ++change) {
    Row direction(inputs_);
    for (int id = 0; id < values_.size(); ++id) {
      const double gain = std::abs(gains_[id][output]) * values_[id].rounding;
      if (gain == 0) continue;
      double w = 0;
      for (int i = 0; i < inputs_; ++i) w += rows_[id][i] * signs[i];
      for (int i = 0; i < inputs_; ++i) direction[i] += std::copysign(gain, w) * rows_[id][i];
    }
    for (int i = 0; i < inputs_; ++i) signs[i] = std::copysign(1.0, direction[i]);
  }
  return signs;
}

}  // namespace xfm::gen
