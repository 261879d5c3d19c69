#include "tools/catalogue.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <string_view>

namespace xfm::catalogue {
namespace {

/// The loader's help, which has a line "x86-64-v3 (supported, searched)" for each target beyond the baseline.
std::string help_of_loader() {
  // The command is fixed.  NOLINTNEXTLINE(cert-env33-c)
  FILE* pipe = popen(XFM_LOADER " --help", "r");
  if (pipe == nullptr) return "";
  std::string text;
  char buffer[1 << 12];
  for (std::size_t got; (got = fread(buffer, 1, sizeof buffer, pipe)) > 0;) text.append(buffer, got);
  pclose(pipe);
  return text;
}

}  // namespace

const Form& form(const Target& target, const Kernel& kernel) {
  const auto all = kernels();
  const auto found = std::ranges::find(all, std::string_view(kernel.name), &Kernel::name);
  if (found == all.end()) throw std::out_of_range(std::string("no form of ") + kernel.name);
  return target.forms[static_cast<std::size_t>(found - all.begin())];
}

bool runs_here(const Target& target) {
  if (target.name == targets().front().name) return true;
  static const std::string help = help_of_loader();
  return help.find(std::string(target.name) + " (supported") != std::string::npos;
}

}  // namespace xfm::catalogue
