// Compares the digests of the kernels that it is linked with to the recorded ones.
#include <cstdio>

#include "tests/golden/digest.h"
#include "tests/golden/table.h"

int main(int argc, char** argv) {
  using namespace xfm;
  if (argc != 2) {
    std::fprintf(stderr, "usage: levels TABLE\n");
    return 2;
  }
  test::Table recorded = test::read_table(argv[1]), built;
  for (test::Row& row : recorded) row = {row.front(), row.back()};
  for (const catalogue::Kernel& kernel : catalogue::kernels())
    built.push_back({kernel.name, test::digest(kernel)});
  const std::string difference = test::difference(recorded, built);
  std::fputs(difference.c_str(), stdout);
  std::printf("%zu kernels\n", built.size());
  return difference.empty() && !built.empty() ? 0 : 1;
}
