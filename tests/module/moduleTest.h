#pragma once

#include "pbrInstances.h"

#include "allocations.h"
#include "brBrowsable.h"
#include "hostBrRegistry.h"
#include "hostJournal.h"
#include "hostToolRegistry.h"
#include "hostTtServer.h"

#include <gmock/gmock.h>

namespace Qv {

/// Starts and ends with empty registries and a journal that is not kept.
class ModuleTest : public testing::Test {
protected:
  ~ModuleTest() override {
    HostJournal::getInstance().stop();
    HostToolRegistry::getInstance().clear();
    HostTtServer::getInstance().clear();
    HostBrRegistry::getInstance().clear();
  }

  HostToolRegistry& tools_ = HostToolRegistry::getInstance();
  HostTtServer& tooltips_ = HostTtServer::getInstance();
  HostJournal& journal_ = HostJournal::getInstance();
};

/// All elements of a sequence.
template <class T> std::vector<T> collect(Iterator<T> elements) {
  std::vector<T> result;
  for (; !elements.atEnd(); elements.next())
    result.push_back(elements.item());
  return result;
}

/// The paths of the items of a sequence.
inline std::vector<std::string> paths(Iterator<RCShdPtr<BrBrowsable>> items) {
  std::vector<std::string> result;
  for (; !items.atEnd(); items.next())
    result.push_back(items.item()->getPath());
  return result;
}

/// A string attribute of an item.
inline std::string attribute(BrBrowsable& item, unsigned int attributeId) {
  LiString value("unwritten");
  item.get(int(attributeId), &value);
  return value;
}

/// The calls that the journal holds, as "operation(key)".
inline std::vector<std::string> calls() {
  std::vector<std::string> result;
  for (HostJournal::Entry const& entry : HostJournal::getInstance().getEntries())
    result.push_back(entry.operation + "(" + entry.key + ")");
  return result;
}

} // namespace Qv
