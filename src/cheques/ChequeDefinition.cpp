#include "cheques/ChequeDefinition.h"

#include <filesystem>
#include <fstream>

#include "cheques/frmChqPrint.h"
#include "host/data/CXmlTable.h"
#include "host/values/Text.h"
#include "layout/StoredLayout.h"

namespace quillon {

namespace {

constexpr const char* kLineEnd = "\r\n";

/// Values are written as they stand.
std::string XmlElement(const std::string& name, const Variant& value) {
  return "<" + name + ">" + value.ToText() + "</" + name + ">" + kLineEnd;
}

std::string Line(const std::string& text) { return text + kLineEnd; }

}  // namespace

std::string ChequeDefinition::Text() const {
  const Font& font = form_.Lbl(0).Font();
  std::string text = Line("<?xml version=\"1.0\" ?>") + Line("<DataRoot>") + Line("<ChqSettings>") +
                     Line("<Data>") + XmlElement("PrintStamp", form_.Check1.CheckValue()) +
                     XmlElement("PrintStation", form_.chkStation.CheckValue()) +
                     XmlElement("Landscape", form_.Check2.CheckValue()) + XmlElement("FontName", font.Name) +
                     XmlElement("FontSize", font.Size) + XmlElement("FontBold", font.Bold) +
                     XmlElement("PayeesAc", form_.Check3.CheckValue()) +
                     XmlElement("BankAcNo", form_.Kept.BankAcNo) + XmlElement("Remarks", form_.Remarks) +
                     XmlElement("AmtWd", form_.Kept.AmtWd) +
                     XmlElement("TMargin", Val(form_.txpTopMargin.Text())) +
                     XmlElement("LMargin", Val(form_.txpLeftMargin.Text())) +
                     XmlElement("DateStyle", form_.cmbDateStyle.Text()) +
                     XmlElement("DateChrGap", Val(form_.txpDateChrGap.Text())) +
                     XmlElement("NotExceeding", form_.chkNotExceeding.CheckValue()) + Line("</Data>") +
                     Line("</ChqSettings>") + Line("<ChqObjects>");
  for (auto& [index, object] : form_.Lbl) {
    text += Line("<Data>") + XmlElement("ObjID", object->Tag()) + XmlElement("PosX", object->Left()) +
            XmlElement("PosY", object->Top()) + Line("</Data>");
  }
  return text + Line("</ChqObjects>") + Line("</DataRoot>");
}

/// A file that cannot be written to its end leaves the one that was there.
void ChequeDefinition::Write(const std::string& file) const {
  const std::string begun = file + ".new";
  std::ofstream out(begun, std::ios::binary);
  out << Text();
  out.close();
  std::error_code error;
  if (out) std::filesystem::rename(begun, file, error);
  if (out && !error) return;
  std::error_code left;
  std::filesystem::remove(begun, left);
  throw HostError("The file " + file + " cannot be written.");
}

bool ChequeDefinition::Read(const std::string& file) const {
  CXmlTable table;
  table.Load(file);
  table.SelectTable("ChqSettings");
  if (table.RowCount() == 0) return false;
  ReadOptions(table);
  ReadObjects(table);
  return true;
}

void ChequeDefinition::ReadOptions(const CXmlTable& file) const {
  StoredLayout reading(form_, "ReadChqDef", "W");
  const auto text = [&](const char* name) { return file.Field(0, name); };
  const auto take = [&](CheckBox& box, const char* name) {
    reading.Step([&] { box.CheckValue = Val(text(name)) != 0 ? 1 : 0; });
  };
  const auto number = [&](CTextPlus& field, const char* name) {
    reading.Step([&] { field.Text = Variant(Val(text(name))).ToText(); });
  };
  take(form_.Check1, "PrintStamp");
  take(form_.Check2, "Landscape");
  take(form_.Check3, "PayeesA/c");
  take(form_.chkStation, "PrintStation");
  take(form_.chkNotExceeding, "NotExceeding");
  take(form_.chkBankDetails, "BankDetails");
  form_.Kept.BankAcNo = text("BankAcNo");
  form_.Remarks = text("Remarks");
  reading.Step([&] { form_.Kept.AmtWd = Val(text("AmtWd")); });
  number(form_.txpTopMargin, "TMargin");
  number(form_.txpLeftMargin, "LMargin");
  reading.Step([&] {
    form_.TakeFonts(text("FontName"), Val(text("FontSize")), property::Flag(text("FontBold")), reading);
  });
  reading.Step([&] { form_.Kept.DateStyle = frmChqPrint::DateStyleOf(text("DateStyle")); });
  number(form_.txpDateChrGap, "DateChrGap");
}

void ChequeDefinition::ReadObjects(CXmlTable& file) const {
  StoredLayout reading(form_, "ReadChqDef", "W");
  file.SelectTable("ChqObjects");
  for (std::size_t row = 0; row < file.RowCount(); ++row) {
    Label* const object = form_.ObjectOf(file.Field(row, "ObjID"));
    if (object == nullptr) continue;
    reading.Step([&] { object->Left = StoredLayout::Twips(file.Field(row, "PosX")); });
    reading.Step([&] { object->Top = StoredLayout::Twips(file.Field(row, "PosY")); });
  }
}

}  // namespace quillon
