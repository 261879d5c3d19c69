// The memory of a plan: a bump arena that carves one block, the header that every object in it begins with,
// and the list that ties objects together. Nothing here depends on the element type.
#pragma once

#include <cstdint>
#include <new>

namespace xfm::dct4 {

/// The arena is one cell at the very start of the block: the next free byte. It knows no limit, so the size
/// query is the only guard. The block may have any address, and so has the cell: all else is aligned.
struct __attribute__((packed)) PlanArena {
  unsigned char* top;
};

/// Objects, list cells and tables stand on multiples of this, which serves aligned vector loads.
constexpr std::uint32_t granule = 32;

constexpr std::uint32_t round32(std::uint32_t bytes) { return (bytes + (granule - 1)) & ~(granule - 1); }

/// Makes the block an empty arena. The first object stands 33 to 64 bytes into the block, and up to 95 bytes
/// in where bit 31 of the block's address is set: the remainder is that of a signed 32-bit number.
PlanArena* arena_open(void* block);

/// Memory of undetermined content.
void* arena_alloc(PlanArena* arena, std::uint32_t bytes);

/// Pure bookkeeping: every allocation is matched by one release of the same rounded size, in any order.
void arena_release(PlanArena* arena, std::uint32_t bytes);

/// The header of every object. An object is a plain record, known by two operations: destroy releases what it
/// owns but not its own memory; the other one is init for a stage (0 or a negative status), evaluate for a
/// twiddle source.
struct PlanObject {
  using Operation = void (*)();  ///< stands for a function type that the object's kind tells

  void (*destroy)(PlanObject*);
  std::uint64_t size;  ///< of the whole object before rounding
  Operation operation;
  PlanArena* arena;  ///< from which the object and everything it owns came
};

/// A chain of cells, named by its head, which also exists when the list is empty.
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

/// An object of arena memory, its header set, everything else zero. The record's first member is its header.
template <class Record>
Record* object_new(PlanArena* arena, void (*destroy)(PlanObject*), PlanObject::Operation operation) {
  auto* record = new (arena_alloc(arena, sizeof(Record))) Record{};
  record->head = {destroy, sizeof(Record), operation, arena};
  return record;
}

}  // namespace xfm::dct4
