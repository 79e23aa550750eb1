#include "desk/services/Settings.h"

#include "books/SqlText.h"

namespace quillon {

std::string Settings::OfUser(const std::string& key) const {
  return common_
      .Lookup("UserSettings", "SettingText",
              "UserName=" + books::SqlString(user_) + " and SettingKey=" + books::SqlString(key))
      .ToText();
}

std::string Settings::OfFirm(const std::string& key) const {
  return common_.Lookup("FirmSettings", "SettingText", "SettingKey=" + books::SqlString(key)).ToText();
}

void Settings::PutOfUser(const std::string& key, const std::string& value) {
  common_.Execute("Update or insert into UserSettings (UserName,SettingKey,SettingText) values (" +
                  books::SqlString(user_) + "," + books::SqlString(key) + "," + books::SqlString(value) +
                  ")");
}

void Settings::PutOfFirm(const std::string& key, const std::string& value) {
  common_.Execute("Update or insert into FirmSettings (SettingKey,SettingText) values (" +
                  books::SqlString(key) + "," + books::SqlString(value) + ")");
}

}  // namespace quillon
