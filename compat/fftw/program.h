// Transforms on xfm: batches in loops.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include "problem.h"

class Dct4States;

/// The function that transforms one contiguous array.
struct Kernel {
  ComplexKernel complex = nullptr;
  RealKernel real = nullptr;
};

/// Which array a step reads, and which it writes.
enum class Road { in_to_out, out_to_out, in_to_in };

/// Transforms along one dimension, for all indices of the others.
struct Step {
  using Run = void (*)(const Step&, const Real* in, Real* out);

  Run run;
  Road road;
  Dim transform;
  Dim batch;               ///< n transforms by one call
  std::vector<Dim> loops;  ///< over such calls, the outermost first
  ComplexBatch complex = nullptr;
  RealBatch real = nullptr;
  Kernel kernel;
  std::vector<std::ptrdiff_t> places;  ///< where elements of a packed spectrum are in FFTW's order
  std::shared_ptr<Dct4States> states;
  bool sine = false;  ///< RODFT11
};

struct Program {
  std::vector<Dim> blocks;       ///< loops over everything below, the outermost first
  bool gains = false;            ///< it is faster than FFTW
  Dim group;                     ///< n times steps
  std::vector<Step> steps;       ///< of one group
  std::vector<Step> last_steps;  ///< of what is left behind the last group
};

void run(const Program& program, Real* in, Real* out);

/// The program of a problem, if xfm serves it: if this is nothing, FFTW does.
std::optional<Program> program_of(const Problem& problem);

/// A program that is one call of a step; null if it is more.
const Step* only_step(const Program& program);

/// A step that is one contiguous transform is one call of its kernel; without any if it is more.
Kernel kernel_of(const Step& step);
