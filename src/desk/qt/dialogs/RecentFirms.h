#pragma once

#include <QStringList>

namespace quillon {

/// What the desk remembers of a person between two starts.
class RecentFirms {
 public:
  /// Folders, the last one opened first.
  static QStringList Folders();
  static void Add(const QString& folder);
};

}  // namespace quillon
