#pragma once

#include "exBase.h"
#include "typeName.h"

namespace Qv {

/// Thrown when a null pointer is dereferenced.
class QV_EXPORT ExNullPtr : public ExBase {
public:
  explicit ExNullPtr(char const* typeName);
  ~ExNullPtr() override;

  /// The readable name of the pointer type, for instance `Qv::PiTool const*`.
  std::string const& getTypeName() const { return typeName_; }

private:
  std::string typeName_;
};

/// Thrown when a checked conversion meets an object of another class.
class QV_EXPORT ExCastFailed : public ExBase {
public:
  ExCastFailed(char const* from, char const* to);
  ~ExCastFailed() override;

  /// The readable name of the object's dynamic type.
  std::string const& getFrom() const { return from_; }
  /// The readable name of the target type.
  std::string const& getTo() const { return to_; }

private:
  std::string from_;
  std::string to_;
};

/// Throws what the pointers throw.
class QV_EXPORT RCExUtil {
public:
  /// @throws ExNullPtr always. @param typeName the readable name of the pointer type.
  [[noreturn]] static void throwExNullPtr(char const* typeName);
  /// @throws ExCastFailed always. @param from the dynamic type. @param to the target type.
  [[noreturn]] static void throwExCastFailed(char const* from, char const* to);

  /// Calls throwExNullPtr() with the readable name of `Pointer`.
  template <class Pointer> [[noreturn]] static void throwExNullPtrOf() {
    throwExNullPtr(typeName(typeid(Pointer)).c_str());
  }
};

} // namespace Qv
