#include "tools/measured.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

namespace xfm {
namespace {

/// A character for each length from 2 on.
struct Row {
  std::string_view target, family, type, of_lengths;
};
constexpr Row lanes[] = {
#define LANES(target, family, type, digits) {#target, #family, #type, digits},
#include "tools/lanes.def"
};
constexpr Row orders[] = {
#define ORDER(target, family, type, letters) {#target, #family, #type, letters},
#include "tools/orders.def"
};

/// A kernel's character, or 0 if the target has no row.
template <std::size_t size>
char found(const Row (&rows)[size], const gen::Kernel& kernel, const gen::Target& target) {
  const auto* const row = std::ranges::find_if(rows, [&](const Row& of) {
    return of.target == target.name && of.family == kernel.family && of.type == kernel.type.suffix();
  });
  return row == std::end(rows) ? '\0' : row->of_lengths.at(static_cast<std::size_t>(kernel.length - 2));
}

}  // namespace

int most_lanes(const gen::Kernel& kernel, const gen::Target& target) {
  const bool single = kernel.type.complex && kernel.type.precision == gen::Precision::binary32;
  return target.lanes(single ? gen::Precision::binary32 : gen::Precision::binary64);
}

int chosen_lanes(const gen::Kernel& kernel, const gen::Target& target) {
  const char digit = found(lanes, kernel, target);
  return digit == '\0' ? kernel.network->width() : digit - '0';
}

gen::Order chosen_order(const gen::Kernel& kernel, const gen::Target& target) {
  const char letter = found(orders, kernel, target);
  return order_of(letter == '\0' ? found(orders, kernel, gen::baseline()) : letter);
}

gen::Order order_of(char letter) {
  switch (letter) {
    case 'w':
      return gen::Order::windowed;
    case 'e':
      return gen::Order::earliest_start;
    case 'b':
      return gen::Order::bisection;
    default:
      throw std::invalid_argument(std::string("no such order: ") + letter);
  }
}

}  // namespace xfm
