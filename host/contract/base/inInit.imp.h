#pragma once

#include "inInit.h"

namespace Qv {

template <class Package> InInit<Package>::~InInit() = default;

template <class Package> void InInit<Package>::packageHookA() {}

template <class Package> void InInit<Package>::packageHookB() {}

template <class Package> void InInit<Package>::initialize() {}

template <class Package> void InInit<Package>::uninitialize() {}

template <class Package> void InInit<Package>::setPackageFlag(bool flag) { packageFlag_ = flag; }

template <class Package> std::type_info const* InInit<Package>::getType() {
  return &typeid(InInit);
}

template <class Package> bool InInit<Package>::packageFlag_ = false;

} // namespace Qv
