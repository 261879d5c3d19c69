// A status or an exception, as the caller likes.
#include <cstdio>
#include <vector>

#include "xfm.hpp"

// Calls with a length at run time return a status, which must not be ignored, and throw nothing.
bool by_status(std::vector<float>& data) {
  const xfm::status result = xfm::hartley(data, data, xfm::scale::none);
  if (result != xfm::status::ok) std::printf("%s\n", to_string(result));
  return result == xfm::status::ok;
}

// xfm::check() turns a failure into an exception. Objects whose construction failed are checked in the same
// way.
void by_exception(std::vector<float>& data) {
  auto transform = xfm::check(xfm::dct4<float>(data.size()));
  xfm::check(transform(data));
}

int main() {
  std::vector<float> data(65);
  by_status(data);
  try {
    by_exception(data);
  } catch (const xfm::error& error) {
    std::printf("%s: %d\n", error.what(), static_cast<int>(error.code()));
  }
}
