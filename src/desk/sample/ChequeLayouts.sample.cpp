#include <initializer_list>
#include <string>
#include <utility>

#include "desk/sample/SamplePiece.h"
#include "host/data/CTextTable.h"

namespace quillon {

namespace {

struct Place {
  const char* Object;
  int Left;
  int Top;
};

void Keep(FirebirdLink& common, int bank, std::initializer_list<std::pair<const char*, const char*>> options,
          std::initializer_list<Place> places) {
  CTextTable kept;
  kept.SetFields(
      "PrintStamp,FontName,FontSize,FontBold,Landscape,PayeesA/c,BankAcNo,AmtWd,TMargin,LMargin,DateStyle,"
      "DateChrGap,PrintStation,Remarks,NotExceeding,BankDetails");
  for (const auto& [name, value] : options) kept.SetField(0, name, value);
  CTextTable objects;
  objects.SetFields("ObjID,PosX,PosY");
  std::size_t row = 0;
  for (const Place& place : places) {
    objects.SetField(row, "ObjID", place.Object);
    objects.SetField(row, "PosX", std::to_string(place.Left));
    objects.SetField(row++, "PosY", std::to_string(place.Top));
  }
  const std::string key = "ChqSetting." + std::to_string(bank);
  const Variant settings[] = {key + ".Settings", kept.RowText(0)};
  const Variant places_[] = {key + ".Objs", objects.Text()};
  for (const auto& values : {settings, places_}) {
    common.ExecuteWith("insert into FirmSettings (SettingKey,SettingText) values (?,?)",
                       std::span<const Variant>(values, 2));
  }
}

/// One bank's leaf has boxes for the date and two lines for the words, another's is printed across; the third
/// bank has none of its own.
void WriteLayouts(FirebirdLink& common) {
  Keep(common, SampleCode::kMainBank,
       {{"PrintStamp", "1"},
        {"FontName", "Tahoma"},
        {"FontSize", "9.75"},
        {"FontBold", "True"},
        {"PayeesA/c", "1"},
        {"BankAcNo", "501002034567"},
        {"AmtWd", "4.5"},
        {"DateStyle", "2"},
        {"DateChrGap", "180"}},
       {{"PayTo", 1080, 1200},
        {"Date", 8700, 330},
        {"AmtInWords", 1680, 1740},
        {"AmtInWords2", 720, 2220},
        {"Amount", 8940, 2100},
        {"ForFirm", 6960, 2880},
        {"Desig", 6960, 3900},
        {"PayeesAc", 240, 150},
        {"BankAcNo", 720, 2760}});
  Keep(common, SampleCode::kCreditBank,
       {{"PrintStamp", "1"},
        {"FontName", "Times New Roman"},
        {"FontSize", "11"},
        {"FontBold", "False"},
        {"Landscape", "1"},
        {"PayeesA/c", "1"},
        {"AmtWd", "0"},
        {"TMargin", "0.25"},
        {"LMargin", "0.5"},
        {"DateStyle", "0"},
        {"PrintStation", "1"},
        {"NotExceeding", "1"},
        {"Remarks", "Against bills"}},
       {{"PayTo", 990, 780}, {"Date", 8850, 300}, {"Amount", 8700, 1680}, {"NotExceeding", 870, 3660}});
}

}  // namespace

SamplePiece ChequeLayoutsSample() { return {20, nullptr, WriteLayouts}; }

}  // namespace quillon
