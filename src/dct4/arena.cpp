#include "src/dct4/arena.h"

#include <cstddef>

namespace xfm::dct4 {

PlanArena* arena_open(void* block) {
  const auto address = reinterpret_cast<std::uintptr_t>(block);
  const std::int32_t past =
      static_cast<std::int32_t>(static_cast<std::uint32_t>(address)) % std::int32_t{granule};
  auto* start = static_cast<unsigned char*>(block);
  return new (block) PlanArena{start + (2 * std::ptrdiff_t{granule} - past)};
}

void* arena_alloc(PlanArena* arena, std::uint32_t bytes) {
  unsigned char* const start = arena->top;
  arena->top = start + round32(bytes);
  return start;
}

void arena_release(PlanArena* arena, std::uint32_t bytes) {
  arena->top -= static_cast<std::int32_t>(round32(bytes));
}

PlanList* list_new(PlanArena* arena) {
  return new (arena_alloc(arena, sizeof(PlanList))) PlanList{nullptr, nullptr, arena};
}

void list_append(PlanList* list, PlanObject* object) {
  PlanList* last = list;
  while (last->next != nullptr) last = last->next;
  if (last->payload != nullptr) {
    last->next = list_new(list->arena);
    last = last->next;
  }
  last->payload = object;
}

PlanObject* list_nth(const PlanList* list, int n) {
  int walked = 0;
  for (; walked < n && list->next != nullptr; ++walked) list = list->next;
  return walked == n ? list->payload : nullptr;
}

void list_release(PlanList* view) {
  PlanArena* const arena = view->arena;
  for (const PlanList* cell = view; cell != nullptr; cell = cell->next)
    arena_release(arena, sizeof(PlanList));
}

void list_release_objects(PlanList* owner) {
  if (owner == nullptr) return;
  for (const PlanList* cell = owner; cell != nullptr; cell = cell->next) {
    PlanObject* const object = cell->payload;
    if (object == nullptr) continue;
    object->destroy(object);
    arena_release(owner->arena, static_cast<std::uint32_t>(object->size));
  }
  list_release(owner);
}

}  // namespace xfm::dct4
