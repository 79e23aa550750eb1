#include "desk/print/Spooler.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include "desk/print/Paper.h"
#include "host/values/Errors.h"

namespace quillon {

namespace {

constexpr int kPatience = 10'000;  // milliseconds

/// False when the program is missing or hangs; `out` takes what it said.
bool Run(const QString& program, const QStringList& arguments, QString& out) {
  QProcess process;
  QProcessEnvironment plain = QProcessEnvironment::systemEnvironment();
  plain.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));  // its answers are read
  process.setProcessEnvironment(plain);
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.start(program, arguments);
  if (!process.waitForFinished(kPatience)) {
    out = process.errorString();
    return false;
  }
  out = QString::fromUtf8(process.readAll()).trimmed();
  return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

/// Empty on a machine without a spooler.
QString Listed() {
  QString listed;
  const bool known = !QStandardPaths::findExecutable(QStringLiteral("lpstat")).isEmpty() &&
                     Run(QStringLiteral("lpstat"), {QStringLiteral("-e")}, listed);
  return known ? listed : QString();
}

}  // namespace

std::vector<PrinterDevice> Spooler::Printers() {
  std::vector<PrinterDevice> printers;
  for (const QString& name : Listed().split(QLatin1Char('\n'), Qt::SkipEmptyParts))
    printers.push_back({name.trimmed().toStdString()});
  printers.push_back({IPrinter::kPdfFile});
  return printers;
}

std::string Spooler::Send(const std::string& file, const Job& job) {
  if (job.Printer.empty() || job.Printer == IPrinter::kPdfFile) return {};
  QString answer;
  QStringList arguments{QStringLiteral("-d"), QString::fromStdString(job.Printer)};
  if (job.Copies > 1) arguments << QStringLiteral("-n") << QString::number(job.Copies);
  if (job.Monochrome) arguments << QStringLiteral("-o") << QStringLiteral("print-color-mode=monochrome");
  for (const std::string& option : {"media=" + PaperName(job.Paper), std::string("print-scaling=none")})
    arguments << QStringLiteral("-o") << QString::fromStdString(option);
  arguments << QStringLiteral("--") << QString::fromStdString(file);
  if (!Run(QStringLiteral("lp"), arguments, answer)) {
    throw HostError("The printer " + job.Printer + " did not take the pages (" + answer.toStdString() +
                    "). They are kept in " + file + ".");
  }
  static const QRegularExpression named(QStringLiteral("request id is (\\S+-\\d+)"));
  return named.match(answer).captured(1).toStdString();
}

}  // namespace quillon
