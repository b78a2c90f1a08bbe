#include "browserWindow.h"

#include <CLI/CLI.hpp>
#include <QApplication>
#include <cstdlib>
#include <iostream>

namespace Qv {

namespace {

/// Says in a sentence why Qt cannot start, where it would end with a core dump.
void handleMessage(QtMsgType type, QMessageLogContext const& /*context*/, QString const& /*text*/) {
  if (type == QtFatalMsg) {
    std::cerr << "qvwindow: there is no display to open a window on; --screenshot needs none\n";
    std::_Exit(1);
  }
}

struct Options {
  Session::Options session;
  BrowserWindow::Start start;
  std::string screenshot;
};

int run(int argc, char** argv, Options const& options) {
  if (!options.screenshot.empty())
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
  qInstallMessageHandler(&handleMessage);

  // The module goes last, since what Qt still holds may be the module's.
  std::optional<Session> session;
  QApplication const application(argc, argv);
  BrowserWindow window(session, options.session, options.start);
  if (!options.screenshot.empty())
    window.settled = [&](std::string const& failure) {
      if (!failure.empty())
        std::cerr << "qvwindow: " << failure << '\n';
      bool const saved = window.grab().save(QString::fromStdString(options.screenshot), "PNG");
      if (!saved)
        std::cerr << "qvwindow: cannot write the picture \"" << options.screenshot << "\"\n";
      QApplication::exit(saved && failure.empty() ? 0 : 1);
    };
  window.show();
  return QApplication::exec();
}

int start(int argc, char** argv) {
  CLI::App app("Browses the schemes that a module adds to the asset browser, in a window.",
               "qvwindow");
  Options options;
  app.set_version_flag("--version", "qvwindow " QV_VERSION, "Print the version and exit");
  app.add_option("--module", options.session.module, "The module file to load")->type_name("FILE");
  app.add_option("--tools", options.session.sources,
                 "A source of tools: frei0r, frei0r:DIR or a JSON catalogue; repeatable")
      ->type_name("SOURCE")
      ->allow_extra_args(false);
  app.add_flag("--require-isolation", options.session.scan.requireIsolation,
               "Read no plug-in unless it can be isolated completely");
  app.add_option("--screenshot", options.screenshot,
                 "Draw the window without a screen, write the picture and exit")
      ->type_name("FILE.png");
  app.add_option("SCHEME", options.start.scheme, "The scheme to show first");
  app.add_option("PATH", options.start.path, "The path of the item to show first");
  try {
    app.parse(argc, argv);
  } catch (CLI::ParseError const& error) {
    if (error.get_exit_code() == 0)
      return app.exit(error);
    std::cerr << "qvwindow: " << error.what() << "; see --help\n";
    return 2;
  }
  return run(argc, argv, options);
}

} // namespace

} // namespace Qv

int main(int argc, char** argv) {
  try {
    return Qv::start(argc, argv);
  } catch (...) {
    std::cerr << "qvwindow: " << Qv::describeException() << '\n';
  }
  return 1;
}
