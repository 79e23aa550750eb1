#include "desk/firm/YearPlaces.h"

#include "books/SqlText.h"
#include "host/data/CDataSet.h"

namespace quillon {

void YearPlaces::ReadInto(FirmFile& file, FirebirdLink& common) {
  if (!common.TableExists("YEARPLACES")) return;
  CDataSet places;
  for (places.Open("Select StartYear,FileName from YearPlaces", common); !places.Eof(); places.MoveNext()) {
    const auto year = file.Years.find(static_cast<int>(places.Field("StartYear").ToInteger()));
    if (year == file.Years.end()) continue;
    FirebirdAddress& database = year->second.Database;
    database = Beside(database, places.Field("FileName").ToText());
  }
}

FirebirdAddress YearPlaces::Beside(const FirebirdAddress& year, const std::string& name) {
  FirebirdAddress beside = year;
  beside.Database.replace(year.Database.rfind('/') + 1, std::string::npos, name);
  return beside;
}

std::string YearPlaces::NameOf(const FirebirdAddress& year) {
  return year.Database.substr(year.Database.rfind('/') + 1);
}

void YearPlaces::Set(CDbLink& common, int startYear, const std::string& name) {
  common.Execute("update or insert into YearPlaces (StartYear,FileName) values (" +
                 books::SqlNumber(startYear) + "," + books::SqlString(name) + ") matching (StartYear)");
}

}  // namespace quillon
