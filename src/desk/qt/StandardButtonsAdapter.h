#pragma once

#include "desk/qt/Adapter.h"
#include "host/CStdButtons.h"

class QToolButton;

namespace quillon {

/// Shows the Exit button of a CStdButtons at the right end of its place.
class StandardButtonsAdapter : public Adapter {
 public:
  StandardButtonsAdapter(CStdButtons& model, QWidget* parent);

 protected:
  void Draw() override;
  std::string SpokenName() const override { return "Exit"; }

 private:
  QToolButton* exit_;
};

}  // namespace quillon
