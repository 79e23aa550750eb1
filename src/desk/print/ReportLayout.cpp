#include "desk/print/ReportLayout.h"

#include <algorithm>
#include <string>

#include "desk/print/PagePlan.h"
#include "desk/print/ReportHeading.h"
#include "desk/print/ReportTable.h"
#include "desk/print/RowSetter.h"
#include "host/forms/Progress.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr double kThinRule = 12;
constexpr double kHairline = 5;
constexpr double kDoubleRuleGap = 40;
constexpr long kBlack = 0;
constexpr long kGrey = 0xB8B8B8;
constexpr long kWhite = 0xFFFFFF;
constexpr std::size_t kDivisibleLines = 5;  // a row with fewer lines is never divided between pages
constexpr std::size_t kLeastLines = 2;      // that stand together where a row is divided

/// Carries the rows of one report onto its pages.
class Layouter {
 public:
  explicit Layouter(const ReportRequest& request)
      : settings_(request),
        table_(request.Grid, request.Options),
        plan_(PagePlan::For(table_, settings_)),
        heading_(request, settings_, plan_, pages_),
        setter_(table_, plan_, pages_) {
    pages_.Title = settings_.TitleLines.empty() ? std::string() : settings_.TitleLines.front();
    pages_.Orientation = plan_.Orientation;
    pages_.Width = plan_.Sheet.Width;
    pages_.Height = plan_.Sheet.Height;
    pages_.RowPages.resize(static_cast<std::size_t>(request.Grid.Rows()));
  }

  ReportPages Make() {
    StartPage();
    Progress progress("Laying out rows", static_cast<std::int64_t>(table_.Rows().size()));
    for (std::size_t i = 0; i < table_.Rows().size(); ++i, progress.Step()) {
      const int row = table_.Rows()[i];
      PlaceRow(row);
      pages_.RowPages[static_cast<std::size_t>(row)] = static_cast<int>(pages_.Pages.size());
      if (table_.Commands(row).PageBreak && i + 1 < table_.Rows().size()) BreakPage();
    }
    PlaceFooter();
    for (std::size_t i = 0; i < pages_.Pages.size(); ++i)
      heading_.Place(pages_.Pages[i], i + 1, pages_.Pages.size());
    return std::move(pages_);
  }

 private:
  ReportPage& Page() { return pages_.Pages.back(); }

  double TopMargin() const { return settings_.LineTopMargin > 0 ? settings_.LineTopMargin : plan_.RowMargin; }
  double TextHeight(std::size_t lines) const {
    return static_cast<double>(lines) * plan_.LineHeight + TopMargin() + plan_.RowMargin;
  }
  double RowHeight(std::size_t lines) const { return std::max(settings_.LineHeight, TextHeight(lines)); }
  bool Carries() const {
    return settings_.CarryForward && settings_.BalanceColumn >= 1 &&
           settings_.BalanceColumn <= table_.Columns().size();
  }
  double Bottom() const { return plan_.Bottom - (Carries() ? TextHeight(1) : 0); }

  void Rule(double y, double thickness, long color) {
    Page().Lines.push_back({plan_.Left, y, plan_.Right, y, thickness, color});
  }

  void StartPage() {
    pages_.Pages.emplace_back();
    ReportPage measured;
    y_ = heading_.Place(measured, pages_.Pages.size(), pages_.Pages.size());
    tableTop_ = y_;
    if (settings_.ColumnTitles) PlaceTitles();
    if (Carries() && !balance_.empty()) PlaceCarried("Brought forward");
    fresh_ = true;
  }

  void PlaceTitles() {
    if (settings_.TopLine) Rule(y_, kThinRule, kBlack);
    for (const int row : table_.TitleRows()) {
      setter_.Begin(true, true);
      for (std::size_t i = 0; i < table_.Columns().size(); ++i) setter_.SetCell(i, table_.Cell(row, i));
      PlaceLines(0, setter_.Lines());
    }
    if (settings_.TitleLine) Rule(y_, kThinRule, kBlack);
  }

  void PlaceLines(std::size_t from, std::size_t to) {
    setter_.Place(Page(), y_ + plan_.RowMargin, from, to);
    y_ += static_cast<double>(to - from) * plan_.LineHeight + 2 * plan_.RowMargin;
  }

  void PlaceCarried(const std::string& words) {
    setter_.Begin(true);
    const std::size_t column = settings_.BalanceColumn - 1;
    const std::size_t at = WidestTextColumn();
    if (at != column) setter_.SetCell(at, words);
    setter_.SetCell(column, balance_);
    PlaceLines(0, setter_.Lines());
  }

  std::size_t WidestTextColumn() const {
    std::size_t widest = 0;
    for (std::size_t i = 0; i < table_.Columns().size(); ++i) {
      const bool wider = plan_.ColumnWidth[i] > plan_.ColumnWidth[widest];
      if (table_.Columns()[i].Alignment == kAlignLeft && wider) widest = i;
    }
    return widest;
  }

  void PlaceRow(int row) {
    const RowCommands commands = table_.Commands(row);
    LoadRow(row, commands);
    std::size_t from = 0;
    while (y_ + RowHeight(setter_.Lines() - from) > Bottom()) {
      const std::size_t take = DividePoint(setter_.Lines() - from, commands);
      if (take > 0) PlacePart(row, from, from + take);
      from += take;
      if (from == setter_.Lines()) return;
      BreakPage();
      LoadRow(row, commands);
    }
    PlacePart(row, from, setter_.Lines());
    if (settings_.RowRules) Rule(y_, kHairline, kGrey);
    if (commands.Rule) Rule(y_, kThinRule, kBlack);
    if (!Carries()) return;
    const std::string_view balance = table_.Cell(row, settings_.BalanceColumn - 1);
    if (!text::Trim(balance).empty()) balance_ = balance;
  }

