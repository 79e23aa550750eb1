#include "desk/qt/adapters/Icons.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>
#include <cmath>
#include <map>

#include "desk/qt/adapters/Theme.h"

// The icons lie in a static library, which has to be asked for them once; the macro wants the global
// namespace.
static void LoadIcons() { Q_INIT_RESOURCE(icons); }

namespace quillon {

namespace {

constexpr int kSizes[] = {16, 24, 32, 48};

QString FileOf(const QString& key) {
  static const bool loaded = (LoadIcons(), true);
  Q_UNUSED(loaded);
  return QStringLiteral(":/icons/%1.svg").arg(key.toLower());
}

}  // namespace

bool Icons::Has(const QString& key) { return !key.isEmpty() && QFile::exists(FileOf(key)); }

QPixmap Icons::Picture(const QString& key, int size, qreal ratio) {
  static std::map<std::tuple<QString, int, qreal>, QPixmap> drawn;
  QPixmap& picture = drawn[{key, size, ratio}];
  if (!picture.isNull() || !Has(key)) return picture;
  const int dots = static_cast<int>(std::lround(size * ratio));
  picture = QPixmap(dots, dots);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  QSvgRenderer(FileOf(key)).render(&painter, QRectF(0, 0, dots, dots));
  painter.end();
  picture.setDevicePixelRatio(ratio);
  return picture;
}

QIcon Icons::Of(const QString& key) {
  QIcon icon;
  if (!Has(key)) return icon;
  for (const int size : kSizes) icon.addPixmap(Picture(key, size, 1));
  return icon;
}

QIcon Icons::ForMenu(const QString& key) {
  QIcon icon = Of(key);
  if (icon.isNull()) return icon;
  for (const int size : kSizes) {
    QPixmap light = Picture(key, size, 1);
    QPainter painter(&light);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(light.rect(), Theme::Surface());
    painter.end();
    icon.addPixmap(light, QIcon::Active);
  }
  return icon;
}

}  // namespace quillon
