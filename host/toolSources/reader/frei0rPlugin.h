#pragma once

#include "scanResult.h"

#include <stdexcept>

struct f0r_param_info;
struct f0r_plugin_info;

namespace Qv {

/// Says nothing but why a plug-in cannot be read.
class PluginError : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// A loaded plug-in, between its initialisation and its end.
class Frei0rPlugin {
public:
  /// Loads the file into this process, and initialises the plug-in.
  /// @throws PluginError when that is impossible.
  explicit Frei0rPlugin(char const* file);
  Frei0rPlugin(Frei0rPlugin const&) = delete;
  Frei0rPlugin& operator=(Frei0rPlugin const&) = delete;
  /// The code stays loaded.
  ~Frei0rPlugin() { deinit_(); }

  /// Asks the plug-in for all it has to say.
  /// @throws PluginError when it does not say what it must.
  ScanResult read() const;

private:
  template <class Function> Function* entry(char const* name) const;

  void* library_;
  int (*init_)();
  void (*deinit_)();
  void (*getPluginInfo_)(f0r_plugin_info*);
  void (*getParamInfo_)(f0r_param_info*, int);
};

} // namespace Qv
