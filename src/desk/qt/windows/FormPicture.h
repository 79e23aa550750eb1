#pragma once

#include <QImage>
#include <string>

#include "host/forms/Form.h"

namespace quillon {

/// A form drawn without a screen, at 100 %.
class FormPicture {
 public:
  static QImage Draw(const FormPtr& form);

  /// By the ending of the file's name. Throws HostError when the file cannot be written.
  static void Save(const FormPtr& form, const std::string& file);
};

}  // namespace quillon
