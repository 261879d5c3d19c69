#include "bench/library.h"

#include <dlfcn.h>
#include <fmt/format.h>

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace xfm::bench {

namespace {

namespace fs = std::filesystem;

std::string file_of(const void* function) {
  Dl_info info{};
  return dladdr(function, &info) != 0 ? info.dli_fname : "";
}

std::string temporary_folder() {
  std::string folder = fs::temp_directory_path() / "xfmbench-XXXXXX";
  if (mkdtemp(folder.data()) == nullptr) throw std::runtime_error(fmt::format("{}: cannot be made", folder));
  return folder;
}

}  // namespace

Library::Library(const std::string& file) {
  const std::string folder = temporary_folder();
  file_ = fs::path(folder) / "libxfm.so";
  std::error_code failure;
  fs::copy_file(file, file_, failure);
  if (!failure) handle_.reset(dlopen(file_.c_str(), RTLD_NOW | RTLD_LOCAL));
  fs::remove_all(folder);
  if (failure) throw std::runtime_error(fmt::format("{}: {}", file, failure.message()));
  if (!handle_) throw std::runtime_error(fmt::format("{}: {}", file, dlerror()));
}

void Library::Close::operator()(void* handle) const { dlclose(handle); }

std::string Library::file() const { return file_of(address("xfmGetLibVersion")); }

void* Library::address(const std::string& name) const {
  void* const function = dlsym(handle_ ? handle_.get() : RTLD_DEFAULT, name.c_str());
  if (function == nullptr || (handle_ && file_of(function) != file_))
    throw std::runtime_error(fmt::format("{}: not exported{}", name, handle_ ? " by both libraries" : ""));
  return function;
}

Builds loaded_builds(const std::string& other_file) {
  constexpr int kCopies = 3;
  Builds builds;
  if (other_file.empty()) {
    builds.ours.emplace_back();
    return builds;
  }
  for (int i = 0; i < kCopies; ++i) {
    builds.ours.emplace_back(Library().file());
    builds.other.emplace_back(other_file);
  }
  return builds;
}

}  // namespace xfm::bench
