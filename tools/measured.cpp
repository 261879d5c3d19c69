#include "tools/measured.h"

#include <algorithm>
#include <span>
#include <stdexcept>

namespace xfm {
namespace {

/// A character for each length.
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
constexpr Row singles[] = {
#define SINGLES(target, family, type, digits) {#target, #family, #type, digits},
#include "tools/singles.def"
};

/// The character of a family's length number `at`, or 0 if the target has no row.
char found(std::span<const Row> rows, const gen::Target& target, std::string_view family,
           const gen::ElementType& type, int at) {
  const auto row = std::ranges::find_if(rows, [&](const Row& of) {
    return of.target == target.name && of.family == family && of.type == type.suffix();
  });
  return row == rows.end() ? '\0' : row->of_lengths.at(static_cast<std::size_t>(at));
}

/// A kernel's; lengths count from 2 on.
char found(std::span<const Row> rows, const gen::Kernel& kernel, const gen::Target& target) {
  return found(rows, target, kernel.family, kernel.type, kernel.length - 2);
}

}  // namespace

int chosen_lanes(const gen::Kernel& kernel, const gen::Target& target) {
  const char digit = found(lanes, kernel, target);
  return digit == '\0' ? kernel.network->width() : digit - '0';
}

int lanes_up_to(int most, const gen::Kernel& kernel, const gen::Target& target) {
  if (kernel.type.complex && kernel.type.precision == gen::Precision::binary32)
    return chosen_lanes(kernel, target);
  return std::min(most, target.lanes(gen::Precision::binary64));
}

gen::Order chosen_order(const gen::Kernel& kernel, const gen::Target& target) {
  const char letter = found(orders, kernel, target);
  return order_of(letter == '\0' ? found(orders, kernel, gen::baseline()) : letter);
}

int chosen_singles(const gen::Target& target, std::string_view family, const gen::ElementType& type,
                   int row) {
  const char digit = found(singles, target, family, type, row);
  return digit == '\0' ? 1 : digit - '0';
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
