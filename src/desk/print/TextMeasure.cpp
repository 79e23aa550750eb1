#include "desk/print/TextMeasure.h"

#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QString>
#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <tuple>

#include "desk/print/Fonts.h"

namespace quillon {

namespace {

constexpr double kLeastLeading = 1.2;  // of the font's size, for fonts that state too little
constexpr double kTwipsPerPoint = 20;

/// A surface of 1440 dots to the inch, so that a dot is a twip.
const QImage& TwipSurface() {
  static const QImage surface = [] {
    QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
    image.setDotsPerMeterX(56693);
    image.setDotsPerMeterY(56693);
    return image;
  }();
  return surface;
}

/// The advances of one font, taken once.
class Metrics {
 public:
  explicit Metrics(const Font& font) : metrics_(Fonts::Of(font), &TwipSurface()) {
    for (std::size_t c = 0; c < advances_.size(); ++c)
      advances_[c] = c < ' ' ? 0 : metrics_.horizontalAdvance(QChar(static_cast<char16_t>(c)));
    height_ = std::max(metrics_.height() + std::max(0.0, metrics_.leading()),
                       (font.Size > 0 ? font.Size : Font().Size) * kTwipsPerPoint * kLeastLeading);
  }

  /// Characters of ASCII add up; only other texts are shaped.
  double Width(std::string_view text) const {
    double width = 0;
    for (const char c : text) {
      const auto byte = static_cast<unsigned char>(c);
      if (byte >= advances_.size())
        return metrics_.horizontalAdvance(
            QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
      width += advances_[byte];
    }
    return width;
  }

  double Height() const { return height_; }
  double Ascent() const { return metrics_.ascent(); }

 private:
  QFontMetricsF metrics_;
  std::array<double, 128> advances_{};
  double height_ = 0;
};

const Metrics& MetricsOf(const Font& font) {
  using Key = std::tuple<std::string, double, bool, bool>;
  static std::map<Key, std::unique_ptr<const Metrics>> known;
  static Font lastFont;
  static const Metrics* last = nullptr;
  if (last != nullptr && font == lastFont) return *last;
  auto& metrics = known[Key(font.Name, font.Size, font.Bold, font.Italic)];
  if (!metrics) metrics = std::make_unique<const Metrics>(font);
  lastFont = font;
  last = metrics.get();
  return *last;
}

}  // namespace

double TextMeasure::Width(const Font& font, std::string_view text) { return MetricsOf(font).Width(text); }
double TextMeasure::LineHeight(const Font& font) { return MetricsOf(font).Height(); }
double TextMeasure::Ascent(const Font& font) { return MetricsOf(font).Ascent(); }

}  // namespace quillon
