#pragma once

#include "desk/qt/adapters/Adapter.h"
#include "host/controls/Label.h"

namespace quillon {

/// Shows a Label; a line that is too long ends in dots, several lines stand from the top.
class LabelAdapter : public Adapter {
 public:
  LabelAdapter(Label& model, QWidget* parent);

  void Settle() override;

 protected:
  void Draw() override;
  void Dress() override;
  std::string SpokenName() const override { return label_.Caption; }
  void Clicked() override;
  bool DoubleClicked() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  Label& label_;
};

}  // namespace quillon
