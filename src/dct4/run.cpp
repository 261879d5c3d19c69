// One transform by a plan: the whole fold, then the whole combine. A register of the fold holds residues side
// by side, one of the combine holds classes. The spectrum between them is stored class by class, each with
// its real parts followed by its imaginary parts, residues fastest.
#include "src/dct4/base.h"
#include "src/dct4/base_wide.h"
#include "src/dct4/stages.h"

namespace xfm::dct4 {
namespace {

template <class T>
xfmStatus run_tree(const T* src, T* dst, const Dct4Plan<T>& root) {
  const auto& fold_shell = *first_of<FoldShell>(root.fold_view);
  const auto& combine_shell = *first_of<CombineShell>(root.combine_view);
  const bool folds = fold_shell.kind == kind_sound, combines = combine_shell.kind == kind_sound;
  const auto& fold = *first_of<FoldNode>(fold_shell.view);
  const auto& combine = *first_of<CombineNode<T>>(combine_shell.view);
  if (folds && combines && is_long(fold, combine)) return run_long(fold, combine, root.work, dst, src);
  if (folds) run_fold(fold, root.work, src);
  if (combines) run_combine(combine, dst, root.work);
  return xfmStsOk;
}

}  // namespace

template <class T>
xfmStatus run(const T* src, T* dst, const Dct4Plan<T>& root) {
  switch (root.kind) {
    case 1:
      transform_2(src, dst);
      return xfmStsOk;
    case 2:
      transform_4(src, dst);
      return xfmStsOk;
    case 3:
      transform<T, 8, 2>(src, dst);
      return xfmStsOk;
    case 4:
      if constexpr (widest > 1 && group_size<T> == 2)
        transform_16_wide(src, dst);
      else
        transform<T, 16, 4>(src, dst);
      return xfmStsOk;
    case 5:
      if constexpr (widest > 1)
        transform_32_wide(src, dst);
      else
        transform<T, 32, 2>(src, dst);
      return xfmStsOk;
    case root_kind_tree:
      return run_tree(src, dst, root);
    default:
      return xfmStsBadState;
  }
}

template xfmStatus run(const float*, float*, const Dct4Plan<float>&);
template xfmStatus run(const double*, double*, const Dct4Plan<double>&);

}  // namespace xfm::dct4
