#include "desk/qt/dialogs/RecentFirms.h"

#include <QDir>
#include <QSettings>

namespace quillon {

namespace {

constexpr qsizetype kMost = 8;

QString Key() { return QStringLiteral("recentFirms"); }

}  // namespace

QStringList RecentFirms::Folders() { return QSettings().value(Key()).toStringList(); }

void RecentFirms::Add(const QString& given) {
  // The desk may be started elsewhere the next time.
  const QString folder = QDir(given).absolutePath();
  QStringList folders = Folders();
  folders.removeAll(folder);
  folders.prepend(folder);
  QSettings().setValue(Key(), folders.mid(0, kMost));
}

}  // namespace quillon
