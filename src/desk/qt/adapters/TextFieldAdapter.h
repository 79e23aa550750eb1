#pragma once

#include "desk/qt/adapters/Adapter.h"
#include "host/controls/CTextPlus.h"

class QToolButton;

namespace quillon {

class BoxEdit;
class ElidedLabel;

/// Shows a CTextPlus: its label, the box, and the pick button where it has one.
class TextFieldAdapter : public Adapter {
 public:
  TextFieldAdapter(CTextPlus& model, QWidget* parent);
  ~TextFieldAdapter() override;

  QWidget* FocusWidget() override;
  void Settle() override;

 protected:
  void Draw() override;
  std::string SpokenName() const override { return field_.Caption; }

 private:
  void Arrange();

  CTextPlus& field_;
  ElidedLabel* label_;
  BoxEdit* box_;
  QToolButton* pick_;
};

}  // namespace quillon
