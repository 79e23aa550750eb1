#include <QApplication>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "desk/driver/Script.h"
#include "desk/qt/adapters/Theme.h"
#include "desk/shell/RuntimeFolder.h"
#include "host/values/AskedAbout.h"

namespace {

using quillon::Desk;
using quillon::DriverRuntime;
using quillon::EventLog;
using quillon::Script;

struct Arguments {
  std::string firm;
  std::string user;
  std::string out = ".";
  std::string module;
  std::string script;
};

constexpr const char* kUsage =
    "quillon-drive [--firm FOLDER] [--user NAME] [--out FOLDER] [--module FILE] [SCRIPT]\n"
    "Carries out the commands of SCRIPT, or of standard input, one JSON object on each line.\n";

/// False when the words make no sense.
bool Read(int count, char** words, Arguments& arguments) {
  for (int i = 1; i < count; ++i) {
    const std::string word = words[i];
    std::string* const value = word == "--firm"     ? &arguments.firm
                               : word == "--user"   ? &arguments.user
                               : word == "--out"    ? &arguments.out
                               : word == "--module" ? &arguments.module
                                                    : nullptr;
    if (value != nullptr) {
      if (++i >= count) return false;
      *value = words[i];
    } else if (word.starts_with("--") || !arguments.script.empty()) {
      return false;
    } else {
      arguments.script = word;
    }
  }
  return true;
}

int Drive(const Arguments& arguments, std::istream& in) {
  std::filesystem::create_directories(arguments.out);
  EventLog log(std::cout);
  DriverRuntime runtime(log, arguments.out);
  Desk::Options options;
  options.ModulePath = arguments.module;
  options.OutputFolder = arguments.out;
  options.Area = {0, 0, 20490, 10500};
  options.Sql = &log;
  options.Reports = &log;
  Desk desk(options);
  if (!arguments.firm.empty()) {
    desk.OpenFirm(arguments.firm, arguments.user);
    runtime.Ignore(desk.App().MainWindow().MainForm().get());
  }
  Script script(in, desk, runtime, log);
  return script.Run();
}

}  // namespace

int main(int count, char** words) {
  if (quillon::AskedAbout(count, words, "quillon-drive", QUILLON_VERSION, kUsage)) return 0;
  Arguments arguments;
  if (!Read(count, words, arguments)) {
    std::cerr << kUsage;
    return Script::kUnusable;
  }
  // Pages, widths and pictures need Qt's fonts and widgets, but no screen.
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  setenv("QT_FONT_DPI", "96", 1);
  quillon::SetRuntimeFolder();
  QApplication application(count, words);
  quillon::Theme::Apply(application);
  try {
    if (arguments.script.empty()) return Drive(arguments, std::cin);
    std::ifstream file(arguments.script);
    if (!file) throw quillon::HostError("The script " + arguments.script + " cannot be read");
    return Drive(arguments, file);
  } catch (const std::exception& error) {
    std::cerr << "quillon-drive: " << error.what() << "\n";
    return Script::kUnusable;
  }
}
