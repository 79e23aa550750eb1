#include "cheques/ChequeSettings.h"

#include "cheques/frmChqPrint.h"
#include "host/data/CTextTable.h"
#include "host/services/IApp.h"
#include "host/values/Text.h"
#include "layout/StoredLayout.h"

namespace quillon {

namespace {

constexpr const char* kOptionColumns =
    "PrintStamp,FontName,FontSize,FontBold,Landscape,PayeesA/c,BankAcNo,AmtWd,TMargin,LMargin,DateStyle,"
    "DateChrGap,PrintStation,Remarks,NotExceeding,BankDetails";
constexpr const char* kObjectColumns = "ObjID,PosX,PosY";

struct StoredCheck {
  const char* Column;
  CheckBox frmChqPrint::*Box;
};

constexpr StoredCheck kChecks[] = {
    {"PrintStamp", &frmChqPrint::Check1},
    {"Landscape", &frmChqPrint::Check2},
    {"PayeesA/c", &frmChqPrint::Check3},
    {"PrintStation", &frmChqPrint::chkStation},
    {"NotExceeding", &frmChqPrint::chkNotExceeding},
    {"BankDetails", &frmChqPrint::chkBankDetails},
};

std::string NumberText(const std::string& text) { return Variant(Val(text)).ToText(); }

}  // namespace

bool ChequeSettings::AreStored() const { return !gApp->GetFirmSetting(OptionsKey()).empty(); }

void ChequeSettings::Load(frmChqPrint& form) const {
  StoredLayout reading(form, "Load", "W");
  CTextTable options;
  CTextTable objects;
  reading.Step([&] { options.Load(gApp->GetFirmSetting(OptionsKey()), kOptionColumns); });
  reading.Step([&] { objects.Load(gApp->GetFirmSetting(ObjectsKey()), kObjectColumns); });
  LoadOptions(form, options, reading);
  for (std::size_t row = 0; row < objects.RowCount(); ++row) {
    Label* const object = form.ObjectOf(objects.Field(row, "ObjID"));
    if (object == nullptr) continue;
    reading.Step([&] { object->Left = StoredLayout::Twips(objects.Field(row, "PosX")); });
    reading.Step([&] { object->Top = StoredLayout::Twips(objects.Field(row, "PosY")); });
  }
}

void ChequeSettings::LoadOptions(frmChqPrint& form, const CTextTable& stored, StoredLayout& reading) const {
  const auto value = [&](const char* column) { return stored.Field(0, column); };
  const auto whenStored = [&](const char* column, const auto& take) {
    if (!value(column).empty()) reading.Step([&] { take(value(column)); });
  };
  for (const StoredCheck& check : kChecks) {
    whenStored(check.Column,
               [&](const std::string& text) { (form.*check.Box).CheckValue = Val(text) != 0 ? 1 : 0; });
  }
  whenStored("AmtWd", [&](const std::string& text) { form.Kept.AmtWd = Val(text); });
  whenStored("TMargin", [&](const std::string& text) { form.txpTopMargin.Text = NumberText(text); });
  whenStored("LMargin", [&](const std::string& text) { form.txpLeftMargin.Text = NumberText(text); });
  whenStored("FontName", [&](const std::string& name) {
    form.TakeFonts(name, Val(value("FontSize")), property::Flag(value("FontBold")), reading);
  });
  form.Kept.BankAcNo = value("BankAcNo");
  form.Remarks = value("Remarks");
  reading.Step([&] { form.Kept.DateStyle = frmChqPrint::DateStyleOf(value("DateStyle")); });
  reading.Step([&] {
    const std::string gap = value("DateChrGap");
    form.txpDateChrGap.Text = gap.empty() ? gap : NumberText(gap);
  });
}

void ChequeSettings::Save(frmChqPrint& form) const {
  CTextTable options;
  options.SetFields(kOptionColumns);
  const auto put = [&](const char* column, const Variant& value) {
    options.SetField(0, column, value.ToText());
  };
  for (const StoredCheck& check : kChecks) put(check.Column, (form.*check.Box).CheckValue());
  const Font& font = form.Lbl(0).Font();
  put("FontName", font.Name);
  put("FontSize", font.Size);
  put("FontBold", font.Bold);
  put("BankAcNo", form.Kept.BankAcNo);
  put("Remarks", form.Remarks);
  put("AmtWd", form.Kept.AmtWd);
  put("TMargin", Val(form.txpTopMargin.Text()));
  put("LMargin", Val(form.txpLeftMargin.Text()));
  put("DateStyle", form.cmbDateStyle.ListIndex());
  put("DateChrGap", Val(form.txpDateChrGap.Text()));
  gApp->PutFirmSetting(OptionsKey(), options.RowText(0));
  CTextTable objects;
  objects.SetFields(kObjectColumns);
  for (auto& [index, object] : form.Lbl) {
    const auto row = static_cast<std::size_t>(index);
    objects.SetField(row, "ObjID", object->Tag());
    objects.SetField(row, "PosX", std::to_string(object->Left()));
    objects.SetField(row, "PosY", std::to_string(object->Top()));
  }
  gApp->PutFirmSetting(ObjectsKey(), objects.Text());
}

void ChequeSettings::Delete() const {
  gApp->PutFirmSetting(OptionsKey(), "");
  gApp->PutFirmSetting(ObjectsKey(), "");
}

}  // namespace quillon
