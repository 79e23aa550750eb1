#pragma once

#include <vector>

#include "desk/qt/adapters/Adapter.h"
#include "host/controls/CButtonBar.h"

namespace quillon {

class PushButton;

/// Shows a CButtonBar: the keys of a screen, with those that are off shown as off.
class BarAdapter : public Adapter {
 public:
  BarAdapter(CButtonBar& model, QWidget* parent);

 protected:
  void Draw() override;

 private:
  PushButton* NewButton(int index);

  CButtonBar& bar_;
  std::vector<PushButton*> buttons_;
};

}  // namespace quillon
