#pragma once

#include <QPainter>
#include <QStyleOption>
#include <algorithm>

#include "desk/qt/adapters/Theme.h"
#include "host/controls/Control.h"

namespace quillon {

/// A field of the toolkit with the desk's mark of the focus in place of the toolkit's, around as much of it
/// as it needs.
template <class Field, class Option>
class MarkedField : public Field {
 public:
  MarkedField(const Control& model, QWidget* parent) : Field(parent), model_(model) {}

 protected:
  void paintEvent(QPaintEvent* event) override {
    Field::paintEvent(event);
    if (!model_.HasFocus()) return;
    QPainter painter(this);
    const int needed = fillsItsPlace_ ? this->width() : this->sizeHint().width() + kBeside;
    Theme::DrawEdge(painter, QRect(0, 0, std::min(needed, this->width()), this->height()), true);
  }

  void initStyleOption(Option* option) const override {
    Field::initStyleOption(option);
    option->state.setFlag(QStyle::State_HasFocus, false);
  }

 private:
  static constexpr bool fillsItsPlace_ = requires(const Field& field) { field.currentIndex(); };
  static constexpr int kBeside = 6;

  const Control& model_;
};

}  // namespace quillon
