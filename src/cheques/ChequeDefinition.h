#pragma once

#include <string>

namespace quillon {

class CXmlTable;
class frmChqPrint;
class StoredLayout;

/// A cheque's layout as a small file of its own, which goes to another firm or machine. What the file is read
/// for and what is written into it differ in three names, and files have been about that way: an import
/// clears the payee's mark and the bank details and takes the first date style.
class ChequeDefinition {
 public:
  explicit ChequeDefinition(frmChqPrint& form) : form_(form) {}

  /// Replaces a file of the name. Throws HostError when it cannot be written.
  void Write(const std::string& file) const;

  /// Changes the form only. False for a file that holds no settings; nothing is changed then.
  bool Read(const std::string& file) const;

 private:
  std::string Text() const;
  void ReadOptions(const CXmlTable& file) const;
  void ReadObjects(CXmlTable& file) const;

  frmChqPrint& form_;
};

}  // namespace quillon
