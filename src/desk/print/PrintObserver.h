#pragma once

#include <string>

#include "host/values/Font.h"

namespace quillon {

/// Hears what goes on paper. Pages count from 1, positions are twips.
class PrintObserver {
 public:
  PrintObserver() = default;
  PrintObserver(const PrintObserver&) = delete;
  PrintObserver& operator=(const PrintObserver&) = delete;
  virtual ~PrintObserver() = default;

  virtual void OnText(int page, double x, double y, const std::string& text, const Font& font) = 0;

  /// A finished job left this PDF.
  virtual void OnPrinted(const std::string& file, int pages, int paper, int orientation) = 0;
};

}  // namespace quillon
