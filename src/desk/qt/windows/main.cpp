#include <QApplication>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "desk/firebird/EngineThread.h"
#include "desk/firebird/EngineWatch.h"
#include "desk/firebird/FirebirdEngine.h"
#include "desk/qt/adapters/Scale.h"
#include "desk/qt/adapters/Theme.h"
#include "desk/qt/windows/DeskWindow.h"
#include "desk/qt/windows/QtRuntime.h"
#include "desk/safety/CopiedFirm.h"
#include "desk/shell/RuntimeFolder.h"
#include "host/values/AskedAbout.h"

namespace {

struct Arguments {
  QString folder;
  QString user;
  std::string module;
  int year = 0;
  std::string trial;  // the form and the account
  bool isCopy = false;
};

constexpr const char* kUsage =
    "quillon-desk [FOLDER] [--user NAME] [--year N] [--module FILE]\n"
    "Opens the desk, on the firm in FOLDER if one is given; "
    "N is the calendar year in which the financial year starts.\n";

/// False when the words make no sense.
bool Read(const QStringList& words, Arguments& arguments) {
  for (qsizetype i = 1; i < words.size(); ++i) {
    const QString& word = words[i];
    if (word == QLatin1String("--user") || word == QLatin1String("--year") ||
        word == QLatin1String("--module") || word == QLatin1String("--trial")) {
      if (++i >= words.size()) return false;
      bool understood = true;
      if (word == QLatin1String("--user")) arguments.user = words[i];
      if (word == QLatin1String("--module")) arguments.module = words[i].toStdString();
      if (word == QLatin1String("--trial")) arguments.trial = words[i].toStdString();
      if (word == QLatin1String("--year")) arguments.year = words[i].toInt(&understood);
      if (!understood) return false;
    } else if (word == QLatin1String("--copy")) {
      arguments.isCopy = true;
    } else if (word.startsWith(QLatin1String("--")) || !arguments.folder.isEmpty()) {
      return false;
    } else {
      arguments.folder = word;
    }
  }
  return true;
}

/// Where what is printed to a file is found again; what a trial prints goes with it.
std::string PrintFolder(const Arguments& arguments) {
  if (!arguments.trial.empty()) return arguments.folder.toStdString();
  const QString folder =
      QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + QStringLiteral("/Quillon");
  std::error_code ignored;
  std::filesystem::create_directories(folder.toStdString(), ignored);
  return folder.toStdString();
}

constexpr const char* kUnanswered = "--unanswered";

/// The window stands still with the engine, so another process of this program asks.
bool AskToEnd() {
  char program[] = "quillon-desk";
  std::string word = kUnanswered;
  char* words[] = {program, word.data(), nullptr};
  pid_t child = 0;
  int status = 0;
  if (posix_spawn(&child, "/proc/self/exe", nullptr, nullptr, words, environ) != 0) return true;
  waitpid(child, &status, 0);
  return !WIFEXITED(status) || WEXITSTATUS(status) == 0;
}

int TellUnanswered() {
  QMessageBox box(QMessageBox::Warning, QStringLiteral("Quillon"),
                  QString::fromUtf8(quillon::EngineWatch::kStuck));
  QPushButton* const end = box.addButton(QStringLiteral("End Quillon"), QMessageBox::AcceptRole);
  box.addButton(QStringLiteral("Wait"), QMessageBox::RejectRole);
  box.exec();
  return box.clickedButton() == end ? 0 : 1;
}

/// The engine of a process knows one firm's locks only.
void Prepare(QProcess& desk, const QString& folder, const QString& user, int startYear,
             const std::string& module) {
  QStringList words{folder};
  if (!user.isEmpty()) words << QStringLiteral("--user") << user;
  if (startYear != 0) words << QStringLiteral("--year") << QString::number(startYear);
  if (!module.empty()) words << QStringLiteral("--module") << QString::fromStdString(module);
  QProcessEnvironment surroundings = QProcessEnvironment::systemEnvironment();
  if (!quillon::FirebirdEngine::LocksAreGiven()) surroundings.remove(QStringLiteral("FIREBIRD_LOCK"));
  desk.setProcessEnvironment(surroundings);
  desk.setProgram(QApplication::applicationFilePath());
  desk.setArguments(words);
}

/// Its printers lead nowhere. The windows of this desk paint meanwhile.
void RunTrial(const QString& folder, const QString& user, int startYear, const std::string& module,
              const QString& work) {
  bool ran = false;
  quillon::EngineThread::Do([&] {
    QProcess desk;
    Prepare(desk, folder, user, startYear, module);
    QProcessEnvironment surroundings = desk.processEnvironment();
    surroundings.insert(QStringLiteral("CUPS_SERVER"), folder + QStringLiteral("/no-printers"));
    desk.setProcessEnvironment(surroundings);
    desk.setArguments(desk.arguments() << QStringLiteral("--trial") << work);
    desk.setProcessChannelMode(QProcess::ForwardedChannels);
    desk.start();
    ran = desk.waitForFinished(-1) && desk.exitStatus() == QProcess::NormalExit && desk.exitCode() == 0;
  });
  if (!ran) throw quillon::HostError("The desk of the trial did not come to its end");
}

void StartAnew(const QString& folder, const QString& user, int startYear, const std::string& module,
               bool isCopy = false) {
  QProcess desk;
  Prepare(desk, folder, user, startYear, module);
  if (isCopy) desk.setArguments(desk.arguments() << QStringLiteral("--copy"));
  if (!desk.startDetached()) throw quillon::HostError("Another desk cannot be started");
}

}  // namespace

