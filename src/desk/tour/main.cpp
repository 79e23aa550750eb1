#include <QApplication>
#include <QDir>
#include <QScreen>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>
#include <fstream>

#include "desk/qt/adapters/Scale.h"
#include "desk/qt/adapters/Theme.h"
#include "desk/qt/windows/DeskWindow.h"
#include "desk/qt/windows/QtRuntime.h"
#include "desk/shell/RuntimeFolder.h"
#include "desk/tour/Tour.h"
#include "host/values/AskedAbout.h"

namespace {

constexpr const char* kUsage =
    "quillon-tour SCRIPT FIRM OUT [ZOOM]\n"
    "Walks the desk on the firm in the folder FIRM by the acts of SCRIPT, a file or a folder of them, "
    "and leaves its pictures in OUT; ZOOM in per cent.\n";

constexpr int kScreenWidth = 1366;
constexpr int kScreenHeight = 768;

/// A screen in memory, as large as an accountant's is at this zoom.
void SetScreen(const QTemporaryDir& folder, int percent) {
  const QString file = folder.filePath(QStringLiteral("screen.json"));
  std::ofstream(file.toStdString()) << R"({"screens":[{"name":"desk","x":0,"y":0,"dpr":1,"logicalDpi":96,)"
                                    << R"("logicalBaseDpi":96,"width":)" << kScreenWidth * percent / 100
                                    << R"(,"height":)" << kScreenHeight * percent / 100 << "}]}";
  setenv("QT_QPA_PLATFORM", qPrintable(QStringLiteral("offscreen:configfile=") + file), 1);
  setenv("QT_FONT_DPI", "96", 1);
  // The toolkit's own event loop tells when nothing is left to do; that of GLib tells it too early.
  setenv("QT_NO_GLIB", "1", 1);
}

/// What the desk remembers of its user stays out of a tour.
void ForgetUser(const QTemporaryDir& folder) {
  for (const char* place : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"}) setenv(place, qPrintable(folder.path()), 1);
}

int Walk(const QStringList& words) {
  const std::vector<quillon::TourAct> acts = quillon::ReadTourFiles(words[1].toStdString());
  QDir().mkpath(words[3]);
  const QTemporaryDir printed;
  quillon::QtRuntime runtime(printed.path().toStdString());
  quillon::DeskWindow desk(runtime, "");
  desk.resize(desk.screen()->size());
  desk.show();
  desk.activateWindow();
  quillon::Tour tour(runtime, desk, {acts, words[2], words[3]});
  tour.Start();
  return QApplication::exec();
}

}  // namespace

int main(int count, char** words) {
  if (quillon::AskedAbout(count, words, "quillon-tour", QUILLON_VERSION, kUsage)) return 0;
  if (count < 4 || count > 5) {
    std::fputs(kUsage, stderr);
    return 2;
  }
  const QTemporaryDir own;
  const int percent = count == 5 ? std::atoi(words[4]) : 100;
  ForgetUser(own);
  SetScreen(own, percent);
  quillon::SetRuntimeFolder();
  QApplication application(count, words);
  QApplication::setOrganizationName(QStringLiteral("Quillon"));
  QApplication::setApplicationVersion(QStringLiteral(QUILLON_VERSION));
  QApplication::setQuitOnLastWindowClosed(false);
  quillon::Scale::SetPercent(percent);
  quillon::Theme::Apply(application);
  try {
    return Walk(QApplication::arguments());
  } catch (const std::exception& error) {
    std::fprintf(stderr, "quillon-tour: %s\n", error.what());
    return 1;
  }
}
