#include "gen/write/emit.h"

#include <fmt/ranges.h>

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "gen/network/check.h"
#include "gen/order/schedule.h"

namespace xfm::gen {
namespace {

constexpr const char* written_by_xfmgen =
    "// Written by xfmgen; do not edit: change the row or the recipe, and build.\n";

bool is_trivial(const Constant& c) { return c.is_zero() || magnitude(c).is_one(); }

// No register has fewer than 16 bytes: upper lanes may be idle.
ValueType type_of(Precision precision, int width) {
  const int fewest = precision == Precision::binary32 ? 4 : 2;
  return {precision, width == 1 ? 1 : std::max(width, fewest)};
}

/// The type of a kernel's widest values.
ValueType value_type(const Kernel& kernel) { return type_of(kernel.type.precision, kernel.network->width()); }

/// The type in which a body has the factor: repeated in memory for aligned loads, or a scalar to be
/// broadcast.
ValueType factor_type(const Kernel& kernel, const Target& target) {
  return !target.unaligned_is_free ? value_type(kernel) : ValueType{kernel.type.precision, 1};
}

std::string named(const std::string& name) {
  return std::isdigit(static_cast<unsigned char>(name[0])) != 0 ? "c" + identifier(name) : identifier(name);
}

/// Whether these scalars come in couples, side by side in memory; behind the last one lanes are idle.
bool in_couples(const PerLane& scalars) {
  for (int l = 0; l < scalars.size(); l += 2) {
    const bool idle = scalars[l] < 0 && scalars[l + 1] < 0;
    if (!idle && (scalars[l] < 0 || scalars[l + 1] != scalars[l] + 1)) return false;
  }
  return true;
}

/// Whether each even lane has the same scalar as the next one.
bool in_doubles(const PerLane& scalars) {
  for (int l = 0; l < scalars.size(); l += 2)
    if (scalars[l] != scalars[l + 1]) return false;
  return true;
}

/// Whether these scalars are side by side in memory, one for each lane.
bool contiguous(std::span<const int> scalars) {
  for (std::size_t l = 0; l < scalars.size(); ++l)
    if (scalars[l] != scalars[0] + static_cast<int>(l)) return false;
  return scalars[0] >= 0;
}

// A kernel's body, line by line.
class Body {
 public:
  Body(const Kernel& kernel, const Target& target, SharedConstants& shared)
      : kernel_(kernel), network_(*kernel.network), target_(target), constants_(kernel), shared_(shared) {}

  std::string text() {
    std::string lines;
    for (const Step& step : schedule(network_, kernel_.order)) {
      lines += step.node >= 0 ? compute(step.node) : store(network_.stores()[step.store]);
    }
    return constants_.definitions() + factors() + lines;
  }

  // The shared registers that text() uses, to be declared in front of the body.
  std::string declarations() const {
    std::string text;
    for (const auto& [name, type] : registers_) {
      text += fmt::format("extern \"C\" XFM_CONSTANT {} {};\n", type, name);
    }
    return text;
  }

 private:
  static std::string var(NodeId id) { return fmt::format("v{}", id); }

  ValueType type(NodeId id) const {
    return type_of(network_.inner(id) ? Precision::binary64 : kernel_.type.precision, network_.width(id));
  }

  std::string compute(NodeId id) {
    return fmt::format("  const {} {} = {};\n", type(id).name(), var(id), expression(id));
  }

  std::string expression(NodeId id) {
    const Node& node = network_.node(id);
    switch (node.op) {
      case Op::load:
        return load(node, type(id));
      case Op::permute:
        return permutation(id);
      case Op::sign_flip:
        return type(id).scalar()
                   ? fmt::format("-{}", var(node.in[0]))
                   : fmt::format("flip_signs<{}>({})", list(node.lanes, type(id).lanes, 0), var(node.in[0]));
      case Op::add:
        return fmt::format("{} + {}", var(node.in[0]), var(node.in[1]));
      case Op::sub:
        return difference(node);
      case Op::mul:
        return fmt::format("{} * {}", multiplier(node, type(id)), var(node.in[0]));
      case Op::combination:
        return combination(node);
      case Op::factor:
        return fmt::format("{} * {}", factor(type(id)), var(node.in[0]));
      case Op::twice:
        return fmt::format("{0} + {0}", var(node.in[0]));
      case Op::minus:
        return fmt::format("0 - {}", var(node.in[0]));
      case Op::widen:
      case Op::narrow:
        return fmt::format("{}<{}>({})", node.op == Op::widen ? "widened" : "narrowed", type(id).name(),
                           var(node.in[0]));
    }
    return {};
  }

