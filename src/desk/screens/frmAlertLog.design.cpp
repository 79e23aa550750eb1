#include "desk/screens/frmAlertLog.h"

namespace quillon {

void frmAlertLog::DesignControls() {
  lblHeading.Move(120, 90, Width - 240, 360);
  Grid.Move(0, 510, Width, Height - 510 - 630);
  Grid.Rows = 1;
}

}  // namespace quillon
