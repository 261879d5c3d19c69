// Writers of C++ text: a kernel's body, and the shell around it (entry tests, factor, unaligned variant).
#pragma once

#include <map>
#include <set>
#include <span>
#include <string>

#include "gen/kernel.h"
#include "gen/targets/target.h"

namespace xfm::gen {

/// The type of a value: a scalar, or a register as the vocabularies spell it, f32x4.
struct ValueType {
  Precision precision;
  int lanes;

  bool scalar() const { return lanes == 1; }
  bool wide() const { return lanes * bytes(precision) > 16; }  ///< than the registers that all targets have
  std::string name() const;
};

/// The constants of a body as scalars.
class NamedConstants {
 public:
  explicit NamedConstants(const Kernel& kernel);

  /// The constant's name, with its sign in front; 0 and 1 as they are. From now on it is among the
  /// definitions.
  std::string use(const Constant& c);
  std::string definitions() const;

 private:
  Precision precision_;  ///< linear combinations carry binary64 constants whatever the kernel's precision
  std::set<Constant> used_;
};

/// Registers of replicated constants, by name, one for all kernels of the library, whose name theirs begin
/// with. They have a translation unit of their own, because a compiler that saw their values would build them
/// from scalars at every use.
class SharedConstants {
 public:
  explicit SharedConstants(std::string library) : library_(std::move(library)) {}

  /// The register's name; from now on the register is among the definitions.
  std::string use(const Constant& c, const ValueType& type);

  /// The translation unit that defines all registers that were used.
  std::string definitions(const Target& target) const;

 private:
  std::string library_;
  std::map<std::string, std::string> definitions_;
};

/// One translation unit with these kernels.
std::string emit_file(std::span<const Kernel> kernels, const Target& target, SharedConstants& shared);

/// One with the bodies of these kernels in loops over transforms, for batches: one_by_one_KERNEL.
std::string emit_loops(std::span<const Kernel> kernels, const Target& target, SharedConstants& shared);

/// The definition of a kernel's factors, each repeated for so many lanes.
std::string factors(const Kernel& kernel, int lanes);

/// The name of a constant as a part of a C++ identifier.
std::string identifier(const std::string& name);

/// A C++ literal with every bit of the value, in the given precision.
std::string literal(Wide value, Precision precision);

}  // namespace xfm::gen
