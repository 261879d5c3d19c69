// The loop nest itself. XFM_LOOPS_COMPILER is the part of the functions' names that identifies the compiler.
#define XFM_PASTE(a, b, c) a##b##c
#define XFM_NAME(compiler, suffix) XFM_PASTE(loops_, compiler, suffix)

namespace {

template <class Real>
void transform(const Real* src, Real* dst, int order, Real factor) {
  const int n = 1 << order;
  for (int i = 0; i < n; ++i) dst[i] = src[i];
  for (int stride = 1; stride < n; stride *= 2) {
    for (int block = 0; block < n; block += 2 * stride) {
      for (int i = block; i < block + stride; ++i) {
        const Real a = dst[i], b = dst[i + stride];
        dst[i] = a + b;
        dst[i + stride] = a - b;
      }
    }
  }
  for (int i = 0; i < n; ++i) dst[i] *= factor;
}

}  // namespace

extern "C" {
void XFM_NAME(XFM_LOOPS_COMPILER, _32f)(const float* src, float* dst, int order, float factor) {
  transform(src, dst, order, factor);
}
void XFM_NAME(XFM_LOOPS_COMPILER, _64f)(const double* src, double* dst, int order, double factor) {
  transform(src, dst, order, factor);
}
}
