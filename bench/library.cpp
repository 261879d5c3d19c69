#include "bench/library.h"

#include <dlfcn.h>
#include <fmt/format.h>

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include "xfm.h"

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

const catalogue::Target* target_named(const std::string& name) {
  for (const catalogue::Target& target : catalogue::targets())
    if (target.name == name) return &target;
  return nullptr;
}

const catalogue::Target* target_loaded() {
  const std::string file = file_of(reinterpret_cast<const void*>(&xfmGetLibVersion));
  for (const catalogue::Target& target : catalogue::targets()) {
    std::error_code missing;
    if (fs::equivalent(target.library, file, missing)) return &target;
  }
  return nullptr;
}

}  // namespace

const catalogue::Target& chosen_target(const std::string& name) {
  const catalogue::Target* const target = name.empty() ? target_loaded() : target_named(name);
  if (target == nullptr)
    throw std::runtime_error(name.empty() ? "the library loaded is not of this build"
                                          : "no target " + name + " in this build");
  if (!runs_here(*target))
    throw std::runtime_error(fmt::format("this processor cannot run {}", target->name));
  return *target;
}

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

void* Library::address(const std::string& name) const {
  void* const function = dlsym(handle_.get(), name.c_str());
  if (function == nullptr || file_of(function) != file_)
    throw std::runtime_error(fmt::format("{}: not exported by both libraries", name));
  return function;
}

Builds loaded_builds(const catalogue::Target& target, const std::string& other) {
  const bool alone = other.empty();
  Builds builds{&target, {}, {}};
  for (int copies = alone ? 1 : 3; copies > 0; --copies) {
    builds.ours.emplace_back(target.library);
    if (!alone) builds.other.emplace_back(target_named(other) ? chosen_target(other).library : other);
  }
  return builds;
}

}  // namespace xfm::bench
