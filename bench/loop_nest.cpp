#include "bench/loop_nest.h"

extern "C" {
void loops_gcc_32f(const float* src, float* dst, int order, float factor);
void loops_gcc_64f(const double* src, double* dst, int order, double factor);
void loops_clang_32f(const float* src, float* dst, int order, float factor);
void loops_clang_64f(const double* src, double* dst, int order, double factor);
}

namespace xfm::bench {

const std::vector<LoopNest> loop_nests = {
#ifdef XFM_BENCH_LOOPS_gcc
    {"loops g++", loops_gcc_32f, loops_gcc_64f},
#endif
#ifdef XFM_BENCH_LOOPS_clang
    {"loops clang", loops_clang_32f, loops_clang_64f},
#endif
};

}  // namespace xfm::bench
