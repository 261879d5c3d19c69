#include "gen/write/batch.h"

#include <fmt/format.h>

#include <map>
#include <set>

#include "gen/order/schedule.h"
#include "gen/passes/passes.h"
#include "gen/write/emit.h"

namespace xfm::gen {
namespace {

/// Where a kernel's elements are on one side, as text.
struct Places {
  std::string side;  ///< the name of the side, which begins the names of its variables
  PerLane numbers;   ///< of the elements of a packed spectrum
  bool reversible;
  int length;

  bool packed() const { return !numbers.empty(); }
  bool has_third() const { return reversible || (packed() && length > 2); }
  bool has_last() const { return packed() && length % 2 == 0; }
  bool has_step() const { return !packed() || length > 2; }

  std::string address(int place) const {
    const int k = number(place, numbers);
    if (k == 0) return side;
    if (has_last() && k == length) return side + "_last";
    if (!has_third()) return fmt::format("{0} + {1} * {0}_step", side, k);
    return k == 2 ? side + "_third" : fmt::format("{0}_third + {1} * {0}_step", side, k - 2);
  }

  std::string declared() const {
    std::string text = fmt::format("  auto* {0} = {0}_side.first;\n", side);
    if (has_third()) text += fmt::format("  auto* {0}_third = {0}_side.third;\n", side);
    if (has_last()) text += fmt::format("  auto* {0}_last = {0}_side.last;\n", side);
    if (has_step()) text += fmt::format("  const std::ptrdiff_t {0}_step = {0}_side.step;\n", side);
    return text;
  }
  std::string advanced() const {
    std::string text = fmt::format("    {0} += {0}_side.group;\n", side);
    if (has_third()) text += fmt::format("    {0}_third += {0}_side.group;\n", side);
    if (has_last()) text += fmt::format("    {0}_last += {0}_side.group;\n", side);
    return text;
  }
};

// The body of a batch kernel, line by line.
class BatchBody {
 public:
  BatchBody(const Kernel& kernel, const Target& target, bool contiguous)
      : kernel_(kernel),
        network_(*kernel.network),
        contiguous_(contiguous),
        lanes_(target.lanes_of_batch(kernel.type.precision, kernel.type.complex)),
        in_{"x", kernel.numbering.inputs, false, kernel.length},
        out_{"y", kernel.numbering.outputs, kernel.type.complex, kernel.length},
        constants_(kernel) {
    const int inner_bytes = lanes_ * bytes(Precision::binary64);
    if (single() && inner_bytes > target.batch_register_bytes)
      parts_ = inner_bytes / target.batch_register_bytes;
  }

  // Bisection, in either precision: few values in flight matter most where every value is a register.
  std::string text() {
    std::string lines;
    for (const Step& step : schedule(network_, Order::bisection))
      lines += step.node >= 0 ? compute(step.node) : store(network_.stores()[step.store]);
    const std::string before = contiguous_ ? "  Contiguous<V> x(src, src_distance), y(dst, dst_distance);\n"
                                           : in_.declared() + out_.declared(),
                      behind = contiguous_ ? "    x.advance();\n    y.advance();\n"
                                           : in_.advanced() + out_.advanced();
    return fmt::format("  using V = {};\n", ValueType{kernel_.type.precision, lanes_}.name()) +
           constants_.definitions() + "  const V s = broadcast<V>(factor);\n" + inner_factor_ + before +
           "  for (; groups > 0; --groups) {\n" + lines + behind + "  }\n";
  }

 private:
  bool single() const { return kernel_.type.precision == Precision::binary32; }
  std::string inner() const { return ValueType{Precision::binary64, lanes_ / parts_}.name(); }

  /// A binary32 kernel has values in binary64, which may take two registers.
  int parts(NodeId id) const { return network_.inner(id) ? parts_ : 1; }
  std::string var(NodeId id, int part = 0) const {
    return parts(id) == 1 ? fmt::format("v{}", id) : fmt::format("v{}_{}", id, part);
  }

  std::string compute(NodeId id) {
    const Node& node = network_.node(id);
    if (node.op == Op::load) return load(id, node.lanes[0]);
    std::string text;
    for (int part = 0; part < parts(id); ++part) {
      text += fmt::format("    const {} {} = {};\n", network_.inner(id) ? inner() : "V", var(id, part),
                          expression(id, part));
    }
    return text;
  }

