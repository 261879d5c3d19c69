#include "gen/write/emit.h"

#include <fmt/ranges.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <stdexcept>

#include "gen/network/check.h"
#include "gen/order/schedule.h"

namespace xfm::gen {
namespace {

constexpr const char* written_by_xfmgen =
    "// Written by xfmgen; do not edit: change the row or the recipe, and build.\n";

std::string identifier(const std::string& name) {
  if (name.starts_with('-')) return "minus_" + identifier(name.substr(1));
  std::string id;
  for (const char c : name) id += std::isalnum(static_cast<unsigned char>(c)) != 0 ? c : '_';
  return id;
}

bool is_trivial(const Constant& c) { return c.is_zero() || magnitude(c).is_one(); }

/// The type of a kernel's values: a scalar, or a register as the vocabularies spell it, f32x4.
std::string value_type(const Kernel& kernel) {
  if (!kernel.packed()) return kernel.type.scalar();
  const int bits = kernel.type.precision == Precision::binary32 ? 32 : 64;
  return fmt::format("f{}x{}", bits, kernel.network->width());
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
  Body(const Kernel& kernel, SharedConstants& shared)
      : kernel_(kernel), network_(*kernel.network), shared_(shared) {}

  std::string text() {
    std::string lines;
    for (const Step& step : schedule(network_, kernel_.order)) {
      lines += step.node >= 0 ? compute(step.node) : store(network_.stores()[step.store]);
    }
    return constants() + lines;
  }

  // The shared registers that text() uses, to be declared in front of the body.
  std::string declarations() const {
    std::string text;
    for (const std::string& name : registers_) {
      text += fmt::format("extern \"C\" XFM_CONSTANT {} {};\n", value_type(kernel_), name);
    }
    return text;
  }

 private:
  // Linear combinations carry binary64 constants whatever the kernel's precision.
  Precision constant_precision() const {
    return network_.rounding() == Rounding::combination ? Precision::binary64 : kernel_.type.precision;
  }

  std::string constants() const {
    std::string text;
    for (const Constant& c : constants_) {
      text += fmt::format("  constexpr {} {} = {};  // {:.17g}\n",
                          constant_precision() == Precision::binary32 ? "xfm32f" : "xfm64f", named(c.name),
                          literal(c.value, constant_precision()), static_cast<double>(c.value));
    }
    return text;
  }

  static std::string named(const std::string& name) {
    return std::isdigit(static_cast<unsigned char>(name[0])) != 0 ? "c" + identifier(name) : identifier(name);
  }

  // Constants appear by name, with their sign in front; 0 and 1 as they are.
  std::string use(const Constant& c) {
    if (is_trivial(c)) return fmt::format("{}", static_cast<int>(c.value));
    constants_.insert(magnitude(c));
    return (c.is_negative() ? "-" : "") + named(magnitude(c).name);
  }

  static std::string var(NodeId id) { return fmt::format("v{}", id); }

  std::string compute(NodeId id) {
    const Node& node = network_.node(id);
    const std::string type = node.finish == Finish::unrounded ? "xfm64f" : value_type(kernel_);
    return fmt::format("  const {} {} = {};\n", type, var(id), expression(node));
  }

  std::string expression(const Node& node) {
    switch (node.op) {
      case Op::load:
        return load(node);
      case Op::permute:
        return fmt::format("permute<{}>({}, {})", fmt::join(node.lanes, ", "), var(node.in[0]),
                           var(node.in[1]));
      case Op::sign_flip:
        return fmt::format("flip_signs<{}>({})", fmt::join(node.lanes, ", "), var(node.in[0]));
      case Op::add:
        return fmt::format("{} + {}", var(node.in[0]), var(node.in[1]));
      case Op::sub:
        return fmt::format("{} - {}", var(node.in[0]), var(node.in[1]));
      case Op::mul:
        return fmt::format("{} * {}", multiplier(node), var(node.in[0]));
      case Op::combination:
        return combination(node);
      case Op::factor:
        return fmt::format("s * {}", var(node.in[0]));
      case Op::twice:
        return fmt::format("{0} + {0}", var(node.in[0]));
      case Op::minus:
        return fmt::format("0 - {}", var(node.in[0]));
    }
    return {};
  }

  std::string multiplier(const Node& node) {
    if (!kernel_.packed()) return use(node.constants[0]);
    if (node.constants.size() == 1) {
      std::string name = shared_.use(node.constants[0], kernel_);
      registers_.insert(name);
      return name;
    }
    std::vector<std::string> multipliers;
    for (const Constant& c : node.constants) multipliers.push_back(use(c));
    return fmt::format("{}{{{}}}", value_type(kernel_), fmt::join(multipliers, ", "));
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
      sum += c.is_one() ? operand : fmt::format("{} * {}", use(c), operand);
    }
    if (scales(node.finish)) sum = fmt::format("xfm64f{{s}} * ({})", sum);
    if (node.finish == Finish::negated) sum = "0 - " + sum;
    return kernel_.type.precision == Precision::binary32 && node.finish != Finish::unrounded
               ? fmt::format("static_cast<xfm32f>({})", sum)
               : sum;
  }

  // Contiguous lanes take one load. Others are complex numbers, one or more, from the lowest lanes on.
  std::string load(const Node& node) const {
    const PerLane& from = node.lanes;
    if (!kernel_.packed()) return fmt::format("x[{}]", from[0]);
    if (contiguous(from)) return fmt::format("{}::load(x + {})", memory(from[0]), from[0]);
    std::string places;
    for (int l = 0; l < from.size() && from[l] >= 0; l += 2)
      places += fmt::format("{}x + {}", l == 0 ? "" : ", ", from[l]);
    return fmt::format("load_complex({})", places);
  }

