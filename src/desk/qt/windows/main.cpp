#include <QApplication>
#include <QSettings>
#include <QStandardPaths>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "desk/qt/adapters/Scale.h"
#include "desk/qt/adapters/Theme.h"
#include "desk/qt/windows/DeskWindow.h"
#include "desk/qt/windows/QtRuntime.h"
#include "desk/shell/RuntimeFolder.h"
#include "host/values/AskedAbout.h"

namespace {

struct Arguments {
  QString folder;
  QString user;
  std::string module;
  int year = 0;
};

constexpr const char* kUsage =
    "quillon-desk [FOLDER] [--user NAME] [--year N] [--module FILE]\n"
    "Opens the desk, on the firm in FOLDER if one is given; N is the calendar year in which the financial "
    "year starts.\n";

/// False when the words make no sense.
bool Read(const QStringList& words, Arguments& arguments) {
  for (qsizetype i = 1; i < words.size(); ++i) {
    const QString& word = words[i];
    if (word == QLatin1String("--user") || word == QLatin1String("--year") ||
        word == QLatin1String("--module")) {
      if (++i >= words.size()) return false;
      bool understood = true;
      if (word == QLatin1String("--user")) arguments.user = words[i];
      if (word == QLatin1String("--module")) arguments.module = words[i].toStdString();
      if (word == QLatin1String("--year")) arguments.year = words[i].toInt(&understood);
      if (!understood) return false;
    } else if (word.startsWith(QLatin1String("--")) || !arguments.folder.isEmpty()) {
      return false;
    } else {
      arguments.folder = word;
    }
  }
  return true;
}

/// Where what is printed to a file is found again.
std::string PrintFolder() {
  const QString folder =
      QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + QStringLiteral("/Quillon");
  std::error_code ignored;
  std::filesystem::create_directories(folder.toStdString(), ignored);
  return folder.toStdString();
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
  Arguments arguments;
  if (!Read(QApplication::arguments(), arguments)) {
    std::fputs(kUsage, stderr);
    return 2;
  }
  quillon::Scale::SetPercent(QSettings().value(QStringLiteral("zoom"), 100).toInt());
  quillon::Theme::Apply(application);
  try {
    quillon::QtRuntime runtime(PrintFolder());
    quillon::DeskWindow window(runtime, arguments.module);
    window.show();
    window.activateWindow();
    if (!arguments.folder.isEmpty()) {
      const QString fault = window.OpenFirm(arguments.folder, arguments.user, arguments.year);
      if (!fault.isEmpty()) runtime.AskMessage({fault.toStdString(), "E", {"OK"}, "Quillon", 1});
    }
    return QApplication::exec();
  } catch (const std::exception& error) {
    std::fprintf(stderr, "quillon-desk: %s\n", error.what());
    return 1;
  }
}
