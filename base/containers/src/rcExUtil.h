#pragma once

#include "exBase.h"
#include "typeName.h"

namespace Qv {

/// Thrown when a null pointer is dereferenced.
class QV_EXPORT ExNullPtr : public ExBase {
public:
  explicit ExNullPtr(char const* typeName);
  ~ExNullPtr() override;

  /// The demangled name of the pointer type, for instance `Qv::PiTool const*`.
  std::string const& getTypeName() const { return typeName_; }

private:
  std::string typeName_;
};

/// Thrown when a checked cast meets an object of another class.
class QV_EXPORT ExCastFailed : public ExBase {
public:
  ExCastFailed(char const* from, char const* to);
  ~ExCastFailed() override;

  /// The demangled name of the object's dynamic type.
  std::string const& getFrom() const { return from_; }
  /// The demangled name of the target type.
  std::string const& getTo() const { return to_; }

private:
  std::string from_;
  std::string to_;
};

/// Throws the exceptions of the smart pointers.
class QV_EXPORT RCExUtil {
public:
  /// @throws ExNullPtr always. @param typeName the demangled name of the pointer type.
  [[noreturn]] static void throwExNullPtr(char const* typeName);
  /// @throws ExCastFailed always. @param from the dynamic type. @param to the target type.
  [[noreturn]] static void throwExCastFailed(char const* from, char const* to);

  /// @throws ExNullPtr always, for the pointer type `Pointer`.
  template <class Pointer> [[noreturn]] static void throwExNullPtrOf() {
    throwExNullPtr(typeName(typeid(Pointer)).c_str());
  }
};

} // namespace Qv