  // Numbers for the lanes of a register, idle ones included.
  static std::string list(PerLane numbers, int lanes, int idle) {
    numbers.resize(static_cast<std::size_t>(lanes), idle);
    return fmt::format("{}", fmt::join(numbers, ", "));
  }

  // Marked lanes subtract; where not all do, they alternate.
  std::string difference(const Node& node) const {
    const std::string a = var(node.in[0]), b = var(node.in[1]);
    const bool mixed = std::count(node.lanes.begin(), node.lanes.end(), 0) > 0;
    return mixed ? fmt::format("subtract_add({}, {})", a, b) : fmt::format("{} - {}", a, b);
  }

  // The lanes of the second operand follow those of the first one's register.
  std::string permutation(NodeId id) const {
    const Node& node = network_.node(id);
    const auto [a, b] = node.in;
    if (type(id).scalar()) return fmt::format("lane<{}>({})", node.lanes[0], var(a));
    const int lanes = std::max({type(a).lanes, type(b).lanes, type_of(type(id).precision, 2).lanes});
    PerLane picks;
    for (int l = 0; l < node.lanes.size(); ++l) {
      const Place from = network_.source(node, l);
      const bool second = from.node != a || node.lanes[l] >= network_.width(a);
      picks.push_back(from.lane + (second ? lanes : 0));
    }
    return fmt::format("permute<{}>({}, {})", list(picks, type(id).lanes, -1), in_register(a, lanes),
                       in_register(b, lanes));
  }

  // A value in the low lanes of a register of so many.
  std::string in_register(NodeId id, int lanes) const {
    if (type(id).lanes == lanes) return var(id);
    return fmt::format("in_low_lanes<{}>({})", ValueType{type(id).precision, lanes}.name(), var(id));
  }

  std::string multiplier(const Node& node, const ValueType& type) {
    if (type.scalar()) return constants_.use(node.constants[0]);
    if (node.constants.size() == 1) {
      std::string name = shared_.use(node.constants[0], type);
      registers_.try_emplace(name, type.name());
      return name;
    }
    std::vector<std::string> multipliers;
    for (const Constant& c : node.constants) multipliers.push_back(constants_.use(c));
    multipliers.resize(static_cast<std::size_t>(type.lanes), "0");
    return fmt::format("{}{{{}}}", type.name(), fmt::join(multipliers, ", "));
  }

  // The factor in every lane.
  std::string factor(const ValueType& type) {
    if (type.name() == factor_type(kernel_, target_).name()) return "s";
    factors_.insert(type.name());
    return "s_" + type.name();
  }
  std::string factors() const {
    std::string text;
    for (const std::string& type : factors_)
      text += fmt::format("  const {0} s_{0} = broadcast<{0}>(s);\n", type);
    return text;
  }

  // One linear combination in binary64, rounded once; its terms are in the recipe's order.
  std::string combination(const Node& node) {
    std::string sum;
    for (const Term& term : node.terms) {
      const bool negative = term.coefficient.is_negative();
      const Constant c = magnitude(term.coefficient);
      if (!sum.empty()) sum += negative ? " - " : " + ";
      if (sum.empty() && negative) sum = "-";
      const std::string operand = fmt::format("xfm64f{{{}}}", var(term.node));
      sum += c.is_one() ? operand : fmt::format("{} * {}", constants_.use(c), operand);
    }
    if (scales(node.finish)) sum = fmt::format("xfm64f{{s}} * ({})", sum);
    if (node.finish == Finish::negated) sum = "0 - " + sum;
    return kernel_.type.precision == Precision::binary32 && node.finish != Finish::unrounded
               ? fmt::format("static_cast<xfm32f>({})", sum)
               : sum;
  }

