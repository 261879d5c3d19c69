// How a plan is built and destroyed. The init of an object decides its kind, makes its children and calls
// their init. The order of allocation is fixed. List heads are made when an object is filled, those for
// lookup first, the owner's last; an object is appended to its owner before any view.
#include "src/dct4/twiddle.h"

namespace xfm::dct4 {
namespace {

using Destroy = void (*)(PlanObject*);
using Init = xfmStatus (*)(PlanObject*);

// Operations of a kind, seen as those of any object.
template <class Record, void (*operation)(Record&)>
void destroy_as(PlanObject* object) {
  operation(*reinterpret_cast<Record*>(object));
}
template <class Record, xfmStatus (*operation)(Record&)>
xfmStatus init_as(PlanObject* object) {
  return operation(*reinterpret_cast<Record*>(object));
}

/// A stage object by its two operations.
template <class Record, void (*destroy)(Record&), xfmStatus (*init)(Record&)>
Record* stage_new(PlanArena* arena) {
  const Init as_any = init_as<Record, init>;
  return object_new<Record>(arena, destroy_as<Record, destroy>,
                            reinterpret_cast<PlanObject::Operation>(as_any));
}

xfmStatus init_of(PlanObject& object) { return reinterpret_cast<Init>(object.operation)(&object); }

/// Any failure of a child means that the length cannot be broken down.
xfmStatus init_child(PlanObject& object) { return init_of(object) == xfmStsOk ? xfmStsOk : xfmStsBadSize; }

void append(PlanObject& object, PlanList* owner, PlanList* view) {
  list_append(owner, &object);
  list_append(view, &object);
}

template <class T>
T* new_work(PlanArena* arena, std::int32_t length) {
  return static_cast<T*>(arena_alloc(arena, static_cast<std::uint32_t>(length) * sizeof(T)));
}
template <class T>
void release_work(PlanArena* arena, std::int32_t length) {
  arena_release(arena, static_cast<std::uint32_t>(length) * sizeof(T));
}

// ---- Splits, which hold folds, which may hold splits.

template <class T>
void destroy_odd_combine(OddCombineNode<T>& node) {
  arena_release(node.head.arena, table_bytes(node));
  list_release_objects(node.owner);
}

template <class T>
xfmStatus init_odd_combine(OddCombineNode<T>& node) {
  node.kind = place_among(2, 32, node.radix);
  if (node.kind == 0) return xfmStsBadSize;
  make_table(node);
  return xfmStsOk;
}

void destroy_odd_fold(OddFoldNode& node) {
  list_release(node.view);
  list_release_objects(node.owner);
}

template <class T>
void destroy_split(OddSplitNode<T>& node) {
  release_work<T>(node.head.arena, node.length);
  list_release(node.combine_view);
  list_release(node.fold_view);
  list_release_objects(node.owner);
}

template <class T>
xfmStatus init_split(OddSplitNode<T>& node);

template <class T>
OddSplitNode<T>* new_split(PlanArena* arena, std::int32_t m, std::int32_t length, std::int32_t r_above) {
  auto* node = stage_new<OddSplitNode<T>, destroy_split<T>, init_split<T>>(arena);
  node->fold = m;
  node->length = node->whole = node->full = length;
  node->step = 2 * r_above;
  node->part = r_above;
  node->combine_view = list_new(arena);
  node->fold_view = list_new(arena);
  node->owner = list_new(arena);
  return node;
}

/// Sets a fold's kind, and builds the split of a fold that is no leaf.
template <class T, class Fold>
xfmStatus init_fold(Fold& node, std::int32_t r_above) {
  node.reserved = 0;
  node.kind = leaf_kind(node.fold);
  if (node.kind != 0) return xfmStsOk;
  node.kind = fold_kind_split;
  auto* split = new_split<T>(node.head.arena, node.fold, node.length, r_above);
  append(split->head, node.owner, node.view);
  return init_child(split->head);
}

template <class T>
xfmStatus init_odd_fold(OddFoldNode& node) {
  return init_fold<T>(node, node.part);
}

template <class T>
void add_odd_combine(OddSplitNode<T>& split) {
  PlanArena* const arena = split.head.arena;
  auto* node = stage_new<OddCombineNode<T>, destroy_odd_combine<T>, init_odd_combine<T>>(arena);
  auto* source = new_half_step_source<T>(arena);
  source->fold = split.fold;
  source->radix = split.radix;
  list_append(split.owner, &source->head);

  node->radix = split.radix;
  node->length = node->whole = split.length;
  node->sequence_step = node->part = split.part;
  node->class_step = 2 * split.part * split.radix;
  node->classes = split.fold / (2 * split.radix);
  node->half = split.fold / 2;
  node->mirror = split.fold - 1;
  node->fold = split.fold / split.radix;
  node->source = &source->head;
  node->owner = list_new(arena);
  append(node->head, split.owner, split.combine_view);
}

template <class T>
void add_odd_fold(OddSplitNode<T>& split) {
  PlanArena* const arena = split.head.arena;
  auto* node = stage_new<OddFoldNode, destroy_odd_fold, init_odd_fold<T>>(arena);
  node->fold = split.fold / split.radix;
  node->length = node->whole = node->full = split.length;
  node->step = 2 * split.part * split.radix;
  node->forward_step = 2 * split.part;
  node->sequences = split.radix;
  node->part = split.part * split.radix;
  node->output_step = split.part;
  node->view = list_new(arena);
  node->owner = list_new(arena);
  append(node->head, split.owner, split.fold_view);
}

template <class T>
xfmStatus init_split(OddSplitNode<T>& node) {
  node.kind = kind_sound;
  node.radix = radix_rule(node.fold / 2);
  if (node.radix == 0) return xfmStsBadSize;
  add_odd_combine(node);
  if (init_child(*list_nth(node.combine_view, 0)) != xfmStsOk) return xfmStsBadSize;
  add_odd_fold(node);
  if (init_child(*list_nth(node.fold_view, 0)) != xfmStsOk) return xfmStsBadSize;
  node.work = new_work<T>(node.head.arena, node.length);
  return xfmStsOk;
}

// ---- The fold side.

void destroy_fold(FoldNode& node) {
  list_release(node.view);
  list_release_objects(node.owner);
}

template <class T>
xfmStatus init_fold_node(FoldNode& node) {
  return init_fold<T>(node, node.part);
}

void destroy_fold_shell(FoldShell& shell) {
  list_release(shell.view);
  list_release_objects(shell.owner);
}

template <class T>
xfmStatus init_fold_shell(FoldShell& shell) {
  if (shell.radix % group_size<T> != 0) return xfmStsBadSize;
  shell.kind = kind_sound;
  PlanArena* const arena = shell.head.arena;
  auto* node = stage_new<FoldNode, destroy_fold, init_fold_node<T>>(arena);
  node->fold = shell.fold;
  node->length = node->whole = shell.length;
  node->mirror = shell.mirror;
  node->step = shell.step;
  node->batches = shell.radix / group_size<T>;
  node->part = shell.radix;
  node->view = list_new(arena);
  node->owner = list_new(arena);
  append(node->head, shell.owner, shell.view);
  shell.reserved = 0;
  return init_child(node->head);
}

// ---- The combine side.

template <class T>
void destroy_combine(CombineNode<T>& node) {
  arena_release(node.head.arena, table_bytes(node));
  list_release_objects(node.owner);
}

template <class T>
xfmStatus init_combine(CombineNode<T>& node) {
  node.kind = place_among(1, 32, node.radix);
  if (node.kind == 0) return xfmStsBadSize;
  make_table(node);
  return xfmStsOk;
}

void destroy_combine_shell(CombineShell& shell) {
  list_release(shell.view);
  list_release_objects(shell.owner);
}

template <class T>
xfmStatus init_combine_shell(CombineShell& shell) {
  if (shell.classes % group_size<T> != 0) return xfmStsBadSize;
  shell.kind = kind_sound;
  PlanArena* const arena = shell.head.arena;
  auto* node = stage_new<CombineNode<T>, destroy_combine<T>, init_combine<T>>(arena);
  auto* source = new_lane_source<T>(arena);
  source->step = shell.step;
  source->groups = shell.classes / group_size<T>;
  source->source = shell.source;
  list_append(shell.owner, &source->head);

  node->radix = shell.radix;
  node->length = node->whole = shell.length;
  node->step = shell.step;
  node->group_elements = shell.step * group_size<T>;
  node->groups = source->groups;
  node->mirror = shell.mirror;
  node->fold = shell.fold;
  node->source = &source->head;
  node->owner = list_new(arena);
  append(node->head, shell.owner, shell.view);
  const xfmStatus status = init_child(node->head);
  shell.reserved = 0;
  return status;
}

// ---- The root.

template <class T>
void destroy_root(Dct4Plan<T>& root) {
  release_work<T>(root.head.arena, root.kind == root_kind_tree ? root.length : 0);
  list_release(root.combine_view);
  list_release(root.fold_view);
  list_release_objects(root.owner);
}

template <class T>
void add_combine_shell(Dct4Plan<T>& root) {
  PlanArena* const arena = root.head.arena;
  auto* shell = stage_new<CombineShell, destroy_combine_shell, init_combine_shell<T>>(arena);
  auto* source = new_cos_sin_source<T>(arena);
  source->step = source->row = 2 * root.radix;
  source->full_turn = static_cast<std::int32_t>(8 * static_cast<std::uint32_t>(root.length));
  source->classes = root.length / (2 * root.radix);
  source->radix = root.radix;
  list_append(root.owner, &source->head);

  shell->radix = root.radix;
  shell->length = shell->whole = root.length;
  shell->step = 2 * root.radix;
  shell->classes = source->classes;
  shell->mirror = static_cast<std::int32_t>(2 * static_cast<std::uint32_t>(root.length) - 1);
  shell->fold = root.length / root.radix;
  shell->source = &source->head;
  shell->view = list_new(arena);
  shell->owner = list_new(arena);
  append(shell->head, root.owner, root.combine_view);
}

template <class T>
void add_fold_shell(Dct4Plan<T>& root) {
  PlanArena* const arena = root.head.arena;
  auto* shell = stage_new<FoldShell, destroy_fold_shell, init_fold_shell<T>>(arena);
  shell->fold = root.length / root.radix;
  shell->length = shell->whole = root.length;
  shell->mirror = static_cast<std::int32_t>(2 * static_cast<std::uint32_t>(root.length) - 1);
  shell->step = 2 * root.radix;
  shell->radix = shell->part = root.radix;
  shell->view = list_new(arena);
  shell->owner = list_new(arena);
  append(shell->head, root.owner, root.fold_view);
}

template <class T>
xfmStatus init_root(Dct4Plan<T>& root) {
  root.kind = base_kind(root.length);
  if (root.kind != 0) return xfmStsOk;
  root.kind = root_kind_tree;
  root.radix = radix_rule(root.length / 2);
  if (root.radix == 0) return xfmStsBadSize;
  add_combine_shell(root);
  if (init_child(*list_nth(root.combine_view, 0)) != xfmStsOk) return xfmStsBadSize;
  add_fold_shell(root);
  if (init_child(*list_nth(root.fold_view, 0)) != xfmStsOk) return xfmStsBadSize;
  root.work = new_work<T>(root.head.arena, root.length);
  return xfmStsOk;
}

}  // namespace

template <class T>
xfmStatus init(Dct4Plan<T>** root, std::int32_t length, void* block) {
  PlanArena* const arena = arena_open(block);
  auto* plan = stage_new<Dct4Plan<T>, destroy_root<T>, init_root<T>>(arena);
  plan->length = length;
  plan->combine_view = list_new(arena);
  plan->fold_view = list_new(arena);
  plan->owner = list_new(arena);
  const xfmStatus status = init_of(plan->head);
  if (status != xfmStsOk) {
    destroy(plan);
    return status;
  }
  *root = plan;
  return xfmStsOk;
}

template <class T>
void destroy(Dct4Plan<T>* root) {
  PlanArena* const arena = root->head.arena;
  root->head.destroy(&root->head);
  arena_release(arena, sizeof(*root));
}

template xfmStatus init(Dct4Plan<float>**, std::int32_t, void*);
template xfmStatus init(Dct4Plan<double>**, std::int32_t, void*);
template void destroy(Dct4Plan<float>*);
template void destroy(Dct4Plan<double>*);

}  // namespace xfm::dct4
