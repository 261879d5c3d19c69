// The memory of a plan: a bump arena in one block, the header that every object in it starts with, and the
// list that links objects. Nothing here depends on the element type.
#pragma once

#include <cstdint>
#include <new>

namespace xfm::dct4 {

/// The arena is one cell at the start of the block, which points to the next free byte. It checks no limit:
/// callers ask for the size first. The block may have any address, and so may the cell; all else is aligned.
struct __attribute__((packed)) PlanArena {
  unsigned char* top;
};

/// Objects, list cells and tables are at multiples of this, as aligned vector loads need.
constexpr std::uint32_t granule = 32;

constexpr std::uint32_t round32(std::uint32_t bytes) { return (bytes + (granule - 1)) & ~(granule - 1); }

/// Makes the block an empty arena. The first object is 33 to 64 bytes into the block, or up to 95 where bit
/// 31 of the block's address is set, because the remainder is that of a signed 32-bit number.
PlanArena* arena_open(void* block);

/// Uninitialised memory.
void* arena_alloc(PlanArena* arena, std::uint32_t bytes);

/// Bookkeeping only: every allocation is matched by one release of the same rounded size, in any order.
void arena_release(PlanArena* arena, std::uint32_t bytes);

/// The header of every object. An object is a plain record with two operations: destroy releases what it owns
/// but not its own memory; the other one is init for a stage (0 or a negative status), and evaluate for a
/// twiddle source.
struct PlanObject {
  using Operation = void (*)();  ///< cast from a function type that depends on the object's kind

  void (*destroy)(PlanObject*);
  std::uint64_t size;  ///< of the whole object before rounding
  Operation operation;
  PlanArena* arena;  ///< of the object and everything it owns
};

/// A chain of cells. A list is known by its head, which exists even if the list is empty.
struct PlanList {
  PlanObject* payload;
  PlanList* next;
  PlanArena* arena;
};

PlanList* list_new(PlanArena* arena);
void list_append(PlanList* list, PlanObject* object);
/// The n-th payload, or null if the list ends before it.
PlanObject* list_nth(const PlanList* list, int n);
/// Releases a list that holds objects for lookup only: its cells and its head.
void list_release(PlanList* view);
/// Destroys and releases the objects of a list in their order, then the list itself; null does nothing.
void list_release_objects(PlanList* owner);

/// An object in arena memory: its header, the first member, is set, and everything else is zero.
template <class Record>
Record* object_new(PlanArena* arena, void (*destroy)(PlanObject*), PlanObject::Operation operation) {
  auto* record = new (arena_alloc(arena, sizeof(Record))) Record{};
  record->head = {destroy, sizeof(Record), operation, arena};
  return record;
}

}  // namespace xfm::dct4