  std::string expression(NodeId id, int part) {
    const Node& node = network_.node(id);
    const auto in = [&](std::size_t operand) { return var(node.in[operand], part); };
    switch (node.op) {
      case Op::sign_flip:
        return "-" + in(0);
      case Op::add:
        return fmt::format("{} + {}", in(0), in(1));
      case Op::sub:
        return fmt::format("{} - {}", in(0), in(1));
      case Op::mul:
        return fmt::format("{} * {}", constants_.use(node.constants[0]), in(0));
      case Op::factor:
        return fmt::format("{} * {}", factor(id), in(0));
      case Op::twice:
        return fmt::format("{0} + {0}", in(0));
      case Op::minus:
        return fmt::format("0 - {}", in(0));
      case Op::widen:
        return fmt::format("widened_part<{}, {}>({})", inner(), part, var(node.in[0]));
      case Op::narrow:
        return fmt::format("narrowed_parts<V>({}{})", var(node.in[0]),
                           parts_ == 1 ? "" : ", " + var(node.in[0], 1));
      default:
        throw std::logic_error("not an operation of a batch kernel");
    }
  }

  std::string factor(NodeId id) {
    if (!network_.inner(id) || !single()) return "s";
    inner_factor_ = fmt::format("  const {0} s_inner = broadcast<{0}>(xfm64f{{factor}});\n", inner());
    return "s_inner";
  }

  // Both parts of a complex number are loaded together, and stored when the second is there.
  std::string load(NodeId id, int place) {
    if (!kernel_.type.complex)
      return fmt::format("    const V {} = load<V>({});\n", var(id), in_.address(place));
    std::string text;
    const int k = place / 2;
    if (loaded_.insert(k).second)
      text = contiguous_ ? fmt::format("    const V a{0} = x.load<0>({0}), b{0} = x.load<1>({0});\n", k)
                         : fmt::format("    const V a{0} = load<V>({1}), b{0} = load<V>({1} + sizeof(V));\n",
                                       k, in_.address(k));
    return text + fmt::format("    const V {} = {}(a{}, b{});\n", var(id),
                              place % 2 == 0 ? "real_parts" : "imaginary_parts", k, k);
  }

  std::string store(const Store& store) {
    if (store.node < 0) return "";  // the caller stores zeros
    const std::string v = var(store.node);
    const int place = store.lanes[0];
    if (!kernel_.type.complex) return fmt::format("    store({}, {});\n", out_.address(place), v);
    const auto [other, first] = waiting_.try_emplace(place / 2, v);
    if (first) return "";
    return fmt::format("    {} {}, {});\n",
                       contiguous_ ? fmt::format("y.store({},", place / 2)
                                   : fmt::format("store_complex({},", out_.address(place / 2)),
                       place % 2 == 0 ? v : other->second, place % 2 == 0 ? other->second : v);
  }

  const Kernel& kernel_;
  const Network& network_;
  bool contiguous_;
  int lanes_, parts_ = 1;
  Places in_, out_;
  NamedConstants constants_;
  std::string inner_factor_;
  std::set<int> loaded_;                // complex numbers
  std::map<int, std::string> waiting_;  // stored parts of complex numbers
};

}  // namespace

Kernel batch_kernel(Kernel kernel) {
  const Precision precision = kernel.type.precision;
  auto network = lane_by_lane(*lowered(*kernel.network, precision));
  Programs programs(Equality::bits);
  check_same(programs.read(*network, precision), kernel.name() + " in a batch",
             programs.read(*kernel.network, precision), "the single one");
  kernel.network = std::move(network);
  return kernel;
}

std::string emit_batch_body(const Kernel& kernel, const Target& target) {
  return fmt::format(
             "static void body(const Input& x_side, const Output& y_side, std::ptrdiff_t groups, {} factor) "
             "{{\n",
             kernel.type.scalar()) +
         BatchBody(kernel, target, false).text() + "}\n";
}

bool contiguous_body_pays(const ElementType& type) {
  return type.complex && type.precision == Precision::binary32;
}

std::string emit_contiguous_body(const Kernel& kernel, const Target& target) {
  return fmt::format(
             "static void contiguous(Address src, Address src_distance, Address dst, Address dst_distance,\n"
             "    std::ptrdiff_t groups, {} factor) {{\n",
             kernel.type.scalar()) +
         BatchBody(kernel, target, true).text() + "}\n";
}

}  // namespace xfm::gen
