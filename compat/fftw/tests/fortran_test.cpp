// The interface for Fortran: the results of FFTW's own, whose arrays are in columns.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "compat/fftw/tests/rival.h"

namespace {

constexpr double kTolerance = sizeof(Real) == 4 ? 2e-5 : 4e-14;

/// Calls a subroutine by name, in FFTW or in the library under test: every argument is a pointer.
struct Library {
  bool ours;

  template <class... Arguments>
  void operator()(const std::string& name, Arguments*... arguments) const {
    const std::string symbol = (sizeof(Real) == 4 ? "sfftw_" : "dfftw_") + name;
    void* const found = ours ? dlsym(dlopen("libxfm-" XFM_FFTW_NAME ".so.3", RTLD_NOW), symbol.c_str())
                             : rival::symbol(symbol.c_str());
    ASSERT_NE(found, nullptr) << symbol;
    reinterpret_cast<void (*)(Arguments * ...)>(found)(arguments...);
  }
};

template <class Plan>
void expect_same(const char* what, Plan plan) {
  std::vector<Real> results[2];
  for (const bool ours : {false, true}) {
    std::mt19937 random(1);
    std::uniform_real_distribution<Real> noise(-1, 1);
    std::vector<Real> in(4000), out(4000);
    for (Real& x : in) x = noise(random);
    const Library library{ours};
    void* handle = nullptr;
    plan(library, &handle, in.data(), out.data());
    ASSERT_NE(handle, nullptr) << what;
    library("execute_", &handle);
    library("destroy_plan__", &handle);
    results[ours] = out;
  }
  double most = 0;
  for (std::size_t i = 0; i < results[0].size(); ++i)
    most = std::max(most, std::abs(double{results[0][i]} - double{results[1][i]}));
  EXPECT_LE(most, kTolerance) << what;
}

const int sign = FFTW_FORWARD, flags = FFTW_ESTIMATE | FFTW_UNALIGNED;
const int nx = 4, ny = 6, nz = 5, rank = 2, count = 3, one = 1, far = 100;
const int n[] = {nx, ny};
const int kinds[] = {FFTW_R2HC, FFTW_DHT, FFTW_HC2R};
using Handle = void**;

TEST(Fortran, BasicInterface) {
  for (const char* const kind : {"dft", "dft_r2c", "dft_c2r"}) {
    const std::string name = std::string("plan_") + kind;
    const auto with_sign = [&](const Library& call, const std::string& suffix, Handle p, Real* in, Real* out,
                               auto*... sizes) {
      if (name == "plan_dft")
        call(name + suffix, p, sizes..., in, out, &sign, &flags);
      else
        call(name + suffix, p, sizes..., in, out, &flags);
    };
    expect_same(kind,
                [&](const Library& c, Handle p, Real* i, Real* o) { with_sign(c, "_1d_", p, i, o, &ny); });
    expect_same(kind, [&](const Library& c, Handle p, Real* i, Real* o) {
      with_sign(c, "_2d__", p, i, o, &nx, &ny);
    });
    expect_same(kind, [&](const Library& c, Handle p, Real* i, Real* o) {
      with_sign(c, "_3d_", p, i, o, &nx, &ny, &nz);
    });
    expect_same(kind,
                [&](const Library& c, Handle p, Real* i, Real* o) { with_sign(c, "_", p, i, o, &rank, n); });
  }
  expect_same("r2r", [&](const Library& c, Handle p, Real* i, Real* o) {
    c("plan_r2r_1d_", p, &nx, i, o, &kinds[0], &flags);
  });
  expect_same("r2r 2d", [&](const Library& c, Handle p, Real* i, Real* o) {
    c("plan_r2r_2d_", p, &nx, &ny, i, o, &kinds[0], &kinds[1], &flags);
  });
  expect_same("r2r 3d", [&](const Library& c, Handle p, Real* i, Real* o) {
    c("plan_r2r_3d_", p, &nx, &ny, &nz, i, o, &kinds[0], &kinds[1], &kinds[2], &flags);
  });
  expect_same("r2r of a rank", [&](const Library& c, Handle p, Real* i, Real* o) {
    c("plan_r2r_", p, &rank, n, i, o, kinds, &flags);
  });
}

TEST(Fortran, AdvancedInterface) {
  const int embed[] = {5, 7};
  expect_same("dft", [&](const Library& c, Handle p, Real* i, Real* o) {
    c("plan_many_dft_", p, &rank, n, &count, i, embed, &one, &far, o, embed, &one, &far, &sign, &flags);
  });
  expect_same("r2c", [&](const Library& c, Handle p, Real* i, Real* o) {
    c("plan_many_dft_r2c_", p, &rank, n, &count, i, embed, &one, &far, o, embed, &one, &far, &flags);
  });
  expect_same("c2r", [&](const Library& c, Handle p, Real* i, Real* o) {
    c("plan_many_dft_c2r_", p, &rank, n, &count, i, embed, &one, &far, o, embed, &one, &far, &flags);
  });
  expect_same("r2r", [&](const Library& c, Handle p, Real* i, Real* o) {
    c("plan_many_r2r_", p, &rank, n, &count, i, embed, &one, &far, o, embed, &one, &far, kinds, &flags);
  });
}

TEST(Fortran, GuruInterface) {
  const int is[] = {1, nx}, os[] = {1, nx};
  const auto guru = [&](const Library& c, const char* name, Handle p, auto*... rest) {
    c(name, p, &rank, n, is, os, &one, &count, &far, &far, rest...);
  };
  expect_same("dft", [&](const Library& c, Handle p, Real* i, Real* o) {
    guru(c, "plan_guru_dft_", p, i, o, &sign, &flags);
  });
  expect_same("r2c", [&](const Library& c, Handle p, Real* i, Real* o) {
    guru(c, "plan_guru_dft_r2c_", p, i, o, &flags);
  });
  expect_same("c2r", [&](const Library& c, Handle p, Real* i, Real* o) {
    guru(c, "plan_guru_dft_c2r_", p, i, o, &flags);
  });
  expect_same("r2r", [&](const Library& c, Handle p, Real* i, Real* o) {
    guru(c, "plan_guru_r2r_", p, i, o, kinds, &flags);
  });
  expect_same("split", [&](const Library& c, Handle p, Real* i, Real* o) {
    guru(c, "plan_guru_split_dft_", p, i, i + 500, o, o + 500, &flags);
  });
}

TEST(Fortran, NewArraysAndTheRest) {
  for (const bool ours : {false, true}) {
    const Library call{ours};
    std::vector<Real> in(64, 1), out(64), other(64);
    void* plan = nullptr;
    call("plan_dft_r2c_1d_", &plan, &ny, in.data(), out.data(), &flags);
    call("execute_", &plan);
    call("execute_dft_r2c_", &plan, in.data(), other.data());
    EXPECT_EQ(out, other);
    EXPECT_EQ(out[0], 6);
    double cost = -1, add = -1, mul = -1, fma = -1;
    call("cost_", &cost, &plan);
    EXPECT_GE(cost, 0);
    call("flops_", &plan, &add, &mul, &fma);
    EXPECT_GT(add, 0);
    call("destroy_plan_", &plan);
    std::string wisdom;
    call("export_wisdom_",
         reinterpret_cast<void*>(+[](const char* c, void* to) { *static_cast<std::string*>(to) += *c; }),
         &wisdom);
    EXPECT_NE(wisdom.find("wisdom"), std::string::npos);
    int okay = -1;
    call("import_wisdom_", &okay, reinterpret_cast<void*>(+[](int* c, void* from) {
           auto& text = *static_cast<std::string*>(from);
           *c = text.empty() ? EOF : text.front();
           if (!text.empty()) text.erase(0, 1);
         }),
         &wisdom);
    EXPECT_EQ(okay, 1);
  }
}

}  // namespace
