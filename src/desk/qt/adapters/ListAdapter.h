#pragma once

#include "desk/qt/adapters/Adapter.h"
#include "host/controls/ListBox.h"

namespace quillon {

/// Shows a ListBox, with check boxes where it has them.
class ListAdapter : public Adapter {
 public:
  ListAdapter(ListBox& model, QWidget* parent);

 protected:
  void Draw() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  ListBox& list_;
};

}  // namespace quillon
