#pragma once

#include "desk/qt/adapters/Adapter.h"
#include "host/controls/MSChart.h"

namespace quillon {

/// Shows an MSChart.
class ChartAdapter : public Adapter {
 public:
  ChartAdapter(MSChart& model, QWidget* parent);

 protected:
  void Draw() override;
  std::string SpokenName() const override { return "Chart"; }
};

}  // namespace quillon
