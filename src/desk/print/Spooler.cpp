#include "desk/print/Spooler.h"

#include <QProcess>
#include <QStandardPaths>

#include "host/values/Errors.h"

namespace quillon {

namespace {

constexpr int kPatience = 10'000;  // milliseconds

/// False when the program is missing or hangs; `out` takes what it said.
bool Run(const QString& program, const QStringList& arguments, QString& out) {
  QProcess process;
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.start(program, arguments);
  if (!process.waitForFinished(kPatience)) {
    out = process.errorString();
    return false;
  }
  out = QString::fromUtf8(process.readAll()).trimmed();
  return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

}  // namespace

std::vector<std::string> Spooler::Printers() {
  std::vector<std::string> names;
  QString listed;
  if (QStandardPaths::findExecutable(QStringLiteral("lpstat")).isEmpty()) return names;
  if (!Run(QStringLiteral("lpstat"), {QStringLiteral("-e")}, listed)) return names;
  for (const QString& name : listed.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
    names.push_back(name.trimmed().toStdString());
  return names;
}

void Spooler::Send(const std::string& file, const std::string& printer) {
  if (QStandardPaths::findExecutable(QStringLiteral("lp")).isEmpty()) return;
  QString answer;
  const QStringList arguments{QStringLiteral("-d"), QString::fromStdString(printer), QStringLiteral("--"),
                              QString::fromStdString(file)};
  if (!Run(QStringLiteral("lp"), arguments, answer)) {
    throw HostError("The printer " + printer + " did not take the pages (" + answer.toStdString() +
                    "). They are kept in " + file + ".");
  }
}

}  // namespace quillon
