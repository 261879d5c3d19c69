// XFM_FFTW_VERBOSE=1: how many plans and executions ran where, and how long, on stderr when the program ends.
#pragma once

#include <cstdint>

enum class Where { xfm, fftw };
enum class What { plan, execution };

bool keeps_report();

/// Notes one plan or execution, with the time from here to the end of the scope. Without a report it does
/// nothing.
class Stopwatch {
 public:
  Stopwatch(Where where, What what);
  Stopwatch(const Stopwatch&) = delete;
  Stopwatch& operator=(const Stopwatch&) = delete;
  ~Stopwatch();
  void move_to(Where where) { where_ = where; }

 private:
  Where where_;
  What what_;
  std::uint64_t start_;
};
