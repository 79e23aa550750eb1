#include "envelopes/EnvelopeSettings.h"

#include <algorithm>

#include "envelopes/frmEnvelopePrint.h"
#include "host/data/CNameValues.h"
#include "host/data/CTextTable.h"
#include "host/services/IApp.h"
#include "host/values/Text.h"
#include "layout/StoredLayout.h"

namespace quillon {

namespace {

constexpr const char* kBetween = "<|||>";
constexpr const char* kColumns = "Name,Visible,Value,PosX,PosY,FontName,FontSize,Bold,Italic,Underline";
constexpr const char* kCustom = "Cus";
constexpr long kPixel = 15;  // twips; places are kept in pixels

bool IsCustom(const Label& object) { return object.Tag->starts_with(kCustom); }

std::string Mark(bool set) { return set ? "1" : "0"; }

std::string Inches(const std::string& text) { return Variant(Val(text)).ToText(); }

}  // namespace

void EnvelopeSettings::Save(frmEnvelopePrint& form) const {
  CNameValues paper;
  paper.SetItem("TopMargin", Inches(form.Text2(0).Text()));
  paper.SetItem("LeftMargin", Inches(form.Text2(1).Text()));
  paper.SetItem("Landscape", std::to_string(form.chkLandscape.CheckValue()));
  CTextTable objects;
  objects.SetFields(kColumns);
  for (auto& [index, object] : form.Lbl) {
    const auto put = [&, row = static_cast<std::size_t>(index)](const char* column,
                                                                const std::string& value) {
      objects.SetField(row, column, value);
    };
    const Font& font = object->Font();
    put("Name", object->Tag());
    put("Visible", Mark(object->Visible.Own()));
    put("Value", IsCustom(*object) ? object->Caption() : std::string());
    put("PosX", std::to_string(object->Left() / kPixel));
    put("PosY", std::to_string(object->Top() / kPixel));
    put("FontName", font.Name);
    put("FontSize", Variant(font.Size).ToText());
    put("Bold", Mark(font.Bold));
    put("Italic", Mark(font.Italic));
    put("Underline", Mark(font.Underline));
  }
  gApp->PutFirmSetting(key_, paper.Text() + kBetween + objects.Text());
}

void EnvelopeSettings::Load(frmEnvelopePrint& form) const {
  StoredLayout reading(form, "LoadEnvSettings", "");
  std::vector<std::string> pieces;
  reading.Step([&] { pieces = text::Split(gApp->GetFirmSetting(key_), kBetween); });
  if (pieces.size() < 2) return;
  LoadPaper(form, pieces[0], reading);
  LoadObjects(form, pieces[1], reading);
}

void EnvelopeSettings::LoadPaper(frmEnvelopePrint& form, const std::string& text,
                                 StoredLayout& reading) const {
  reading.Step([&] {
    CNameValues paper;
    paper.Load(text);
    form.Text2(0).Text = paper.Item("TopMargin");
    form.Text2(1).Text = paper.Item("LeftMargin");
    form.chkLandscape.CheckValue = Val(paper.Item("Landscape")) != 0 ? 1 : 0;
  });
}

void EnvelopeSettings::LoadObjects(frmEnvelopePrint& form, const std::string& text,
                                   StoredLayout& reading) const {
  CTextTable objects;
  reading.Step([&] {
    objects.SetFields(kColumns);
    objects.Load(text);
  });
  for (std::size_t row = 0; row < objects.RowCount(); ++row) {
    const auto value = [&](const char* column) { return objects.Field(row, column); };
    const auto isSet = [&](const char* column) { return value(column) == "1"; };
    Label* const object = form.ObjectOf(value("Name"));
    if (object == nullptr) continue;
    object->Visible = isSet("Visible");
    if (IsCustom(*object)) object->Caption = value("Value");
    // A layout that was saved on a larger screen is pulled back onto the form.
    const LayoutBoard::Limits limits = form.Limits();
    reading.Step([&] { object->Left = std::min(StoredLayout::Twips(value("PosX")) * kPixel, limits.Left); });
    reading.Step([&] { object->Top = std::min(StoredLayout::Twips(value("PosY")) * kPixel, limits.Top); });
    reading.Step([&] {
      reading.TakeFont(*object, {value("FontName"), Val(value("FontSize")), isSet("Bold"), isSet("Italic"),
                                 isSet("Underline")});
    });
  }
}

}  // namespace quillon
