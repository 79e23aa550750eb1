#pragma once

#include <QImage>
#include <string>

#include "host/forms/Form.h"

namespace quillon {

class PdfPrinter;

/// A form drawn without a screen, at 100 %.
class FormPicture {
 public:
  static QImage Draw(const FormPtr& form);

  /// On one page of the printer, at its true size, texts as texts; controls that are hidden are left out, and
  /// so is the surface of a form that has no colour of its own.
  static void Print(const FormPtr& form, PdfPrinter& printer);

  /// By the ending of the file's name. Throws HostError when the file cannot be written.
  static void Save(const FormPtr& form, const std::string& file);
};

}  // namespace quillon