int main(int count, char** words) {
  if (quillon::AskedAbout(count, words, "quillon-desk", QUILLON_VERSION, kUsage)) return 0;
  quillon::SetRuntimeFolder();
  setenv("QT_FONT_DPI", "96", 0);  // the forms' fonts and twips must keep their proportion
  QApplication application(count, words);
  QApplication::setOrganizationName(QStringLiteral("Quillon"));
  QApplication::setApplicationName(QStringLiteral("quillon-desk"));
  QApplication::setApplicationVersion(QStringLiteral(QUILLON_VERSION));
  QApplication::setQuitOnLastWindowClosed(false);
  if (count == 2 && std::string(words[1]) == kUnanswered) return TellUnanswered();
  quillon::EngineWatch::SetAsk(AskToEnd);
  Arguments arguments;
  if (!Read(QApplication::arguments(), arguments)) {
    std::fputs(kUsage, stderr);
    return 2;
  }
  quillon::Scale::SetPercent(QSettings().value(QStringLiteral("zoom"), 100).toInt());
  quillon::Theme::Apply(application);
  if (!arguments.trial.empty()) QApplication::setApplicationName(QStringLiteral("quillon-trial"));
  try {
    quillon::QtRuntime runtime(PrintFolder(arguments));
    std::optional<quillon::CopiedFirm::Visit> visit;
    if (arguments.isCopy) visit.emplace(arguments.folder.toStdString());
    quillon::DeskWindow window(runtime, arguments.module);
    window.OnOtherFirm = [&](const QString& folder, const QString& user, int year) {
      StartAnew(folder, user, year, arguments.module);
    };
    window.OnTrial = [&](const QString& folder, const QString& user, int year, const QString& work) {
      RunTrial(folder, user, year, arguments.module, work);
    };
    window.OnCopy = [&](const QString& folder, const QString& user) {
      StartAnew(folder, user, 0, arguments.module, true);
    };
    if (visit) window.MarkAsCopy();
    window.RestorePlace();
    window.show();
    window.activateWindow();
    if (!arguments.folder.isEmpty()) {
      const QString fault = window.OpenFirm(arguments.folder, arguments.user, arguments.year);
      if (!fault.isEmpty()) runtime.AskMessage({fault.toStdString(), "E", {"OK"}, "Quillon", 1});
      if (!arguments.trial.empty() && !fault.isEmpty()) return 1;
      if (!arguments.trial.empty()) {
        QTimer::singleShot(0, &window, [&] { window.CarryOutTrial(arguments.trial); });
      }
    }
    return QApplication::exec();
  } catch (const std::exception& error) {
    std::fprintf(stderr, "quillon-desk: %s\n", error.what());
    return 1;
  }
}
