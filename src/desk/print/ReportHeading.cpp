#include "desk/print/ReportHeading.h"

#include "desk/print/RecordFields.h"
#include "desk/print/TextMeasure.h"
#include "desk/print/TextWrap.h"

namespace quillon {

namespace {

constexpr double kLeading = 1.22;
constexpr double kTwipsPerPoint = 20;
constexpr double kBaseline = 0.97;         // of the font's size below the top of its line
constexpr double kGap = 110;               // between the parts of a heading
constexpr double kOwnHeadRoom = 2 * 1440;  // where a printed letter head ends
constexpr double kRule = 12;
constexpr double kAccountSize = 10;

std::string PageNumber(std::size_t number, std::size_t total) {
  return "Page " + std::to_string(number) + " of " + std::to_string(total);
}

}  // namespace

ReportHeading::ReportHeading(const ReportRequest& request, const ReportSettings& settings,
                             const PagePlan& plan, ReportPages& pages)
    : request_(request), settings_(settings), plan_(plan), pages_(pages) {}

double ReportHeading::Place(ReportPage& page, std::size_t number, std::size_t total) {
  page_ = &page;
  y_ = plan_.Top;
  switch (number == 1 ? settings_.FirstForm : settings_.NextForm) {
    case HeadingForm::None:
      return y_;
    case HeadingForm::Account:
      SetAccount(number, total);
      break;
    case HeadingForm::AccountShort:
      SetAccountShort(number, total);
      break;
    case HeadingForm::Letter:
      SetLetter(true);
      break;
    case HeadingForm::LetterReference:
      SetLetter(false);
      break;
  }
  return y_ + kGap;
}

Font ReportHeading::Face(double size, bool bold) const {
  Font font = plan_.Body;
  font.Size = size;
  font.Bold = bold;
  return font;
}

/// Texts of one line are set side by side, on the baseline of a font of `lineSize`; the caller moves on.
void ReportHeading::Put(const std::string& text, const Font& font, Side side, double lineSize) {
  if (text.empty()) return;
  const double width = TextMeasure::Width(font, text);
  double x = plan_.Left;
  if (side == Side::Centre) x = (plan_.Left + plan_.Right - width) / 2;
  if (side == Side::Right) x = plan_.Right - width;
  page_->Texts.push_back(
      {x, y_ + std::max(font.Size, lineSize) * kTwipsPerPoint * kBaseline, text, pages_.FontNumber(font), 0});
}

void ReportHeading::PutCentred(const std::string& text, const Font& font) {
  const auto measure = [&font](std::string_view part) { return TextMeasure::Width(font, part); };
  for (const WrappedLine& line : WrapText(text, plan_.Right - plan_.Left, measure)) {
    Put(std::string(line.Text), font, Side::Centre);
    y_ += font.Size * kTwipsPerPoint * kLeading;
  }
}

void ReportHeading::Rule() { page_->Lines.push_back({plan_.Left, y_, plan_.Right, y_, kRule, 0}); }

void ReportHeading::SetAccount(std::size_t number, std::size_t total) {
  if (!request_.Firm.Name.empty()) PutCentred(request_.Firm.Name, Face(14, true));
  for (const std::string& line : request_.Firm.AddressLines) PutCentred(line, Face(8.5, false));
  y_ += kGap;
  for (std::size_t i = 0; i < settings_.TitleLines.size(); ++i)
    PutCentred(settings_.TitleLines[i], i == 0 ? Face(11, true) : Face(9, false));
  y_ += kGap;
  const Font small = Face(8, false);
  const double top = y_;
  if (settings_.FirstAccount) SetAccountHead(true);
  const double under = y_;
  y_ = top;
  Put("Printed " + request_.PrintedOn.Text(), small, settings_.FirstAccount ? Side::Right : Side::Left,
      settings_.FirstAccount ? kAccountSize : 0);
  if (settings_.FirstAccount) y_ += kAccountSize * kTwipsPerPoint * kLeading;
  Put(PageNumber(number, total), small, Side::Right);
  y_ = std::max(y_ + small.Size * kTwipsPerPoint * kLeading, under);
}

void ReportHeading::SetAccountShort(std::size_t number, std::size_t total) {
  const Font bold = Face(9, true);
  const Font plain = Face(8, false);
  const std::string page = PageNumber(number, total);
  Put(request_.Firm.Name, bold, Side::Left);
  Put(page, plain, Side::Right, bold.Size);
  const double line = bold.Size * kTwipsPerPoint * kLeading;
  const std::string title = settings_.TitleLines.empty() ? "" : settings_.TitleLines.front();
  const double side =
      std::max(TextMeasure::Width(bold, request_.Firm.Name), TextMeasure::Width(plain, page)) + kGap;
  const double room = plan_.Right - plan_.Left - 2 * side;
  if (TextMeasure::Width(plain, title) <= room) {
    Put(title, plain, Side::Centre, bold.Size);
    y_ += line;
  } else {
    y_ += line;
    PutCentred(title, plain);
  }
  if (settings_.NextAccount) SetAccountHead(false);
}

void ReportHeading::SetAccountHead(bool withAddress) {
  const CDataSet& record = request_.Options.DataRS;
  const Font bold = Face(withAddress ? kAccountSize : 9, true);
  const Font plain = Face(8.5, false);
  const std::string head = JoinFields(record, {"mhd", "mst"}, ", ");
  if (head.empty()) return;
  Put(head, bold, Side::Left);
  y_ += bold.Size * kTwipsPerPoint * kLeading;
  if (!withAddress) return;
  const std::string address = JoinFields(record, {"mhda1", "mhda2", "mhda3"}, ", ");
  if (address.empty()) return;
  Put(address, plain, Side::Left);
  y_ += plain.Size * kTwipsPerPoint * kLeading;
}

void ReportHeading::SetLetter(bool withHead) {
  if (withHead) {
    PutCentred(request_.Firm.Name, Face(16, true));
    for (const std::string& line : request_.Firm.AddressLines) PutCentred(line, Face(9, false));
    y_ += kGap;
    Rule();
    y_ += 3 * kGap;
  } else {
    y_ = std::max(y_, kOwnHeadRoom);
  }
  const Font font = plan_.Body;
  const std::string reference = request_.Options.Var("RefNo");
  const std::string dated = request_.Options.Var("Dated");
  if (!reference.empty()) Put("Ref. No.: " + reference, font, Side::Left);
  if (!dated.empty()) Put("Dated: " + dated, font, Side::Right);
  if (!reference.empty() || !dated.empty()) y_ += plan_.LineHeight + 2 * kGap;
}

}  // namespace quillon