  void LoadRow(int row, const RowCommands& commands) {
    const GridModel& grid = table_.Grid();
    setter_.Begin(commands.HeadingFont);
    for (std::size_t i = 0; i < table_.Columns().size(); ++i) {
      const std::string_view text = table_.Cell(row, i);
      if (text.empty()) continue;
      const int number = table_.Columns()[i].Number;
      setter_.SetCell(i, text, settings_.Underline && grid.CellFontUnderline(row, number),
                      ForeColor(row, number));
    }
  }

  long ForeColor(int row, int column) const {
    long color = kBlack;
    if (settings_.Bare) return color;
    for (const GridModel::Paint& paint : table_.Grid().Paints(row)) {
      if (column >= paint.firstCol && column <= paint.lastCol)
        color = paint.foreColor == Control::kDefaultColor ? kBlack : paint.foreColor;
    }
    return color;
  }

  /// How many of the lines still go on this page; 0 moves the rest to the next.
  std::size_t DividePoint(std::size_t lines, const RowCommands& commands) const {
    const double room = (Bottom() - y_ - TopMargin() - plan_.RowMargin) / plan_.LineHeight;
    const std::size_t fitting = room > 0 ? static_cast<std::size_t>(room) : 0;
    if (fresh_) return std::clamp<std::size_t>(fitting, 1, lines);
    if (commands.KeepWhole || settings_.LineHeight > 0 || lines < kDivisibleLines) return 0;
    const std::size_t take = std::min(fitting, lines - kLeastLines);
    return take < kLeastLines ? 0 : take;
  }

  void PlacePart(int row, std::size_t from, std::size_t to) {
    const double height = RowHeight(to - from);
    if (!settings_.Bare) PaintRow(row, height);
    setter_.Place(Page(), y_ + TopMargin(), from, to);
    y_ += height;
    fresh_ = false;
  }

  void PaintRow(int row, double height) {
    for (const GridModel::Paint& paint : table_.Grid().Paints(row)) {
      if (paint.backColor == Control::kDefaultColor || paint.backColor == kWhite) continue;
      for (std::size_t i = 0; i < table_.Columns().size(); ++i) {
        const int number = table_.Columns()[i].Number;
        if (number < paint.firstCol || number > paint.lastCol) continue;
        Fill(plan_.ColumnLeft[i], plan_.ColumnWidth[i], height, paint.backColor);
      }
    }
  }

  /// Neighbours of one colour join, so that no seam shows.
  void Fill(double left, double width, double height, long color) {
    std::vector<ReportFill>& fills = Page().Fills;
    if (!fills.empty() && fills.back().Y == y_ && fills.back().Color == color &&
        fills.back().X + fills.back().Width >= left - 1 && fills.back().X < left) {
      fills.back().Width = left + width - fills.back().X;
    } else {
      fills.push_back({left, y_, width, height, color});
    }
  }

  void BreakPage() {
    if (Carries() && !balance_.empty()) PlaceCarried("Carried forward");
    CloseTable();
    StartPage();
  }

  void CloseTable() {
    if (settings_.BottomLine) Rule(y_, kThinRule, kBlack);
    if (!settings_.ColumnRules) return;
    for (std::size_t i = 0; i <= plan_.ColumnLeft.size(); ++i) {
      const double x = i < plan_.ColumnLeft.size() ? plan_.ColumnLeft[i] : plan_.Right;
      Page().Lines.push_back({x, tableTop_, x, y_, kHairline, kGrey});
    }
  }

  /// The totals stand together below the last row.
  void PlaceFooter() {
    double height = 0;
    for (const ReportTable::FooterRow& row : table_.Footer()) {
      LoadFooter(row);
      height += static_cast<double>(setter_.Lines()) * plan_.LineHeight + 2 * plan_.RowMargin;
    }
    if (height > 0 && !fresh_ && y_ + height + kDoubleRuleGap > plan_.Bottom) BreakPage();
    if (height > 0 && !settings_.Bare) Rule(y_, kThinRule, kBlack);
    for (const ReportTable::FooterRow& row : table_.Footer()) {
      LoadFooter(row);
      const double top = y_;
      PlaceLines(0, setter_.Lines());
      if (!settings_.Bare && row.BackColor != Control::kDefaultColor && row.BackColor != kWhite)
        Page().Fills.push_back({plan_.Left, top, plan_.Right - plan_.Left, y_ - top, row.BackColor});
    }
    CloseTable();
    if (height > 0 && settings_.BottomLine) Rule(y_ + kDoubleRuleGap, kThinRule, kBlack);
  }

  void LoadFooter(const ReportTable::FooterRow& row) {
    setter_.Begin(true);
    for (std::size_t i = 0; i < row.Cells.size(); ++i) setter_.SetCell(i, row.Cells[i]);
  }

  ReportSettings settings_;
  ReportTable table_;
  PagePlan plan_;
  ReportPages pages_;
  ReportHeading heading_;
  RowSetter setter_;
  double y_ = 0;
  double tableTop_ = 0;
  bool fresh_ = true;
  std::string balance_;
};

}  // namespace

ReportPages ReportLayout::Make(const ReportRequest& request) { return Layouter(request).Make(); }

}  // namespace quillon
