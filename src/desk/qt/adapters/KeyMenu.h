#pragma once

#include <functional>
#include <vector>

#include "host/controls/Control.h"

class QMenu;
class QPoint;
class QWidget;

namespace quillon {

/// The menu at a control: what its keys do, each line with its key. The line that is taken presses the key.
class KeyMenu {
 public:
  /// At a place of the screen; nothing is shown without choices. `more` adds lines of its own.
  static void Show(QWidget& widget, const QPoint& place, Control& control,
                   const std::vector<Control::KeyChoice>& choices,
                   const std::function<void(QMenu&)>& more = {});
};

}  // namespace quillon
