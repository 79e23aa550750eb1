#include "desk/qt/adapters/Theme.h"

#include <QApplication>
#include <QPainter>
#include <cstdint>

#include "desk/qt/adapters/DeskStyle.h"
#include "desk/qt/adapters/Scale.h"
#include "host/controls/Colors.h"

namespace quillon {

namespace {

constexpr double kFontSize = 9.75;
constexpr double kCorner = 3;
constexpr std::uint32_t kOfTheLook = 0x80000000;

QColor OfTheLook(long color) {
  switch (color) {
    case colors::kHighlight:
      return Theme::Accent();
    case colors::kHighlightText:
    case colors::kWindowBackground:
      return Theme::Surface();
    case colors::kButtonFace:
      return Theme::Window();
    case colors::kGrayText:
      return Theme::Off();
    default:
      return Theme::Text();
  }
}

}  // namespace

void Theme::Apply(QApplication& application) {
  application.setStyle(new DeskStyle);
  QPalette palette;
  palette.setColor(QPalette::Window, Window());
  palette.setColor(QPalette::WindowText, Text());
  palette.setColor(QPalette::Base, Surface());
  palette.setColor(QPalette::AlternateBase, Window());
  palette.setColor(QPalette::Text, Text());
  palette.setColor(QPalette::Button, Window());
  palette.setColor(QPalette::ButtonText, Text());
  palette.setColor(QPalette::Highlight, Accent());
  palette.setColor(QPalette::HighlightedText, Surface());
  palette.setColor(QPalette::ToolTipBase, Surface());
  palette.setColor(QPalette::ToolTipText, Text());
  palette.setColor(QPalette::PlaceholderText, Muted());
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, Off());
  }
  application.setPalette(palette);
  ApplyFont(application);
}

void Theme::ApplyFont(QApplication& application) {
  Font font;
  font.Size = kFontSize;
  application.setFont(Scale::FontOf(font));
}

QColor Theme::ColorOf(long color) {
  const auto bits = static_cast<std::uint32_t>(color);  // late callers may give the same as a negative number
  if ((bits & kOfTheLook) != 0) return OfTheLook(static_cast<long>(bits));
  return {static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF),
          static_cast<int>(color >> 16 & 0xFF)};
}

void Theme::DrawEdge(QPainter& painter, const QRect& rect, bool focused) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  const double width = focused ? 2 : 1;
  painter.setPen(QPen(focused ? Accent() : Border(), width));
  const double inset = width / 2;
  painter.drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), kCorner, kCorner);
  painter.restore();
}

}  // namespace quillon
