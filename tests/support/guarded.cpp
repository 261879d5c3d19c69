#include "tests/support/guarded.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace xfm::test {
namespace {

std::size_t page_size() { return static_cast<std::size_t>(sysconf(_SC_PAGESIZE)); }

void require(bool success, const char* what) {
  if (!success) throw std::system_error(errno, std::generic_category(), what);
}

}  // namespace

Guarded::Guarded(std::size_t bytes) {
  const std::size_t page = page_size();
  const std::size_t inner = (bytes + page - 1) / page * page;
  void* block = mmap(nullptr, inner + 2 * page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  require(block != MAP_FAILED, "mmap");
  begin_ = static_cast<std::byte*>(block) + page;
  end_ = begin_ + inner;
  allow_writing();
}

Guarded::~Guarded() {
  const std::size_t page = page_size();
  munmap(begin_ - page, static_cast<std::size_t>(end_ - begin_) + 2 * page);
}

void Guarded::forbid_writing() {
  require(mprotect(begin_, static_cast<std::size_t>(end_ - begin_), PROT_READ) == 0, "mprotect");
}

void Guarded::allow_writing() {
  require(mprotect(begin_, static_cast<std::size_t>(end_ - begin_), PROT_READ | PROT_WRITE) == 0, "mprotect");
}

}  // namespace xfm::test
