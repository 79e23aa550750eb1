#pragma once

#include <string>

#include "host/data/CDbLink.h"

namespace quillon {

/// The settings of users and of the firm, texts by key in the common database, so that all desks of a firm
/// share them.
class Settings {
 public:
  Settings(CDbLink& common, std::string user) : common_(common), user_(std::move(user)) {}

  /// Empty when the key was never written.
  std::string OfUser(const std::string& key) const;
  std::string OfFirm(const std::string& key) const;
  void PutOfUser(const std::string& key, const std::string& value);
  void PutOfFirm(const std::string& key, const std::string& value);

 private:
  CDbLink& common_;
  std::string user_;
};

}  // namespace quillon
