#pragma once

#include "desk/qt/adapters/Adapter.h"
#include "host/controls/ScrollBar.h"

namespace quillon {

/// Shows a ScrollBar.
class ScrollBarAdapter : public Adapter {
 public:
  ScrollBarAdapter(ScrollBar& model, QWidget* parent);

 protected:
  void Draw() override;

 private:
  ScrollBar& bar_;
};

}  // namespace quillon
