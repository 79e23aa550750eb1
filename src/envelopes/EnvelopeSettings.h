#pragma once

#include <string>

namespace quillon {

class frmEnvelopePrint;
class StoredLayout;

/// The layout of an envelope as the firm keeps it, one for each named size.
class EnvelopeSettings {
 public:
  explicit EnvelopeSettings(const std::string& size) : key_("EnvSettings." + size) {}

  /// A size that was never stored leaves what the form shows; what cannot be read is told.
  void Load(frmEnvelopePrint& form) const;
  void Save(frmEnvelopePrint& form) const;

 private:
  void LoadPaper(frmEnvelopePrint& form, const std::string& text, StoredLayout& reading) const;
  void LoadObjects(frmEnvelopePrint& form, const std::string& text, StoredLayout& reading) const;

  std::string key_;
};

}  // namespace quillon
