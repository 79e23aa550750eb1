#pragma once

#include <QLabel>

namespace quillon {

/// A label whose line, when it is too long for the place, ends in dots instead of in half a letter.
class ElidedLabel : public QLabel {
 public:
  explicit ElidedLabel(QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace quillon