  // Contiguous lanes take one load, couples one for each; wide registers are joined from halves.
  std::string load(const Node& node, const ValueType& type) const {
    const PerLane& from = node.lanes;
    if (type.scalar()) return fmt::format("x[{}]", from[0]);
    if (contiguous(from) && type.lanes == from.size())
      return fmt::format("{}(x + {})", access("load", from[0], type), from[0]);
    if (type.wide()) return fmt::format("joined({}, {})", half(from, 0), half(from, type.lanes / 2));
    std::vector<std::string> places;
    if (!in_couples(from)) {
      const bool doubled = in_doubles(from);
      for (int l = 0; l < from.size(); l += doubled ? 2 : 1) places.push_back(fmt::format("x + {}", from[l]));
      return fmt::format("{}({})", doubled ? "load_doubled" : "load_scalars", fmt::join(places, ", "));
    }
    for (int l = 0; l < from.size() && from[l] >= 0; l += 2) places.push_back(fmt::format("x + {}", from[l]));
    return fmt::format("load_complex({})", fmt::join(places, ", "));
  }

  // Half the lanes of a register, from this one on.
  std::string half(const PerLane& from, int first) const {
    const ValueType type = type_of(kernel_.type.precision, from.size() / 2);
    if (from[first] < 0) return type.name() + "{}";
    return load({.op = Op::load, .lanes = PerLane(from.begin() + first, from.begin() + first + type.lanes)},
                type);
  }

  // In kernels with an unaligned variant, a place that is not a multiple of the register's width is never
  // aligned.
  std::string access(const std::string& what, int scalar, const ValueType& type) const {
    if (target_.unaligned_is_free) return fmt::format("Unaligned::{}<{}>", what, type.name());
    return fmt::format("{}::{}", scalar % type.lanes == 0 ? "Memory" : "Unaligned", what);
  }

  std::string store(const Store& store) const {
    const PerLane& to = store.lanes;
    if (store.node < 0) return fmt::format("  y[{}] = 0;\n", to[0]);
    const std::string v = var(store.node);
    const ValueType type = this->type(store.node);
    if (type.scalar()) return fmt::format("  y[{}] = {};\n", to[0], v);
    if (contiguous(to) && type.lanes == to.size())
      return fmt::format("  {}(y + {}, {});\n", access("store", to[0], type), to[0], v);
    std::string text;
    if (!in_couples(to)) {
      for (int l = 0; l < to.size(); ++l)
        if (to[l] >= 0) text += fmt::format("  y[{}] = {}[{}];\n", to[l], v, l);
      return text;
    }
    for (int l = 0; l < to.size(); l += 2) {
      const bool starts_half = to.size() == 8 && l % 4 == 0;
      if (starts_half && contiguous(PerLane(to.begin() + l, to.begin() + l + 4))) {
        text += fmt::format("  {}(y + {}, {}_half({}));\n",
                            access("store", to[l], type_of(kernel_.type.precision, 4)), to[l],
                            l == 0 ? "low" : "high", v);
        l += 2;
      } else if (to[l] >= 0) {
        text += fmt::format("  store_complex<{}>(y + {}, {});\n", l / 2, to[l], v);
      }
    }
    return text;
  }

