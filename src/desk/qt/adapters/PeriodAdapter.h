#pragma once

#include "desk/qt/adapters/Adapter.h"
#include "host/controls/CPeriod.h"

namespace quillon {

/// Shows a CPeriod: its two date fields side by side.
class PeriodAdapter : public Adapter {
 public:
  PeriodAdapter(CPeriod& model, QWidget* parent);

  QWidget* Container() override { return &Widget(); }
  QRect PlaceOf(const Control& child) const override;

 protected:
  void Draw() override;

 private:
  CPeriod& period_;
};

}  // namespace quillon
