#include "tools/many.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <tuple>

#include "gen/write/batch.h"
#include "gen/write/emit.h"
#include "tools/measured.h"

namespace xfm {
namespace {

using gen::ElementType;
using gen::Kernel;
using gen::PerLane;

const char* const written = "// Written by xfmgen from the list of families.\n";

/// Walsh-Hadamard transforms have a vector for every scalar up to this order.
constexpr int highest_order_in_lanes = 6;

/// What the header says of them beside the general.
const char* const about_walsh_hadamard = R"( Up to order 6 one transform is computed in each
 * lane. From order 7 on single kernels fill their registers by themselves, and a batch is a loop of single calls, through
 * a copy where transforms are not contiguous.
 * buffer is that of single calls: ignored up to order 7, then work space of at least the size that
 * xfmWHTGetBufferSize_TYPE returns, aligned to 16. It serves one call at a time. If it is null, the batch does one
 * xfmMalloc and one xfmFree. The result of xfmMalloc is not tested: when memory is exhausted, a null pointer is
 * dereferenced.)";

template <class Visit>
void for_each_function(Visit visit) {
  for (const Family& family : families()) {
    for (const ElementType& type : family.types()) visit(family, type);
  }
}

std::string function(const Family& family, const ElementType& type) {
  return fmt::format("xfmMany{}_{}", family.name, type.suffix());
}

std::string signature(const Family& family, const ElementType& type) {
  return fmt::format(
      "xfmStatus {0}(const {1}* src, int64_t srcStride, int64_t srcDistance, {1}* dst, int64_t dstStride,\n"
      "    int64_t dstDistance, int32_t {2}, int64_t count, int32_t flag{3})",
      function(family, type), type.name(), family.argument(), family.takes_buffer() ? ", void* buffer" : "");
}

// "DFTFwd_CToC_12_32fc", the namespace of a batch kernel.
std::string name_of(const std::string& family, int length, const ElementType& type) {
  return fmt::format("{}_{}_{}", family, length, type.suffix());
}

// Where an element of this number is; elements in natural order have no numbers.
int place_of(int number, const PerLane& numbers) {
  if (numbers.empty()) return number;
  const auto found = std::ranges::find(numbers, number);
  return found == numbers.end() ? 0 : static_cast<int>(found - numbers.begin());
}

std::string places(const Kernel& kernel, int scalars, const PerLane& numbers, bool reversed,
                   const PerLane& zeros) {
  const auto zero = [&](int i) { return i < zeros.size() ? zeros[i] : -1; };
  return fmt::format("{{{}, {}, {}, {}, {{{}, {}}}}}", kernel.type.complex ? scalars / 2 : scalars,
                     reversed ? kernel.length - 2 : place_of(2, numbers), place_of(kernel.length, numbers),
                     reversed ? -1 : 1, zero(0), zero(1));
}

PerLane stored_zeros(const Kernel& kernel) {
  PerLane zeros;
  for (const gen::Store& store : kernel.network->stores())
    if (store.node < 0) zeros.push_back(store.lanes[0]);
  return zeros;
}

// Outputs in natural order numbered from the end to the beginning, but for the first.
gen::Numbering reversed_outputs(const Kernel& kernel) {
  gen::Numbering numbering;
  for (int p = 0; p < kernel.written; ++p)
    numbering.outputs.push_back((kernel.length - p / 2) % kernel.length * 2 + p % 2);
  return numbering;
}

/// Which body computes a kernel: its own or an equal one.
struct Owner {
  std::string name;
  bool reversed = false;  ///< element k of the output is element N - k of that kernel's
};

/// Bodies by what they compute and where it goes: the same program on spectra and on elements in natural
/// order takes two of them.
class Bodies {
 public:
  Owner owner(const Kernel& kernel) {
    if (kernel.type.complex) {
      const auto found = known_.find(key(kernel, reversed_outputs(kernel)));
      if (found != known_.end()) return {found->second, true};
    }
    return {known_.try_emplace(key(kernel, kernel.numbering), kernel.short_name()).first->second};
  }

 private:
  using Key = std::tuple<std::string, bool, bool, gen::Program>;
  Key key(const Kernel& kernel, const gen::Numbering& numbering) {
    return {kernel.type.suffix(), kernel.numbering.inputs.empty(), kernel.numbering.outputs.empty(),
            programs_.read(*kernel.network, kernel.type.precision, numbering)};
  }

  gen::Programs programs_{gen::Equality::bits};
  std::map<Key, std::string> known_;
};

int singles_at(const Family& family, int length, const ElementType& type, const gen::Target& target,
               Singles singles) {
  return singles.value_or(chosen_singles(target, family.name, type, length - family.lowest));
}

/// Whether contiguous transforms have a body of their own: where one may pay and groups are faster than
/// single calls.
bool has_contiguous_body(const Family& family, int length, const ElementType& type, const gen::Target& target,
                         Singles singles) {
  return gen::contiguous_body_pays(type) && singles_at(family, length, type, target, singles) <
                                                target.lanes_of_batch(type.precision, type.complex);
}

std::string row(const Kernel& kernel, const Owner& owner, bool contiguous) {
  const bool in_loop = kernel.length <= longest_in_loop;
  const std::string name = kernel.short_name(), type = kernel.type.name();
  const std::string one_by_one =
      in_loop ? "one_by_one_" + name : fmt::format("single_calls<{}, {}>", type, kernel.name());
  return (in_loop ? fmt::format("extern OneByOne {};\n", one_by_one) : "") +
         fmt::format(
             "extern const Row<{0}> row_{1};\n"
             "constinit const Row<{0}> row_{1} = {{{2}::body, {3}, {1}::factors_{1},\n    {4}, {5}, "
             "{6}}};\n\n",
             type, name, owner.name, contiguous ? name + "::contiguous" : "nullptr", one_by_one,
             places(kernel, kernel.read, kernel.numbering.inputs, false, {}),
             places(kernel, kernel.written, kernel.numbering.outputs, owner.reversed, stored_zeros(kernel)));
}

}  // namespace

