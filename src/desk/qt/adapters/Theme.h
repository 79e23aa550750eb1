#pragma once

#include <QColor>
#include <QPalette>

class QApplication;
class QPainter;
class QRect;

namespace quillon {

/// The desk's colours, font and style.
class Theme {
 public:
  static QColor Window() { return {0xF4, 0xF6, 0xF8}; }
  static QColor Surface() { return {0xFF, 0xFF, 0xFF}; }
  static QColor Border() { return {0xC4, 0xCB, 0xD4}; }
  static QColor Rule() { return {0xE3, 0xE7, 0xEC}; }
  static QColor Text() { return {0x1B, 0x24, 0x30}; }
  static QColor Muted() { return {0x56, 0x61, 0x70}; }
  static QColor Off() { return {0x72, 0x7C, 0x8A}; }
  static QColor Accent() { return {0x17, 0x6B, 0x75}; }
  static QColor AccentSoft() { return {0xDC, 0xED, 0xEE}; }
  static QColor Heading() { return {0xE6, 0xEB, 0xF0}; }
  static QColor Found() { return {0xFF, 0xD5, 0x4F}; }
  static QColor FoundEdge() { return {0x8A, 0x5A, 0x00}; }

  /// Style, palette and font of the whole program. The forms' fonts are their own.
  static void Apply(QApplication& application);

  /// The program's font at the zoom of the desk.
  static void ApplyFont(QApplication& application);

  /// A colour of a form: 0xBBGGRR, or one that stands for a part of the look.
  static QColor ColorOf(long color);

  /// The edge of a field or a button: strong when it has the focus.
  static void DrawEdge(QPainter& painter, const QRect& rect, bool focused);
};

}  // namespace quillon
