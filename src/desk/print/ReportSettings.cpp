#include "desk/print/ReportSettings.h"

#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr double kTwipsPerInch = 1440;
constexpr double kMostInches = 20;  // a larger top margin can only be meant in twips

bool FlagOf(const CReportOptions& options, const char* name) {
  const Variant value = options.Option(name);
  return value.IsEmpty() || value.ToFlag();
}

/// A line that was not set is drawn, one set to an empty text is not.
bool LineOf(const CReportOptions& options, const char* name) {
  const Variant value = options.Option(name);
  return value.IsEmpty() || !(value.ToText().empty() || text::EqualNoCase(value.ToText(), "False"));
}

HeadingForm FormOf(const CReportOptions& options, const char* name, HeadingForm usual) {
  const Variant value = options.Option(name);
  if (value.IsEmpty()) return usual;
  const std::string form = value.ToText();
  if (form.empty()) return HeadingForm::None;
  if (text::EqualNoCase(form, "LetterHead")) return HeadingForm::Letter;
  if (text::EqualNoCase(form, "LetterHeadRefDate")) return HeadingForm::LetterReference;
  if (text::EqualNoCase(form, "AcMain1")) return HeadingForm::Account;
  if (text::EqualNoCase(form, "AcMain2")) return HeadingForm::AccountShort;
  return usual;
}

std::vector<std::string> Titles(const ReportRequest& request) {
  std::vector<std::string> lines;
  for (const std::string& line :
       {request.Title, request.Subtitle, request.Options.Option("Title2").ToText(), request.Heading}) {
    const std::string trimmed = text::Trim(line);
    if (!trimmed.empty()) lines.push_back(trimmed);
  }
  return lines;
}

}  // namespace

ReportSettings::ReportSettings(const ReportRequest& request) {
  const CReportOptions& options = request.Options;
  FirstForm = FormOf(options, "MainHeadForm1", HeadingForm::Account);
  NextForm = FormOf(options, "MainHeadForm2", HeadingForm::AccountShort);
  FirstAccount = !options.Option("SubHeadForm1").ToText().empty();
  NextAccount = !options.Option("SubHeadForm2").ToText().empty();
  TitleLines = Titles(request);

  ColumnTitles = FlagOf(options, "Heading");
  TopLine = ColumnTitles && LineOf(options, "HeadingHorizontalLine1");
  TitleLine = ColumnTitles && LineOf(options, "HeadingHorizontalLine2");
  const Variant character = options.Option("RulingChr1");
  Bare = !character.IsEmpty() && character.ToText().empty();
  if (!character.ToText().empty()) RuleCharacter = character.ToText();
  BottomLine = !Bare && LineOf(options, "BottomLine");
  RowRules = !Bare && request.Ruling > 0 && (request.Ruling & 1) != 0;
  ColumnRules = !Bare && request.Ruling > 0 && (request.Ruling & 2) != 0;

  const Variant bottom = options.Option("BottomMargin");
  BottomMargin = bottom.IsEmpty() ? -1 : bottom.ToDouble();
  CarryForward = options.Option("CFLines").ToInteger() > 0;
  const std::int64_t balance = options.Option("BalColID").ToInteger();
  BalanceColumn = balance > 0 ? static_cast<std::size_t>(balance) : 0;

  LineHeight = options.Settings.LineHeight;
  LineTopMargin = options.Settings.LineTopMargin;
  if (LineTopMargin <= kMostInches) LineTopMargin *= kTwipsPerInch;
  Underline = options.Settings.ChkUnderline;
}

}  // namespace quillon
