#include "tests/support/attempt.h"

#include <csetjmp>
#include <csignal>
#include <cstdint>

namespace xfm::test {
namespace {

struct Trap {
  sigjmp_buf way_out;
  volatile bool set = false;
  const void* volatile address = nullptr;
};
Trap trap;

extern "C" void on_fault(int signal, siginfo_t* information, void*) {
  if (!trap.set) {
    std::signal(signal, SIG_DFL);  // not an attempt: the fault repeats and ends the program
    return;
  }
  trap.address = information->si_addr;
  siglongjmp(trap.way_out, 1);
}

void install() {
  struct sigaction action = {};
  action.sa_sigaction = on_fault;
  action.sa_flags = SA_SIGINFO | SA_NODEFER;
  sigaction(SIGSEGV, &action, nullptr);
  sigaction(SIGBUS, &action, nullptr);
}

/// No object with a destructor is alive between the jump and its target.
bool completes(const std::function<void()>& call) {
  static const bool installed = (install(), true);
  static_cast<void>(installed);
  if (sigsetjmp(trap.way_out, 0) != 0) {
    trap.set = false;
    return false;
  }
  trap.set = true;
  call();
  trap.set = false;
  return true;
}

}  // namespace

xfmStatus attempt(const std::function<xfmStatus()>& call) {
  xfmStatus status = faulted;
  if (!completes([&] { status = call(); }))
    ADD_FAILURE() << "the call faulted at address " << trap.address
                  << (trap.address == nullptr ? " (none: a misaligned access)" : "");
  return status;
}

bool faults(const std::function<void()>& call) { return !completes(call); }

}  // namespace xfm::test
