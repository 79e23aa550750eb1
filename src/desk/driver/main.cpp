#include <QApplication>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <unistd.h>

#include "desk/driver/Script.h"
#include "desk/qt/Theme.h"

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

/// Qt asks for a folder of the user's own, which only a desktop session makes.
void SetRuntimeFolder() {
  if (std::getenv("XDG_RUNTIME_DIR") != nullptr) return;
  const std::filesystem::path folder =
      std::filesystem::temp_directory_path() / ("quillon-" + std::to_string(getuid()));
  std::error_code ignored;
  std::filesystem::create_directory(folder, ignored);
  std::filesystem::permissions(folder, std::filesystem::perms::owner_all, ignored);
  setenv("XDG_RUNTIME_DIR", folder.c_str(), 0);
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
  Arguments arguments;
  if (!Read(count, words, arguments)) {
    std::cerr << kUsage;
    return Script::kUnusable;
  }
  // Pages, widths and pictures need Qt's fonts and widgets, but no screen.
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  setenv("QT_FONT_DPI", "96", 1);
  SetRuntimeFolder();
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