  const Kernel& kernel_;
  const Network& network_;
  const Target& target_;
  NamedConstants constants_;
  std::map<std::string, std::string> registers_;  // with their types
  std::set<std::string> factors_;                 // by type
  SharedConstants& shared_;
};

std::string signature(const Kernel& kernel, const std::string& name) {
  return fmt::format("xfmStatus {}(const {}* src, {}* dst, int32_t flag)", name, kernel.type.name(),
                     kernel.type.name());
}

std::string heading(const Kernel& kernel) {
  const Counts counts = count(*kernel.network);
  return fmt::format(
      "// {}: {}, {} additions and {} multiplications (row: {} and {}).\n"
      "// To see this text or try another tree: xfmgen --show {} {} {} [--tree TREE]\n",
      kernel.name(), kernel.tree, counts.adds, counts.mults, kernel.adds, kernel.mults, kernel.family,
      kernel.length, kernel.type.suffix());
}

std::string entry_text(const Kernel& kernel, const ValueType& factor_type) {
  const std::string factor = "factors_" + kernel.short_name() + ".of(flag)";
  return fmt::format(
      "  if (const xfmStatus status = check(src, dst, flag); status != xfmStsOk) return status;\n"
      "  const {0} s = {1};\n"
      "  const auto* const x = reinterpret_cast<const {2}*>(src);\n"
      "  auto* const y = reinterpret_cast<{2}*>(dst);\n",
      factor_type.name(), factor_type.scalar() ? "*" + factor : "Aligned::load(" + factor + ")",
      kernel.type.scalar());
}

// A kernel is one function; where unaligned accesses cost more, a packed one is a body that two functions
// share, one for aligned and one for unaligned memory.
std::string emit_kernel(const Kernel& kernel, const Target& target, SharedConstants& shared) {
  Body body(kernel, target, shared);
  const std::string inner =
      " {\n" + entry_text(kernel, factor_type(kernel, target)) + body.text() + "  return xfmStsOk;\n}\n\n";
  const std::string head = heading(kernel) + "namespace {\n" +
                           factors(kernel, factor_type(kernel, target).lanes) + "}\n" + body.declarations() +
                           "\n";
  if (!kernel.packed() || target.unaligned_is_free) return head + signature(kernel, kernel.name()) + inner;
  const std::string name = kernel.short_name(), variant = kernel.name() + "_unaligned";
  return head + "template <class Memory>\nXFM_BODY " + signature(kernel, "body_" + name) + inner +
         "extern \"C\" XFM_UNALIGNED_VARIANT " + signature(kernel, variant) +
         fmt::format(" {{\n  return body_{}<Unaligned>(src, dst, flag);\n}}\n\n", name) +
         signature(kernel, kernel.name()) +
         fmt::format(" {{\n  if (!aligned(src, dst)) return {}(src, dst, flag);\n", variant) +
         fmt::format("  return body_{}<Aligned>(src, dst, flag);\n}}\n\n", name);
}

std::string emit_loop(const Kernel& kernel, const Target& target, SharedConstants& shared) {
  Body body(kernel, target, shared);
  const ValueType type = factor_type(kernel, target);
  const std::string name = kernel.short_name(), scalar = kernel.type.scalar(),
                    factor = fmt::format("*factors_{}.of(flag)", name), lines = body.text();
  return "namespace {\n" + factors(kernel, 1) + "}\n" + body.declarations() +
         fmt::format(
             "\nvoid one_by_one_{0}(std::uintptr_t src, std::uintptr_t src_distance, std::uintptr_t dst,\n"
             "    std::uintptr_t dst_distance, std::int64_t count, std::int32_t flag) {{\n"
             "  const {1} s = {2};\n"
             "  for (; count > 0; --count, src += src_distance, dst += dst_distance) {{\n"
             "  const auto* const x = reinterpret_cast<const {3}*>(src);\n"
             "  auto* const y = reinterpret_cast<{3}*>(dst);\n{4}  }}\n}}\n\n",
             name, type.name(),
             type.scalar() ? factor : fmt::format("broadcast<{}>({})", type.name(), factor), scalar, lines);
}

// What a translation unit of such kernels begins with.
std::string includes(std::span<const Kernel> kernels, const Target& target) {
  const bool any_packed =
      std::any_of(kernels.begin(), kernels.end(), [](const Kernel& k) { return k.packed(); });
  return fmt::format("{}#include \"src/frame/contract.h\"\n{}\n", written_by_xfmgen,
                     any_packed ? fmt::format("#include \"{}\"\n", target.vocabulary) : "");
}

}  // namespace

std::string identifier(const std::string& name) {
  if (name.starts_with('-')) return "minus_" + identifier(name.substr(1));
  std::string id;
  for (const char c : name) id += std::isalnum(static_cast<unsigned char>(c)) != 0 ? c : '_';
  return id;
}

// 1/N and 1/sqrt(N), the nearest numbers; but in binary64 the second is the quotient by the rounded root.
std::string factors(const Kernel& kernel, int lanes) {
  const Precision precision = kernel.type.precision;
  const Wide n(kernel.length);
  const Wide by_root =
      precision == Precision::binary32 ? 1 / wide_sqrt(n) : Wide(1 / std::sqrt(static_cast<double>(n)));
  const auto carried = [&](bool carries) { return literal(carries ? 1 / n : Wide(1), precision); };
  return fmt::format("constexpr Factors<{}, {}> factors_{}({}, {}, {});\n", kernel.type.scalar(), lanes,
                     kernel.short_name(), carried(kernel.scaling != Scaling::inverse),
                     carried(kernel.scaling != Scaling::forward), literal(by_root, precision));
}

std::string literal(Wide value, Precision precision) {
  if (precision == Precision::binary32) return fmt::format("{:a}F", static_cast<float>(value));
  return fmt::format("{:a}", static_cast<double>(value));
}

std::string ValueType::name() const {
  const int bits = precision == Precision::binary32 ? 32 : 64;
  return scalar() ? fmt::format("xfm{}f", bits) : fmt::format("f{}x{}", bits, lanes);
}

NamedConstants::NamedConstants(const Kernel& kernel)
    : precision_(kernel.network->rounding() == Rounding::combination ? Precision::binary64
                                                                     : kernel.type.precision) {}

std::string NamedConstants::use(const Constant& c) {
  if (c.is_zero() && c.name != "0") return "-0.0F";
  if (is_trivial(c)) return fmt::format("{}", static_cast<int>(c.value));
  used_.insert(magnitude(c));
  return (c.is_negative() ? "-" : "") + named(magnitude(c).name);
}

std::string NamedConstants::definitions() const {
  std::string text;
  for (const Constant& c : used_) {
    text += fmt::format("  constexpr {} {} = {};  // {:.17g}\n", ValueType{precision_, 1}.name(),
                        named(c.name), literal(c.value, precision_), static_cast<double>(c.value));
  }
  return text;
}

std::string SharedConstants::use(const Constant& c, const ValueType& type) {
  std::string name = fmt::format("{}_{}_{}", library_, type.name(), identifier(c.name));
  const std::vector<std::string> copies(static_cast<std::size_t>(type.lanes),
                                        literal(c.value, type.precision));
  const std::string definition =
      fmt::format("extern \"C\" XFM_CONSTANT {} {} = {{{}}};  // {:.17g}\n", type.name(), name,
                  fmt::join(copies, ", "), static_cast<double>(c.value));
  const auto [known, fresh] = definitions_.try_emplace(name, definition);
  if (!fresh && known->second != definition) throw std::logic_error("two constants named " + name);
  return name;
}

std::string SharedConstants::definitions(const Target& target) const {
  std::string text =
      fmt::format("{}#include \"{}\"\n\nusing namespace xfm;\n\n", written_by_xfmgen, target.vocabulary);
  for (const auto& [name, definition] : definitions_) text += definition;
  return text;
}

std::string emit_file(std::span<const Kernel> kernels, const Target& target, SharedConstants& shared) {
  std::string text = includes(kernels, target) + "using namespace xfm;\n\n";
  for (const Kernel& kernel : kernels) text += emit_kernel(kernel, target, shared);
  return text;
}

std::string emit_loops(std::span<const Kernel> kernels, const Target& target, SharedConstants& shared) {
  std::string text = includes(kernels, target) + "namespace xfm::many {\n\n";
  if (!target.unaligned_is_free) text += "using Memory = Unaligned;  // a second loop would gain little\n\n";
  for (const Kernel& kernel : kernels) text += emit_loop(kernel, target, shared);
  return text + "}  // namespace xfm::many\n";
}

}  // namespace xfm::gen
