#pragma once

#include <string>

namespace quillon {

class CTextTable;
class frmChqPrint;
class StoredLayout;

/// The layout of a cheque as the firm keeps it under a key, one for each bank account.
class ChequeSettings {
 public:
  /// The key of a bank's layout.
  static std::string KeyOf(long bank) { return "ChqSetting." + std::to_string(bank); }

  explicit ChequeSettings(std::string key) : key_(std::move(key)) {}

  bool AreStored() const;

  /// What was never stored leaves the form's defaults; what cannot be read is told.
  void Load(frmChqPrint& form) const;
  void Save(frmChqPrint& form) const;
  void Delete() const;

 private:
  std::string OptionsKey() const { return key_ + ".Settings"; }
  std::string ObjectsKey() const { return key_ + ".Objs"; }
  void LoadOptions(frmChqPrint& form, const CTextTable& stored, StoredLayout& reading) const;

  std::string key_;
};

}  // namespace quillon
