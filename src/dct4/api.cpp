// The exported functions: they test their arguments, and create, run and free states.
#include "src/dct4/plan.h"
#include "xfm.h"
#include "xfmcore.h"

namespace xfm::dct4 {
namespace {

template <class T>
struct StateOf;
template <>
struct StateOf<float> {
  using Type = xfmDCT4State_32f;
};
template <>
struct StateOf<double> {
  using Type = xfmDCT4State_64f;
};
/// The root of a plan, as callers see it.
template <class T>
using State = typename StateOf<T>::Type;

template <class T>
xfmStatus checked_init(State<T>** state, std::int32_t length, void* block) {
  if (state == nullptr || block == nullptr) return xfmStsNullPtr;
  Dct4Plan<T>* root = nullptr;
  const xfmStatus status = init(&root, length, block);
  if (status == xfmStsOk) *state = reinterpret_cast<State<T>*>(root);
  return status;
}

// If no memory is left, init gets a null pointer and rejects it.
template <class T>
xfmStatus init_alloc(State<T>** state, std::int32_t length) {
  if (state == nullptr) return xfmStsNullPtr;
  std::int32_t size = 0;
  if (const xfmStatus status = get_size<T>(length, &size); status != xfmStsOk) return status;
  void* const block = xfmMalloc(static_cast<std::size_t>(size));
  const xfmStatus status = checked_init<T>(state, length, block);
  if (status != xfmStsOk) xfmFree(block);
  return status;
}

template <class T>
xfmStatus checked_run(const T* src, T* dst, const State<T>* state) {
  if (state == nullptr || src == nullptr || dst == nullptr) return xfmStsNullPtr;
  return run(src, dst, *reinterpret_cast<const Dct4Plan<T>*>(state));
}

// The arena's cell is the start of the block.
template <class T>
xfmStatus free_state(State<T>* state) {
  if (state == nullptr) return xfmStsNullPtr;
  auto* root = reinterpret_cast<Dct4Plan<T>*>(state);
  PlanArena* const block = root->head.arena;
  destroy(root);
  xfmFree(block);
  return xfmStsOk;
}

}  // namespace
}  // namespace xfm::dct4

using namespace xfm::dct4;

xfmStatus xfmDCT4GetSize_32f(int32_t length, int32_t* size) { return get_size<float>(length, size); }
xfmStatus xfmDCT4GetSize_64f(int32_t length, int32_t* size) { return get_size<double>(length, size); }

xfmStatus xfmDCT4Init_32f(xfmDCT4State_32f** state, int32_t length, void* block) {
  return checked_init<float>(state, length, block);
}
xfmStatus xfmDCT4Init_64f(xfmDCT4State_64f** state, int32_t length, void* block) {
  return checked_init<double>(state, length, block);
}

xfmStatus xfmDCT4InitAlloc_32f(xfmDCT4State_32f** state, int32_t length) {
  return init_alloc<float>(state, length);
}
xfmStatus xfmDCT4InitAlloc_64f(xfmDCT4State_64f** state, int32_t length) {
  return init_alloc<double>(state, length);
}

xfmStatus xfmDCT4_32f(const xfm32f* src, xfm32f* dst, xfmDCT4State_32f* state) {
  return checked_run(src, dst, state);
}
xfmStatus xfmDCT4_64f(const xfm64f* src, xfm64f* dst, xfmDCT4State_64f* state) {
  return checked_run(src, dst, state);
}

xfmStatus xfmDCT4Free_32f(xfmDCT4State_32f* state) { return free_state<float>(state); }
xfmStatus xfmDCT4Free_64f(xfmDCT4State_64f* state) { return free_state<double>(state); }
