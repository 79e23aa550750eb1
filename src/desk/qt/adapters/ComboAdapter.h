#pragma once

#include "desk/qt/adapters/Adapter.h"
#include "host/controls/ComboBox.h"

namespace quillon {

/// Shows a ComboBox.
class ComboAdapter : public Adapter {
 public:
  ComboAdapter(ComboBox& model, QWidget* parent);

  /// Where a person types into an editable box, which has no caret of its own in the model.
  static constexpr const char* kTypesItself = "typesItself";

 protected:
  void Draw() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BeEditable();

  ComboBox& combo_;
};

}  // namespace quillon
