#include "desk/qt/adapters/PeriodAdapter.h"

#include <QWidget>

#include "desk/qt/adapters/Scale.h"

namespace quillon {

namespace {

constexpr long kGap = 120;

}  // namespace

PeriodAdapter::PeriodAdapter(CPeriod& model, QWidget* parent)
    : Adapter(model, new QWidget(parent)), period_(model) {}

QRect PeriodAdapter::PlaceOf(const Control& child) const {
  const int gap = Scale::Px(kGap);
  const int half = (Widget().width() - gap) / 2;
  return {&child == &period_.Date1 ? 0 : half + gap, 0, half, Widget().height()};
}

void PeriodAdapter::Draw() {}  // the two fields show themselves

}  // namespace quillon
