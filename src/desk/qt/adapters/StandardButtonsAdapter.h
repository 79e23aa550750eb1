#pragma once

#include "desk/qt/adapters/Adapter.h"
#include "host/controls/CStdButtons.h"

class QToolButton;

namespace quillon {

/// Shows the buttons of a CStdButtons at the right end of its place: Exit, and before it the configuration
/// where the form has one.
class StandardButtonsAdapter : public Adapter {
 public:
  StandardButtonsAdapter(CStdButtons& model, QWidget* parent);

 protected:
  void Draw() override;
  std::string SpokenName() const override { return "Exit"; }

 private:
  QToolButton* AddButton(int index, const QString& icon, const QString& name);

  CStdButtons& strip_;
  QToolButton* configure_;
  QToolButton* exit_;
};

}  // namespace quillon
