#include "desk/print/PlainReport.h"

#include <QChar>
#include <QList>
#include <QString>
#include <algorithm>
#include <cmath>
#include <numeric>

#include "desk/print/ColumnWidths.h"
#include "desk/print/RecordFields.h"
#include "desk/print/ReportTable.h"
#include "desk/print/TextWrap.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr double kTwipsPerLine = 240;  // six lines to the inch
constexpr int kOwnHeadLines = 12;      // two inches, where a printed letter head ends
constexpr double kPaperWidths[] = {80, 96, 132, 160};

bool IsWide(char32_t character) {
  constexpr std::pair<char32_t, char32_t> kWide[] = {
      {0x1100, 0x115F}, {0x2E80, 0xA4CF}, {0xAC00, 0xD7A3},   {0xF900, 0xFAFF},  {0xFE30, 0xFE6F},
      {0xFF00, 0xFF60}, {0xFFE0, 0xFFE6}, {0x1F300, 0x1FAFF}, {0x20000, 0x3FFFD}};
  return std::any_of(std::begin(kWide), std::end(kWide), [=](const auto& range) {
    return character >= range.first && character <= range.second;
  });
}

std::string Repeat(std::string_view what, double times) {
  std::string text;
  for (double i = 0; i < times; ++i) text += what;
  return text;
}

std::string Blanks(double count) { return std::string(static_cast<std::size_t>(std::max(0.0, count)), ' '); }

/// A text of a cell or heading line, padded to its width.
std::string Padded(std::string_view text, double width, int alignment) {
  const double spare = width - DisplayWidth(text);
  if (alignment == kAlignRight) return Blanks(spare) + std::string(text);
  const double left = alignment == kAlignCentre ? std::floor(spare / 2) : 0;
  return Blanks(left) + std::string(text) + Blanks(spare - left);
}

/// Blanks are added from the left until the line is full; the indent stays.
std::string Justified(std::string_view line, double width) {
  std::string text(line);
  const std::size_t indent = std::min(line.find_first_not_of(' '), line.size());
  std::size_t at = indent;
  for (double spare = width - DisplayWidth(line); spare > 0; --spare) {
    at = text.find(' ', at);
    if (at == std::string::npos) at = text.find(' ', indent);
    if (at == std::string::npos) break;
    text.insert(at, 1, ' ');
    at = text.find_first_not_of(' ', at);
  }
  return text;
}

class Writer {
 public:
  explicit Writer(const ReportRequest& request)
      : request_(request), settings_(request), table_(request.Grid, request.Options) {
    std::vector<double> least =
        LeastWidths(table_, [](std::string_view text, bool) { return DisplayWidth(text); });
    for (double& width : least) ++width;  // the gap behind a column
    const double needed = std::accumulate(least.begin(), least.end(), 0.0);
    const auto* paper = std::find_if(std::begin(kPaperWidths), std::end(kPaperWidths),
                                     [=](double width) { return width + 1 >= needed; });
    width_ = paper == std::end(kPaperWidths) ? needed - 1 : *paper;
    ShareCharacters(ShareWidth(table_, least, width_ + 1));
  }

  PlainReport Make() {
    out_.RowPages.resize(static_cast<std::size_t>(request_.Grid.Rows()));
    StartPage();
    for (std::size_t i = 0; i < table_.Rows().size(); ++i) {
      const int row = table_.Rows()[i];
      WriteRow(row);
      out_.RowPages[static_cast<std::size_t>(row)] = out_.Pages;
      const RowCommands commands = table_.Commands(row);
      if (commands.Rule) Rule();
      if (!commands.PageBreak || i + 1 == table_.Rows().size()) continue;
      if (settings_.BottomLine) Rule();
      out_.Text += '\f';
      ++out_.Pages;
      StartPage();
    }
    WriteFooter();
    return std::move(out_);
  }

 private:
  /// Whole characters, none lost to rounding.
  void ShareCharacters(const std::vector<double>& shares) {
    double edge = 0;
    double taken = 0;
    for (const double share : shares) {
      edge += share;
      widths_.push_back(std::round(edge) - taken - 1);
      taken = std::round(edge);
    }
  }

  void Line(std::string line = "") {
    line.erase(line.find_last_not_of(' ') + 1);
    out_.Text += line + "\n";
  }
  void Centred(const std::string& text) { Line(Padded(text, width_, kAlignCentre)); }
  /// Where two rules would meet one is enough.
  void Rule() {
    const double each = std::max(1.0, DisplayWidth(settings_.RuleCharacter));
    const std::string rule = Repeat(settings_.RuleCharacter, width_ / each);
    if (!out_.Text.ends_with(rule + "\n")) Line(rule);
  }

