// The reader of the examples on a file of any bytes: it reads to the end or throws a std::runtime_error.
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <functional>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

#include "fuzz/report.h"
#include "sound/audio.h"

namespace {

/// What libsndfile says stands for the way that it went.
void note(const std::string& words) {
  xfm::fuzz::note_kind(static_cast<std::uint32_t>(std::hash<std::string>()(words)), 0);
}

/// A file in memory, with a path.
class File {
 public:
  File(const std::uint8_t* data, std::size_t size) : descriptor_(memfd_create("sound", 0)) {
    xfm::fuzz::require(write(descriptor_, data, size) == static_cast<ssize_t>(size), "write");
  }
  ~File() { close(descriptor_); }
  File(const File&) = delete;
  File& operator=(const File&) = delete;

  std::string path() const { return "/proc/self/fd/" + std::to_string(descriptor_); }

 private:
  int descriptor_;
};

constexpr std::size_t block = 256;
constexpr int blocks = 16;  ///< a header may promise more sound, and channels, than anyone wants to wait for

void read_all(const std::string& path) {
  Audio audio(path);
  xfm::fuzz::require(audio.channels() > 0 && audio.samples() > 0 && audio.rate() > 0,
                     "an open file without sound");
  xfm::fuzz::require(!audio.format().empty() && audio.seconds() > 0, "format and seconds");
  note(audio.format() + std::to_string(audio.channels()));
  std::vector<std::vector<float>> memory(static_cast<std::size_t>(audio.channels()),
                                         std::vector<float>(block));
  const std::vector<std::span<float>> signals(memory.begin(), memory.end());
  for (int i = 0; i < blocks; ++i) {
    const std::size_t now = audio.read(signals);
    xfm::fuzz::require(now <= block, "more samples than were wanted");
    if (now < block) break;
  }
}

}  // namespace

// libsndfile 1.2 leaks what libvorbis allocated for a broken Ogg file, which it opened and closed itself. A
// library's name is known without a symbolizer, which a system with clang alone lacks.
// NOLINTNEXTLINE(bugprone-reserved-identifier,readability-identifier-naming)
extern "C" const char* __lsan_default_suppressions() { return "leak:libvorbis\n"; }

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const File file(data, size);
  try {
    read_all(file.path());
  } catch (const std::runtime_error& error) {  // which the examples report to their users
    note(error.what());
  }
  return 0;
}
