#pragma once

#include <QIcon>
#include <QPixmap>
#include <QString>

namespace quillon {

/// The desk's own line icons by their keys ("Report", "Print" …); case is ignored.
class Icons {
 public:
  static bool Has(const QString& key);

  /// Sharp at the device's own resolution; empty for a key without a picture.
  static QPixmap Picture(const QString& key, int size, qreal ratio);
  static QIcon Of(const QString& key);

  /// Light where the line of the menu is marked.
  static QIcon ForMenu(const QString& key);
};

}  // namespace quillon
