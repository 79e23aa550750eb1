#pragma once

#include <QFont>
#include <QRect>
#include <QString>

class QPainter;

namespace quillon {

/// Draws texts of several lines from the top of their place, and nothing outside of it.
class LinePainter {
 public:
  /// Pixels from line to line; also for fonts whose own lines touch each other.
  static int LineHeight(const QFont& font);

  /// With the painter's font and pen. Lines that are too long go on in the next one or end in dots.
  static void Draw(QPainter& painter, const QRect& place, Qt::Alignment across, const QString& text,
                   bool wraps);
};

}  // namespace quillon
