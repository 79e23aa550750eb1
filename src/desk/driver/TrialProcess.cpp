#include "desk/driver/TrialProcess.h"

#include <QProcess>
#include <filesystem>

#include "desk/firebird/FirebirdEngine.h"
#include "host/values/Errors.h"
#include "host/values/Text.h"

namespace quillon {

Json TrialProcess::Run(const Work& work, const Json& script) {
  QProcess child;
  QProcessEnvironment surroundings = QProcessEnvironment::systemEnvironment();
  if (!FirebirdEngine::LocksAreGiven()) surroundings.remove(QStringLiteral("FIREBIRD_LOCK"));
  child.setProcessEnvironment(surroundings);
  const auto word = [](const std::string& text) { return QString::fromStdString(text); };
  child.start(
      word(std::filesystem::read_symlink("/proc/self/exe").string()),
      {QStringLiteral("--firm"), word(work.Folder), QStringLiteral("--user"), word(work.User),
       QStringLiteral("--year"), QString::number(work.StartYear), QStringLiteral("--out"), word(work.Output),
       QStringLiteral("--trial"), word(work.Form + ":" + std::to_string(work.Account))});
  for (const Json& command : script) child.write((Line(command) + "\n").c_str());
  child.closeWriteChannel();
  if (!child.waitForFinished(-1) || child.exitStatus() != QProcess::NormalExit) {
    throw HostError("The driver of the trial did not run to its end");
  }
  Json lines = Json::array();
  for (const std::string& line : text::Split(child.readAllStandardOutput().toStdString(), "\n")) {
    if (!line.empty()) lines.push_back(ParseLine(line));
  }
  if (lines.empty()) throw HostError(text::Trim(child.readAllStandardError().toStdString()));
  return lines;
}

}  // namespace quillon