  void StartPage() {
    const HeadingForm form = out_.Pages == 1 ? settings_.FirstForm : settings_.NextForm;
    if (form == HeadingForm::Letter || form == HeadingForm::LetterReference) LetterHeading(form);
    if (form == HeadingForm::Account || form == HeadingForm::AccountShort) AccountHeading();
    if (!settings_.ColumnTitles) return;
    if (settings_.TopLine) Rule();
    for (const int row : table_.TitleRows()) {
      WriteCells([&](std::size_t i) { return table_.Cell(row, i); }, true);
    }
    if (settings_.TitleLine) Rule();
  }

  void FirmHeading() {
    if (!request_.Firm.Name.empty()) Centred(request_.Firm.Name);
    for (const std::string& line : request_.Firm.AddressLines) Centred(line);
  }

  void AccountHeading() {
    FirmHeading();
    for (const std::string& line : settings_.TitleLines) Centred(line);
    const std::string head =
        settings_.FirstAccount ? JoinFields(request_.Options.DataRS, {"mhd", "mst"}, ", ") : "";
    const std::string printed = "Printed " + request_.PrintedOn.Text();
    Line(head + Blanks(width_ - DisplayWidth(head) - DisplayWidth(printed)) + printed);
  }

  void LetterHeading(HeadingForm form) {
    if (form == HeadingForm::Letter) {
      FirmHeading();
      Rule();
    } else {
      for (int line = 0; line < kOwnHeadLines; ++line) Line();
    }
    const std::string reference = request_.Options.Var("RefNo");
    const std::string dated = request_.Options.Var("Dated");
    if (reference.empty() && dated.empty()) return;
    const std::string left = reference.empty() ? "" : "Ref. No.: " + reference;
    const std::string right = dated.empty() ? "" : "Dated: " + dated;
    Line(left + Blanks(width_ - DisplayWidth(left) - DisplayWidth(right)) + right);
    Line();
  }

  void WriteRow(int row) {
    const auto above = static_cast<int>(settings_.LineTopMargin / kTwipsPerLine);
    for (int i = 0; i < above; ++i) Line();
    int lines = above + WriteCells([&](std::size_t i) { return table_.Cell(row, i); }, false);
    // A height that is no whole number of lines must not drift away from the labels on the paper.
    owed_ += settings_.LineHeight / kTwipsPerLine;
    for (; lines < static_cast<int>(owed_); ++lines) Line();
    owed_ = std::max(0.0, owed_ - lines);
  }

  double TextWidth(std::size_t column) const {
    return settings_.IsLabels() ? *std::min_element(widths_.begin(), widths_.end()) : widths_[column];
  }

  template <class Texts>
  int WriteCells(const Texts& texts, bool titles) {
    std::vector<std::vector<WrappedLine>> cells;
    std::size_t lines = 1;
    for (std::size_t i = 0; i < table_.Columns().size(); ++i) {
      cells.push_back(WrapText(texts(i), TextWidth(i), DisplayWidth));
      lines = std::max(lines, cells.back().size());
    }
    for (std::size_t line = 0; line < lines; ++line) {
      std::string text;
      for (std::size_t i = 0; i < cells.size(); ++i) {
        if (i > 0) text += ' ';
        text += line < cells[i].size() ? CellText(i, cells[i][line], titles) : Blanks(widths_[i]);
      }
      Line(text);
    }
    return static_cast<int>(lines);
  }

  std::string CellText(std::size_t column, const WrappedLine& line, bool title) const {
    const ReportColumn& shown = table_.Columns()[column];
    if (shown.Justify && !title && !line.EndsParagraph) return Justified(line.Text, widths_[column]);
    return Padded(line.Text, widths_[column], title ? shown.HeadingAlignment : shown.Alignment);
  }

  void WriteFooter() {
    if (settings_.BottomLine) Rule();
    for (const ReportTable::FooterRow& row : table_.Footer())
      WriteCells([&](std::size_t i) { return std::string_view(row.Cells[i]); }, false);
    if (settings_.BottomLine && !table_.Footer().empty()) Rule();
  }

  const ReportRequest& request_;
  ReportSettings settings_;
  ReportTable table_;
  double width_ = 0;
  double owed_ = 0;  // lines by which the rows so far are shorter than their heights
  std::vector<double> widths_;
  PlainReport out_;
};

}  // namespace

double DisplayWidth(std::string_view text) {
  double width = 0;
  if (std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 128; }))
    return static_cast<double>(text.size());
  for (const uint character : QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).toUcs4()) {
    const QChar::Category category = QChar::category(character);
    const bool standsOnAnother = category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing ||
                                 category == QChar::Other_Format;
    if (!standsOnAnother) width += IsWide(character) ? 2 : 1;
  }
  return width;
}

PlainReport PlainReport::Make(const ReportRequest& request) { return Writer(request).Make(); }

}  // namespace quillon