  // A place that is not a multiple of the register's width is never aligned.
  std::string memory(int scalar) const { return scalar % network_.width() == 0 ? "Memory" : "Unaligned"; }

  std::string store(const Store& store) const {
    const PerLane& to = store.lanes;
    if (store.node < 0) return fmt::format("  y[{}] = 0;\n", to[0]);
    const std::string v = var(store.node);
    if (!kernel_.packed()) return fmt::format("  y[{}] = {};\n", to[0], v);
    if (contiguous(to)) return fmt::format("  {}::store(y + {}, {});\n", memory(to[0]), to[0], v);
    std::string text;
    for (int l = 0; l < to.size(); l += 2)
      if (to[l] >= 0) text += fmt::format("  store_complex<{}>(y + {}, {});\n", l / 2, to[l], v);
    return text;
  }

  const Kernel& kernel_;
  const Network& network_;
  std::set<Constant> constants_;
  std::set<std::string> registers_;
  SharedConstants& shared_;
};

// 1/N and 1/sqrt(N), the nearest numbers; but in binary64 the second is the quotient by the rounded root.
std::string factors(const Kernel& kernel) {
  const Precision precision = kernel.type.precision;
  const Wide n(kernel.length);
  const Wide by_root =
      precision == Precision::binary32 ? 1 / wide_sqrt(n) : Wide(1 / std::sqrt(static_cast<double>(n)));
  const auto carried = [&](bool carries) { return literal(carries ? 1 / n : Wide(1), precision); };
  return fmt::format("constexpr Factors<{}, {}> factors_{}({}, {}, {});\n", kernel.type.scalar(),
                     kernel.network->width(), kernel.type.suffix(),
                     carried(kernel.scaling != Scaling::inverse), carried(kernel.scaling != Scaling::forward),
                     literal(by_root, precision));
}

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

std::string entry_text(const Kernel& kernel) {
  const std::string factor = "factors_" + kernel.type.suffix() + ".of(flag)";
  return fmt::format(
      "  if (const xfmStatus status = check(src, dst, flag); status != xfmStsOk) return status;\n"
      "  const {0} s = {1};\n"
      "  const auto* const x = reinterpret_cast<const {2}*>(src);\n"
      "  auto* const y = reinterpret_cast<{2}*>(dst);\n",
      value_type(kernel), kernel.packed() ? "Aligned::load(" + factor + ")" : "*" + factor,
      kernel.type.scalar());
}

// A scalar kernel is one function; a packed one is a body that two functions share, one for aligned and one
// for unaligned memory.
std::string emit_kernel(const Kernel& kernel, SharedConstants& shared) {
  Body body(kernel, shared);
  const std::string inner = " {\n" + entry_text(kernel) + body.text() + "  return xfmStsOk;\n}\n\n";
  const std::string head =
      heading(kernel) + "namespace {\n" + factors(kernel) + "}\n" + body.declarations() + "\n";
  if (!kernel.packed()) return head + signature(kernel, kernel.name()) + inner;
  const std::string suffix = kernel.type.suffix(), variant = kernel.name() + "_unaligned";
  return head + "template <class Memory>\nXFM_BODY " + signature(kernel, "body_" + suffix) + inner +
         "extern \"C\" XFM_UNALIGNED_VARIANT " + signature(kernel, variant) +
         fmt::format(" {{\n  return body_{}<Unaligned>(src, dst, flag);\n}}\n\n", suffix) +
         signature(kernel, kernel.name()) +
         fmt::format(" {{\n  if (!aligned(src, dst)) return {}(src, dst, flag);\n", variant) +
         fmt::format("  return body_{}<Aligned>(src, dst, flag);\n}}\n\n", suffix);
}

}  // namespace

std::string literal(Wide value, Precision precision) {
  if (precision == Precision::binary32) return fmt::format("{:a}F", static_cast<float>(value));
  return fmt::format("{:a}", static_cast<double>(value));
}

std::string SharedConstants::use(const Constant& c, const Kernel& kernel) {
  const std::string type = value_type(kernel);
  std::string name = fmt::format("xfm_{}_{}", type, identifier(c.name));
  const std::vector<std::string> lanes(static_cast<std::size_t>(kernel.network->width()),
                                       literal(c.value, kernel.type.precision));
  const std::string definition = fmt::format("extern \"C\" XFM_CONSTANT {} {} = {{{}}};  // {:.17g}\n", type,
                                             name, fmt::join(lanes, ", "), static_cast<double>(c.value));
  const auto [known, fresh] = definitions_.try_emplace(name, definition);
  if (!fresh && known->second != definition)
    throw std::logic_error(kernel.name() + ": two constants named " + name);
  return name;
}

std::string SharedConstants::definitions(const Target& target) const {
  std::string text =
      fmt::format("{}#include \"{}\"\n\nusing namespace xfm;\n\n", written_by_xfmgen, target.vocabulary);
  for (const auto& [name, definition] : definitions_) text += definition;
  return text;
}

std::string emit_file(std::span<const Kernel> kernels, const Target& target, SharedConstants& shared) {
  std::string text = fmt::format("{}#include \"src/frame/contract.h\"\n", written_by_xfmgen);
  if (std::any_of(kernels.begin(), kernels.end(), [](const Kernel& k) { return k.packed(); })) {
    text += fmt::format("#include \"{}\"\n", target.vocabulary);
  }
  text += "\nusing namespace xfm;\n\n";
  for (const Kernel& kernel : kernels) text += emit_kernel(kernel, shared);
  return text;
}

}  // namespace xfm::gen
