#pragma once

#include <QString>

class QWidget;

namespace quillon {

/// The toolkit's dialogs for files, at the size of the desk's zoom. Afterwards the window below has
/// the keys again, which they leave nowhere where no window manager is.
class ToolkitDialogs {
 public:
  /// A file name, or nothing; `start` is a folder or a file, the filter the toolkit's.
  static QString SaveFile(QWidget* below, const QString& title, const QString& start, const QString& filter);
  static QString OpenFile(QWidget* below, const QString& title, const QString& start, const QString& filter);

  /// An existing folder, or nothing.
  static QString Folder(QWidget* below, const QString& title);
};

}  // namespace quillon
