#pragma once

#include "desk/qt/adapters/Adapter.h"

namespace quillon {

/// Finds the adapter of a control by its kind.
class AdapterFactory {
 public:
  /// Nothing for a control that is not drawn, such as a menu. The parent's deletion ends it.
  static Adapter* Make(Control& control, QWidget* parent);
};

}  // namespace quillon
