#include <QApplication>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <iostream>
#include <sys/stat.h>
#include <unistd.h>

#include "desk/driver/FreshProcess.h"
#include "desk/driver/InputBuffer.h"
#include "desk/driver/Script.h"
#include "desk/qt/adapters/Theme.h"
#include "desk/shell/RuntimeFolder.h"
#include "host/values/AskedAbout.h"
#include "host/values/Text.h"

namespace {

using quillon::Desk;
using quillon::DriverRuntime;
using quillon::EventLog;
using quillon::FreshProcess;
using quillon::InputBuffer;
using quillon::Json;
using quillon::Script;

struct Arguments {
  std::string firm;
  std::string user;
  std::string out = ".";
  std::string module;
  std::string script;
  std::string takeOver;
  std::string year;
  std::string resume;
  std::string trial;  // the form and the account, "acmassdeletion:201"
};

constexpr const char* kUsage =
    "quillon-drive [--firm FOLDER] [--user NAME] [--year N] [--out FOLDER] [--module FILE] [SCRIPT]\n"
    "Carries out the commands of SCRIPT, or of standard input, one JSON object on each line.\n"
    "--takeover MACHINE opens a firm that was left open on the machine of that name.\n";

/// False when the words make no sense.
bool Read(int count, char** words, Arguments& arguments) {
  for (int i = 1; i < count; ++i) {
    const std::string word = words[i];
    std::string* const value = word == "--firm"       ? &arguments.firm
                               : word == "--user"     ? &arguments.user
                               : word == "--out"      ? &arguments.out
                               : word == "--module"   ? &arguments.module
                               : word == "--year"     ? &arguments.year
                               : word == "--takeover" ? &arguments.takeOver
                               : word == "--resume"   ? &arguments.resume
                               : word == "--trial"    ? &arguments.trial
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

int YearOf(const Arguments& arguments) {
  const auto year = quillon::ValInteger(arguments.year);
  if (!arguments.year.empty() && std::to_string(year) != arguments.year) {
    throw quillon::HostError("--year needs a number, not \"" + arguments.year + "\"");
  }
  return static_cast<int>(year);
}

/// The script or the standard input.
int InputOf(const std::string& script) {
  if (script.empty()) return STDIN_FILENO;
  const int file = open(script.c_str(), O_RDONLY);
  struct stat found {};
  if (file < 0 || fstat(file, &found) != 0)
    throw quillon::HostError("The script " + script + " cannot be read");
  if (S_ISDIR(found.st_mode)) throw quillon::HostError("The script " + script + " is a folder");
  return file;
}

/// What a fresh process needs to know again.
std::vector<std::string> WordsFor(const Arguments& arguments) {
  std::vector<std::string> words{"--out", arguments.out};
  if (!arguments.module.empty()) words.insert(words.end(), {"--module", arguments.module});
  return words;
}

int Drive(const Arguments& arguments) {
  std::filesystem::create_directories(arguments.out);
  EventLog log(std::cout);
  DriverRuntime runtime(log, arguments.out);
  Desk::Options options;
  options.ModulePath = arguments.module;
  options.OutputFolder = arguments.out;
  options.Area = {0, 0, 20490, 10500};
  options.Sql = &log;
  options.Reports = &log;
  FreshProcess::Handed handed;
  if (!arguments.resume.empty()) handed = FreshProcess::Take(std::stoi(arguments.resume));
  InputBuffer buffer(handed.State.is_null() ? InputOf(arguments.script) : handed.State.at("input").get<int>(),
                     handed.Ahead);
  std::istream in(&buffer);
  int status = 0;
  Json unfinished;
  {
    Desk desk(options);
    if (!arguments.firm.empty()) {
      desk.OpenFirm(arguments.firm, arguments.user, YearOf(arguments), arguments.takeOver);
      runtime.Ignore(desk.App().MainWindow().MainForm().get());
    }
    Script script(in, desk, runtime, log);
    if (!handed.State.is_null()) script.Resume(handed.State);
    if (const std::size_t colon = arguments.trial.find(':'); colon != std::string::npos) {
      script.Try(arguments.trial.substr(0, colon), quillon::ValInteger(arguments.trial.substr(colon + 1)));
    }
    status = script.Run();
    unfinished = script.Unfinished();
  }
  if (log.HasFailed()) throw quillon::HostError("The answers cannot be written");
  if (unfinished.is_null()) return status;
  unfinished["input"] = buffer.File();
  FreshProcess::Begin(WordsFor(arguments), {unfinished, buffer.Ahead()});
}

}  // namespace

int main(int count, char** words) {
  if (quillon::AskedAbout(count, words, "quillon-drive", QUILLON_VERSION, kUsage)) return 0;
  Arguments arguments;
  if (!Read(count, words, arguments)) {
    std::cerr << kUsage;
    return Script::kUnusable;
  }
  // Nobody who reads any more is an error like another, not the end in the middle of a statement.
  std::signal(SIGPIPE, SIG_IGN);
  // Pages, widths and pictures need Qt's fonts and widgets, but no screen.
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  setenv("QT_FONT_DPI", "96", 1);
  quillon::SetRuntimeFolder();
  QApplication application(count, words);
  quillon::Theme::Apply(application);
  try {
    return Drive(arguments);
  } catch (const std::exception& error) {
    std::cerr << "quillon-drive: " << error.what() << "\n";
    return Script::kUnusable;
  }
}
