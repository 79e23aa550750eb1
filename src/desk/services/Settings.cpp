#include "desk/services/Settings.h"

#include "desk/services/SqlText.h"

namespace quillon {

std::string Settings::OfUser(const std::string& key) const {
  return common_
      .Lookup("UserSettings", "SettingText",
              "UserName=" + SqlString(user_) + " and SettingKey=" + SqlString(key))
      .ToText();
}

std::string Settings::OfFirm(const std::string& key) const {
  return common_.Lookup("FirmSettings", "SettingText", "SettingKey=" + SqlString(key)).ToText();
}

void Settings::PutOfUser(const std::string& key, const std::string& value) {
  common_.Execute("Update or insert into UserSettings (UserName,SettingKey,SettingText) values (" +
                  SqlString(user_) + "," + SqlString(key) + "," + SqlString(value) + ")");
}

void Settings::PutOfFirm(const std::string& key, const std::string& value) {
  common_.Execute("Update or insert into FirmSettings (SettingKey,SettingText) values (" + SqlString(key) +
                  "," + SqlString(value) + ")");
}

}  // namespace quillon
