#pragma once

#include "desk/qt/adapters/Adapter.h"
#include "host/controls/CSelGrid.h"

namespace quillon {

class GridWidget;

/// Shows a CSelGrid: its title and the list; a click on a line picks it.
class SelectionGridAdapter : public Adapter {
 public:
  SelectionGridAdapter(CSelGrid& model, QWidget* parent);
  ~SelectionGridAdapter() override;

  void Settle() override;

 protected:
  void Draw() override;
  std::string SpokenName() const override { return list_.Title.Caption; }

 private:
  CSelGrid& list_;
  QWidget* title_;
  GridWidget* grid_;
};

}  // namespace quillon
