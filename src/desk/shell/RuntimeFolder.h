#pragma once

namespace quillon {

/// Names a folder of the user's own for Qt where no desktop session has made one; before the first Qt object.
void SetRuntimeFolder();

}  // namespace quillon
