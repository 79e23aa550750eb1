#include "desk/qt/dialogs/ToolkitDialogs.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QSettings>

#include "desk/qt/adapters/Scale.h"

namespace quillon {

namespace {

constexpr long kWidth = 10200;
constexpr long kHeight = 6600;

QString LastFolder() { return QStringLiteral("lastFolder"); }

/// Whether the user took something.
bool Ask(QDialog& dialog, QWidget* below) {
  dialog.resize(Scale::Px(kWidth), Scale::Px(kHeight));
  const bool taken = dialog.exec() == QDialog::Accepted;
  if (below != nullptr) below->activateWindow();
  return taken;
}

QString AskFiles(QFileDialog& dialog, QWidget* below) {
  if (!Ask(dialog, below)) return {};
  QString file = dialog.selectedFiles().value(0);
  QSettings().setValue(LastFolder(), QFileInfo(file).absolutePath());
  return file;
}

/// A bare name lies where the user was last.
void StartAt(QFileDialog& dialog, const QString& start) {
  const QString last = QSettings().value(LastFolder()).toString();
  if (!last.isEmpty() && QFileInfo(start).fileName() == start && QFileInfo(last).isDir()) {
    dialog.setDirectory(last);
    if (!start.isEmpty()) dialog.selectFile(start);
    return;
  }
  if (start.isEmpty()) return;
  const QFileInfo place(start);
  if (place.isDir()) {
    dialog.setDirectory(start);
    return;
  }
  dialog.setDirectory(place.absolutePath());
  dialog.selectFile(place.fileName());
}

}  // namespace

QString ToolkitDialogs::SaveFile(QWidget* below, const QString& title, const QString& start,
                                 const QString& filter) {
  QFileDialog dialog(below, title, QString(), filter);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  StartAt(dialog, start);
  return AskFiles(dialog, below);
}

QString ToolkitDialogs::OpenFile(QWidget* below, const QString& title, const QString& start,
                                 const QString& filter) {
  QFileDialog dialog(below, title, QString(), filter);
  dialog.setFileMode(QFileDialog::ExistingFile);
  StartAt(dialog, start);
  return AskFiles(dialog, below);
}

QString ToolkitDialogs::Folder(QWidget* below, const QString& title) {
  QFileDialog dialog(below, title);
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOption(QFileDialog::ShowDirsOnly);
  if (!Ask(dialog, below)) return {};
  return dialog.selectedFiles().value(0);
}

}  // namespace quillon
