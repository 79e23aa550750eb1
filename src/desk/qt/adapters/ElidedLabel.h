#pragma once

#include <QLabel>

namespace quillon {

/// A label whose lines, where they are too long for the place, end in dots instead of in half a letter.
class ElidedLabel : public QLabel {
 public:
  explicit ElidedLabel(QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace quillon