std::string header_of_batches(const std::string& frame) {
  std::string text;
  for (const Family& family : families()) {
    const auto types = family.types();
    text += fmt::format("/** @name Many {}\n * @{{ */\n/** Batches of {} and {}.{} */\n", family.name,
                        family.generic(types[0]), family.generic(types[1]),
                        family.takes_buffer() ? about_walsh_hadamard : "");
    for (const ElementType& type : types) text += signature(family, type) + ";\n";
    text += "/** @} */\n\n";
  }
  std::string header = frame;
  const std::string mark = "@FUNCTIONS@\n";
  return header.replace(header.find(mark), mark.size(), text);
}

std::string export_map_of_batches() {
  std::string text = "{\n  global:\n";
  for_each_function([&](const Family& family, const ElementType& type) {
    text += fmt::format("    {};\n", function(family, type));
  });
  return text + "  local: *;\n};\n";
}

std::string functions_of_batches(const gen::Target& target, Singles singles) {
  std::string rows, functions;
  for_each_function([&](const Family& family, const ElementType& type) {
    const int lanes = target.lanes_of_batch(type.precision, type.complex);
    const int highest = family.by_hand() ? highest_order_in_lanes : family.highest;
    std::string choices;
    for (int length = family.lowest; length <= highest; ++length) {
      std::string row = "row_" + name_of(family.name, length, type);
      if (family.by_hand())
        row = fmt::format("walsh_hadamard::row<{}, {}, {}>", type.name(), lanes, length);
      else
        rows += fmt::format("extern const Row<{}> {};\n", type.name(), row);
      choices += fmt::format("    {{&{}, {}}},\n", row, singles_at(family, length, type, target, singles));
    }
    rows += fmt::format("static constexpr Choice<{0}> rows_{1}_{2}[] = {{\n{3}}};\n\n", type.name(),
                        family.name, type.suffix(), choices);
    functions += fmt::format(
        "{} {{\n  using namespace xfm::many;\n  return {}run<{}, {}>(rows_{}_{}, {}{{src, srcStride, "
        "srcDistance}},\n"
        "      {{dst, dstStride, dstDistance}}, {}, count, flag{});\n}}\n\n",
        signature(family, type), family.by_hand() ? "walsh_hadamard::" : "", type.name(), lanes, family.name,
        type.suffix(), family.by_hand() ? "" : fmt::format("{}, ", family.lowest), family.argument(),
        family.takes_buffer() ? ", buffer" : "");
  });
  return fmt::format(
      "{}#include \"src/many/walsh_hadamard.h\"\n#include "
      "\"xfm_many.h\"\n\nnamespace xfm::many {{\n{}}}  // "
      "namespace "
      "xfm::many\n\n{}",
      written, rows, functions);
}

std::string catalogue_of_batches() {
  std::string rows;
  for_each_function([&](const Family& family, const ElementType& type) {
    rows += fmt::format("    {{\"{0}\", \"{1}\", \"{2}\", {3}, {4}, &call{5}<{0}, {6}>}},\n",
                        function(family, type), family.name, type.suffix(), family.lowest, family.highest,
                        family.takes_buffer() ? "_with_null" : "", type.name());
  });
  return written + std::string(R"(#include "tools/many_catalogue.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include "xfm_many.h"

namespace xfm::catalogue {
namespace {

template <auto function, class E>
xfmStatus call(const void* src, Places from, void* dst, Places to, std::int32_t length, std::int64_t count,
               std::int32_t flag) {
  return function(static_cast<const E*>(src), from.stride, from.distance, static_cast<E*>(dst), to.stride,
                  to.distance, length, count, flag);
}
template <auto function, class E>
xfmStatus call_with_null(const void* src, Places from, void* dst, Places to, std::int32_t order, std::int64_t count,
                         std::int32_t flag) {
  return function(static_cast<const E*>(src), from.stride, from.distance, static_cast<E*>(dst), to.stride,
                  to.distance, order, count, flag, nullptr);
}

constexpr Batch all[] = {
)") + rows +
         R"(};

}  // namespace

std::span<const Batch> batches() { return all; }

const Batch& batch(const Kernel& kernel) {
  const auto found = std::ranges::find_if(all, [&](const Batch& of) {
    return std::string(of.family) == kernel.family && std::string(of.type) == kernel.type;
  });
  if (found == std::end(all)) throw std::out_of_range(std::string("no batches of ") + kernel.name);
  return *found;
}

}  // namespace xfm::catalogue
)";
}

std::string batches_of_length(int length, const gen::Target& target, Singles singles) {
  std::string text = fmt::format("{}#include \"src/many/body.h\"\n\nnamespace xfm::many {{\n\n", written);
  Bodies bodies;
  for (const Family& family : families()) {
    if (family.by_hand() || length < family.lowest || length > family.highest) continue;
    for (const ElementType& type : family.types()) {
      const Kernel kernel = gen::batch_kernel(family.make(length, type.precision));
      const Owner owner = bodies.owner(kernel);
      text += fmt::format("namespace {} {{\n{}", kernel.short_name(), gen::factors(kernel, 1));
      if (owner.name == kernel.short_name()) text += emit_batch_body(kernel, target);
      const bool contiguous = has_contiguous_body(family, length, type, target, singles);
      if (contiguous) text += emit_contiguous_body(kernel, target);
      text += "}\n" + row(kernel, owner, contiguous);
    }
  }
  return text + "}  // namespace xfm::many\n";
}

}  // namespace xfm
