#include "bench/library.h"

#include <dlfcn.h>
#include <fmt/format.h>

#include <filesystem>
#include <stdexcept>
#include <string_view>

namespace xfm::bench {

namespace {

void* loaded(const std::string& file) {
  // A bare name would find the library that is loaded already, as any library of that name.
  void* const handle = dlopen(std::filesystem::absolute(file).c_str(), RTLD_NOW | RTLD_LOCAL);
  if (handle == nullptr) throw std::runtime_error(dlerror());
  return handle;
}

std::string_view file_of(const void* function) {
  Dl_info info{};
  return dladdr(function, &info) != 0 ? info.dli_fname : "";
}

}  // namespace

Library::Library(const std::string& file) : handle_(loaded(file)) {}

void Library::Close::operator()(void* handle) const { dlclose(handle); }

void* Library::address(const std::string& name) const {
  void* const linked = dlsym(RTLD_DEFAULT, name.c_str());
  if (!handle_) {
    if (linked == nullptr) throw std::runtime_error(fmt::format("{}: not exported", name));
    return linked;
  }
  void* const other = dlsym(handle_.get(), name.c_str());
  if (other == nullptr) throw std::runtime_error(fmt::format("{}: not exported by the other library", name));
  if (file_of(other) == file_of(linked))
    throw std::runtime_error(fmt::format("{}: both functions are in {}", name, file_of(other)));
  return other;
}

}  // namespace xfm::bench
